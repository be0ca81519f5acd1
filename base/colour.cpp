#include "base/colour.h"

#include <charconv>
#include <cstdio>

#include "base/number_text.h"

namespace lumaris {

void Colour_Split(const std::string& colour, int& red, int& green, int& blue) {
  red = green = blue = -1;
  const std::optional<double> number = parse_number(colour);
  if (!number || *number < 0 || *number > 16777215.0) return;
  const auto value = static_cast<long>(*number);
  char hex[16];
  std::snprintf(hex, sizeof hex, "%06lX", value);  // BBGGRR
  auto pair = [&](int at) {
    int v = 0;
    std::from_chars(hex + at, hex + at + 2, v, 16);
    return v;
  };
  blue = pair(0);
  green = pair(2);
  red = pair(4);
}

Paint colour_from_text(const std::string& colour) {
  int r = 0, g = 0, b = 0;
  Colour_Split(colour, r, g, b);
  if (r < 0) return std::nullopt;
  return Rgb{static_cast<std::uint8_t>(r), static_cast<std::uint8_t>(g), static_cast<std::uint8_t>(b)};
}

std::string colour_to_text(Rgb colour) {
  const long value = colour.r + 256L * colour.g + 65536L * colour.b;
  return std::to_string(value);
}

}  // namespace lumaris
