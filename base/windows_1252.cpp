#include "base/windows_1252.h"

#include <array>
#include <cstdint>

namespace lumaris {

namespace {

// Code points of bytes 0x80..0x9F; the undefined ones keep their own number.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80..87
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88..8F
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90..97
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98..9F
};

constexpr char kUnmappable = '?';

char32_t code_point_of(unsigned char byte) {
  if (byte >= 0x80 && byte < 0xA0) return kHighControls[byte - 0x80];
  return byte;
}

void append_utf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out.push_back(static_cast<char>(c));
  } else if (c < 0x800) {
    out.push_back(static_cast<char>(0xC0 | (c >> 6)));
    out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
  } else {
    out.push_back(static_cast<char>(0xE0 | (c >> 12)));
    out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
  }
}

int byte_for(char32_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<int>(c);
  for (std::size_t i = 0; i < kHighControls.size(); ++i) {
    if (kHighControls[i] == c) return static_cast<int>(0x80 + i);
  }
  return -1;
}

// Decodes one UTF-8 sequence at text[i]; returns its length, 0 when malformed.
std::size_t decode_utf8(std::string_view text, std::size_t i, char32_t& c) {
  const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(text[k]); };
  const unsigned char lead = byte(i);
  std::size_t length = 0;
  char32_t minimum = 0;
  if (lead < 0x80) {
    c = lead;
    return 1;
  } else if ((lead & 0xE0) == 0xC0) {
    length = 2, c = lead & 0x1F, minimum = 0x80;
  } else if ((lead & 0xF0) == 0xE0) {
    length = 3, c = lead & 0x0F, minimum = 0x800;
  } else if ((lead & 0xF8) == 0xF0) {
    length = 4, c = lead & 0x07, minimum = 0x10000;
  } else {
    return 0;
  }
  if (i + length > text.size()) return 0;
  for (std::size_t k = 1; k < length; ++k) {
    if ((byte(i + k) & 0xC0) != 0x80) return 0;
    c = (c << 6) | (byte(i + k) & 0x3F);
  }
  if (c < minimum || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) return 0;
  return length;
}

}  // namespace

std::string windows_1252_to_utf8(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size() + bytes.size() / 8);
  for (const char b : bytes) append_utf8(out, code_point_of(static_cast<unsigned char>(b)));
  return out;
}

std::string utf8_to_windows_1252(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  std::size_t i = 0;
  while (i < text.size()) {
    char32_t c = 0;
    const std::size_t length = decode_utf8(text, i, c);
    if (length == 0) {
      out.push_back(kUnmappable);
      ++i;
      continue;
    }
    const int b = byte_for(c);
    out.push_back(b < 0 ? kUnmappable : static_cast<char>(b));
    i += length;
  }
  return out;
}

}  // namespace lumaris
