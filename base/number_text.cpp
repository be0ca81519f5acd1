#include "base/number_text.h"

#include <cctype>
#include <cmath>
#include <cstdlib>

#include "base/rounding.h"

namespace lumaris {

std::optional<double> parse_number(std::string_view text) {
  std::size_t begin = 0;
  std::size_t end = text.size();
  while (begin < end && std::isspace(static_cast<unsigned char>(text[begin]))) ++begin;
  while (end > begin && std::isspace(static_cast<unsigned char>(text[end - 1]))) --end;
  if (begin == end) return std::nullopt;
  const std::string_view body = text.substr(begin, end - begin);

  // Check the shape by hand: strtod also accepts "inf", "nan" and hex numbers.
  std::size_t i = 0;
  if (body[i] == '+' || body[i] == '-') ++i;
  std::size_t digits = 0;
  while (i < body.size() && std::isdigit(static_cast<unsigned char>(body[i]))) ++i, ++digits;
  if (i < body.size() && body[i] == '.') {
    ++i;
    while (i < body.size() && std::isdigit(static_cast<unsigned char>(body[i]))) ++i, ++digits;
  }
  if (digits == 0) return std::nullopt;
  if (i < body.size() && (body[i] == 'e' || body[i] == 'E')) {
    ++i;
    if (i < body.size() && (body[i] == '+' || body[i] == '-')) ++i;
    std::size_t exponent_digits = 0;
    while (i < body.size() && std::isdigit(static_cast<unsigned char>(body[i]))) ++i, ++exponent_digits;
    if (exponent_digits == 0) return std::nullopt;
  }
  if (i != body.size()) return std::nullopt;
  const std::string copy(body);
  const double value = std::strtod(copy.c_str(), nullptr);
  if (!std::isfinite(value)) return std::nullopt;
  return value;
}

bool is_numeric(std::string_view text) { return parse_number(text).has_value(); }

int text_to_int(std::string_view text, int fallback) {
  const std::optional<double> value = parse_number(text);
  if (!value || *value > 2147483647.0 || *value < -2147483648.0) return fallback;
  return round_half_even(*value);
}

std::string str_number(long value) {
  return value < 0 ? std::to_string(value) : " " + std::to_string(value);
}

}  // namespace lumaris
