#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace lumaris {

// A dotted-quad IPv4 address: four decimal numbers 0..255, no blanks, no leading zeros.
std::optional<std::array<std::uint8_t, 4>> parse_ipv4(const std::string& text);

// An address a packet can be sent to on its own: not 0.0.0.0 and not 255.255.255.255.
bool is_unicast_target(const std::string& text);

// The broadcast addresses every Art-Net network knows without asking the
// computer: 255.255.255.255 and the /8 broadcasts of the 2.x and 10.x networks.
bool is_known_broadcast(const std::string& text);

}  // namespace lumaris
