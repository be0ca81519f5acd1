#include <gtest/gtest.h>

#include <array>
#include <tuple>

#include "base/colour.h"
#include "base/number_text.h"
#include "base/rounding.h"

namespace lumaris {
namespace {

TEST(LevelScale, ModesScaleByFactorsOutOf255WithHalvesToEven) {
  EXPECT_EQ(std::tuple(Level_Scale(200, 0, 0, 0, 1), Level_Scale(255, 127, 0, 0, 2)), std::tuple(200, 127));
  EXPECT_EQ(Level_Scale(1, 128, 0, 0, 2), 1);  // 0.50196 rounds up
  EXPECT_EQ(Level_Scale(255, 255, 0, 0, 3), 0) << "mode 3 multiplies by f2 without testing it";
  EXPECT_EQ(Level_Scale(255, 255, 255, 0, 4), 0) << "mode 4 needs every factor";
  EXPECT_EQ(std::tuple(Level_Scale(255, 255, 255, 255, 4), Level_Scale(100, 255, 255, 255, 9)), std::tuple(255, 0));
}

TEST(Rounding, HalvesGoToTheEvenNeighbour) {
  EXPECT_EQ(std::tuple(round_half_even(0.5), round_half_even(1.5), round_half_even(2.5), round_half_even(-2.5)),
            std::tuple(0, 2, 2, -2));
  EXPECT_EQ(percent_to_level(50), 128);  // 127.5
  EXPECT_EQ(percent_to_level(30), 76);   // 76.5
}

TEST(ColourSplit, ReadsBlueGreenRedFromTheDecimalText) {
  int r = 0, g = 0, b = 0;
  Colour_Split("16776961", r, g, b);  // 0xFFFF01
  EXPECT_EQ((std::array<int, 3>{r, g, b}), (std::array<int, 3>{1, 255, 255}));
  Colour_Split("blue", r, g, b);
  EXPECT_EQ((std::array<int, 3>{r, g, b}), (std::array<int, 3>{-1, -1, -1}));
  EXPECT_EQ(colour_to_text(Rgb{0x12, 0x34, 0x56}), std::to_string(0x563412));
}

TEST(NumberText, AcceptsOnlyPlainDecimalNumbers) {
  EXPECT_EQ(std::tuple(parse_number(" 64 "), parse_number("-3.5"), parse_number("1e2")),
            std::tuple(64.0, -3.5, 100.0));
  EXPECT_FALSE(parse_number(""));
  EXPECT_FALSE(parse_number("12a"));
  for (const char* bad : {"inf", "0x10", "."}) EXPECT_FALSE(parse_number(bad)) << bad;
  EXPECT_EQ(std::tuple(text_to_int("2.5"), text_to_int("x", -1), str_number(5), str_number(-3)),
            std::tuple(2, -1, " 5", "-3"));
}

}  // namespace
}  // namespace lumaris
