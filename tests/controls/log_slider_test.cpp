#include "controls/log_slider.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>
#include <vector>

namespace lumaris {

namespace {

// An axis from 100 (top, MaxValue) to 600 (bottom, MinValue).
LogSlider slider_on_axis() {
  LogSlider slider;
  slider.set_axis(100, 500);
  return slider;
}

}  // namespace

TEST(LogSlider, DefaultAxisRunsLogarithmicallyFromATenthToFourMinutesWithExactEnds) {
  LogSlider slider = slider_on_axis();
  std::vector<double> moves;
  slider.on_UserCursorMove([&](double v) { moves.push_back(v); });
  slider.Set_From_Position(9000);  // beyond the bottom
  EXPECT_EQ(slider.thumb_top(), 600.0);  // thumb height 0: its top is the clamped position
  slider.Set_From_Position(-5000);
  EXPECT_EQ(slider.thumb_top(), 100.0);
  slider.Set_From_Position(350);
  ASSERT_EQ(moves.size(), 3u);
  EXPECT_EQ(std::tuple(moves[0], moves[1]), std::tuple(0.1, 240.0)) << "the ends are exact";
  EXPECT_NEAR(moves[2], std::sqrt(24.0), 1e-12);  // 10^((log 0.1 + log 240) / 2)
  EXPECT_EQ(std::tuple(slider.lblMin(), slider.lblMax()), std::tuple("0.1", "240"));
  // 0.1..0.9, 1..9, 10..90, 100 and 200: 300 and above lie beyond 240.
  const auto ticks = slider.ticks();
  ASSERT_EQ(ticks.size(), 29u);
  EXPECT_DOUBLE_EQ(ticks.front().position, 600.0);
  EXPECT_TRUE(ticks[9].decade);
  EXPECT_NEAR(ticks[9].position, 600 - 500 / std::log10(2400.0), 1e-9);  // the 1 s tick
}

TEST(LogSlider, ProgramValueRaisesOnlyValChangeADragBothAndAScaleFactorKeepsUserUnits) {
  LogSlider slider = slider_on_axis();
  slider.set_thumb_height(20);
  std::vector<double> changes;
  std::vector<double> moves;
  slider.on_ValChange([&](double v) { changes.push_back(v); });
  slider.on_UserCursorMove([&](double v) { moves.push_back(v); });
  slider.set_Value(1.0);
  EXPECT_EQ(std::tuple(moves.empty(), changes), std::tuple(true, std::vector<double>{1.0}));
  // log10(1) - log10(0.1) = 1 of the log10(2400) decades above the bottom.
  EXPECT_NEAR(slider.thumb_top(), 600 - 500 / std::log10(2400.0) - 10, 1e-9);
  slider.Set_From_Position(100);
  EXPECT_EQ(std::tuple(changes, moves), std::tuple(std::vector<double>{1.0, 1.0}, std::vector<double>{240.0}));

  // A scale factor keeps user units and scales what the events carry.
  slider.set_Value(2);
  slider.set_ScaleFactor(10);
  EXPECT_DOUBLE_EQ(slider.Value(), 2.0);
  slider.Set_From_Position(100);
  EXPECT_DOUBLE_EQ(moves.back(), 240.0);
  slider.set_ScaleFactor(0);  // ignored: it would lose every number
  EXPECT_DOUBLE_EQ(slider.Value(), 240.0);
}

TEST(LogSlider, LinearAxisAndTheNonPositiveFallbacks) {
  LogSlider slider = slider_on_axis();
  slider.set_MinValue(0.3);
  slider.set_MaxValue(77.7);
  slider.Set_From_Position(-5000);
  EXPECT_EQ(slider.Value(), 77.7) << "exact, whatever the logarithms round to";
  slider.set_logAxis(false);
  slider.Set_From_Position(350);
  EXPECT_DOUBLE_EQ(slider.Value(), (0.3 + 77.7) / 2);

  // A range whose minimum lies above its maximum is still logarithmic: halfway
  // between 100 at the bottom and 1 at the top is 10.
  slider.set_logAxis(true);
  slider.set_MinValue(100);
  slider.set_MaxValue(1);
  slider.Set_From_Position(350);
  EXPECT_NEAR(slider.Value(), 10.0, 1e-12);
  slider.set_Value(10);
  EXPECT_NEAR(slider.thumb_top(), 350.0, 1e-9);
  EXPECT_EQ(slider.ticks().size(), 19u);  // 1..9, 10..90 and 100
  EXPECT_DOUBLE_EQ(slider.ticks().front().position, 100.0);
  // A value of 0 has no position of its own on a logarithmic axis: the bottom,
  // even where the axis runs downwards.
  slider.set_Value(0);
  EXPECT_EQ(std::tuple(slider.thumb_top(), slider.Value()), std::tuple(600.0, 0.0));

  // A minimum of 0 makes the logarithmic axis map linearly.
  slider.set_MaxValue(240);
  slider.set_MinValue(0);
  slider.Set_From_Position(350);
  EXPECT_DOUBLE_EQ(slider.Value(), 120.0);
  EXPECT_EQ(std::tuple(slider.lblMin(), slider.ticks().empty()), std::tuple("0", true));
}

TEST(SignificantText, RoundsToTheDigitsHalvesToEvenOrSwitchesToExponentForm) {
  const std::pair<double, const char*> cases[] = {
      {0, "0"},         {4.898979, "4.9"}, {12.34, "12.3"},          {999.4, "999"},
      {-2.5, "-2.5"},   {1.375, "1.38"},   {1.125, "1.12"},          {1234, "1.234E+03"},
      {0.0001, "1.000E-04"}};
  for (const auto& [x, text] : cases) EXPECT_EQ(significant_text(x, 3), text) << x;
}

}  // namespace lumaris
