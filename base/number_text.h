#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lumaris {

// The number a text box holds: blanks around it are allowed, a sign, digits with
// an optional decimal point and exponent. Anything else is not a number.
std::optional<double> parse_number(std::string_view text);
bool is_numeric(std::string_view text);

// The whole number a text box holds, rounded halves to even; `fallback` when not numeric.
int text_to_int(std::string_view text, int fallback = 0);

// A number as the desk prints it in a status text: one blank before a value that
// is not negative, a minus sign in its place otherwise (" 5", "-3").
std::string str_number(long value);

}  // namespace lumaris
