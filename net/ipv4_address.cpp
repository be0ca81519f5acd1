#include "net/ipv4_address.h"

namespace lumaris {

std::optional<std::array<std::uint8_t, 4>> parse_ipv4(const std::string& text) {
  std::array<std::uint8_t, 4> parts{};
  std::size_t pos = 0;
  for (std::size_t part = 0; part < parts.size(); ++part) {
    if (part > 0) {
      if (pos >= text.size() || text[pos] != '.') return std::nullopt;
      ++pos;
    }
    const std::size_t start = pos;
    int value = 0;
    while (pos < text.size() && text[pos] >= '0' && text[pos] <= '9' && pos - start < 3) {
      value = value * 10 + (text[pos] - '0');
      ++pos;
    }
    const std::size_t digits = pos - start;
    if (digits == 0 || value > 255 || (digits > 1 && text[start] == '0')) return std::nullopt;
    parts[part] = static_cast<std::uint8_t>(value);
  }
  if (pos != text.size()) return std::nullopt;
  return parts;
}

bool is_unicast_target(const std::string& text) {
  const auto parts = parse_ipv4(text);
  if (!parts) return false;
  const std::array<std::uint8_t, 4> any{0, 0, 0, 0};
  const std::array<std::uint8_t, 4> limited_broadcast{255, 255, 255, 255};
  return *parts != any && *parts != limited_broadcast;
}

bool is_known_broadcast(const std::string& text) {
  const auto parts = parse_ipv4(text);
  if (!parts) return false;
  const bool host_all_ones = (*parts)[1] == 255 && (*parts)[2] == 255 && (*parts)[3] == 255;
  return host_all_ones && ((*parts)[0] == 255 || (*parts)[0] == 2 || (*parts)[0] == 10);
}

}  // namespace lumaris
