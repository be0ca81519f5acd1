#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace lumaris {

struct Rgb {
  std::uint8_t r = 0;
  std::uint8_t g = 0;
  std::uint8_t b = 0;
  friend bool operator==(const Rgb&, const Rgb&) = default;
};

// A colour as a control shows it: a fixed colour, or the system's button face.
using Paint = std::optional<Rgb>;

inline constexpr Rgb kGreen{0, 255, 0};
inline constexpr Rgb kRed{255, 0, 0};
inline constexpr Rgb kYellow{255, 255, 0};
inline constexpr Rgb kBlack{0, 0, 0};
inline constexpr Rgb kWhite{255, 255, 255};

// The default channel colour: 16776960 = 0xFFFF00 in 0x00BBGGRR, that is cyan.
inline constexpr const char* kDefaultChannelColour = "16776960";

// Show files keep colours as the decimal text of a 0x00BBGGRR number.
// Splits such a text into red, green and blue; all three are -1 when the text is not a number.
void Colour_Split(const std::string& colour, int& red, int& green, int& blue);

// The colour a stored text stands for; nothing for empty or invalid text (button face).
Paint colour_from_text(const std::string& colour);
std::string colour_to_text(Rgb colour);

}  // namespace lumaris
