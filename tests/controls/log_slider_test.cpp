#include "controls/log_slider.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace lumaris {

namespace {

// An axis from 100 (top, MaxValue) to 600 (bottom, MinValue).
VRLogSlider slider_on_axis() {
  VRLogSlider slider;
  slider.set_axis(100, 500);
  return slider;
}

}  // namespace

TEST(VRLogSlider, DefaultAxisRunsFromATenthToFourMinutes) {
  VRLogSlider slider = slider_on_axis();
  std::vector<double> moves;
  slider.on_UserCursorMove([&](double v) { moves.push_back(v); });
  slider.Set_From_Position(600);
  slider.Set_From_Position(100);
  slider.Set_From_Position(350);
  ASSERT_EQ(moves.size(), 3u);
  EXPECT_DOUBLE_EQ(moves[0], 0.1);
  EXPECT_DOUBLE_EQ(moves[1], 240.0);
  EXPECT_NEAR(moves[2], std::sqrt(24.0), 1e-12);  // 10^((log 0.1 + log 240) / 2)
  EXPECT_NEAR(slider.Value(), 4.898979, 1e-6);
  EXPECT_EQ(slider.lblMin(), "0.1");
  EXPECT_EQ(slider.lblMax(), "240");
}

TEST(VRLogSlider, DragsBeyondTheEndsGiveExactlyTheLimits) {
  VRLogSlider slider = slider_on_axis();
  slider.set_MinValue(0.3);
  slider.set_MaxValue(77.7);
  slider.Set_From_Position(-5000);
  EXPECT_EQ(slider.Value(), 77.7);
  EXPECT_EQ(slider.thumb_top(), 100.0);  // thumb height 0: its top is the clamped position
  slider.Set_From_Position(9000);
  EXPECT_EQ(slider.Value(), 0.3);
  EXPECT_EQ(slider.thumb_top(), 600.0);
}

TEST(VRLogSlider, ProgramValueRaisesOnlyValChangeAndADragBothWithOldThenNew) {
  VRLogSlider slider = slider_on_axis();
  slider.set_thumb_height(20);
  std::vector<double> changes;
  std::vector<double> moves;
  slider.on_ValChange([&](double v) { changes.push_back(v); });
  slider.on_UserCursorMove([&](double v) { moves.push_back(v); });
  slider.set_Value(1.0);
  EXPECT_TRUE(moves.empty());
  EXPECT_EQ(changes, std::vector<double>{1.0});
  // log10(1) - log10(0.1) = 1 of the log10(2400) decades above the bottom.
  EXPECT_NEAR(slider.thumb_top(), 600 - 500 / std::log10(2400.0) - 10, 1e-9);
  slider.Set_From_Position(100);
  EXPECT_EQ(changes, (std::vector<double>{1.0, 1.0}));
  EXPECT_EQ(moves, std::vector<double>{240.0});
}

TEST(VRLogSlider, ScaleFactorKeepsUserUnitsAndScalesWhatTheEventsCarry) {
  VRLogSlider slider = slider_on_axis();
  slider.set_Value(2);
  slider.set_ScaleFactor(10);
  EXPECT_DOUBLE_EQ(slider.Value(), 2.0);
  double moved = 0;
  slider.on_UserCursorMove([&](double v) { moved = v; });
  slider.Set_From_Position(100);
  EXPECT_DOUBLE_EQ(moved, 240.0);
  slider.set_ScaleFactor(0);  // ignored: it would lose every number
  EXPECT_DOUBLE_EQ(slider.Value(), 240.0);
}

TEST(VRLogSlider, LinearAxisAndTheNonPositiveFallbacks) {
  VRLogSlider slider = slider_on_axis();
  slider.set_logAxis(false);
  slider.Set_From_Position(350);
  EXPECT_DOUBLE_EQ(slider.Value(), (0.1 + 240) / 2);

  // A value of 0 on a logarithmic axis has no position of its own: the bottom.
  slider.set_logAxis(true);
  slider.set_Value(0);
  EXPECT_EQ(slider.thumb_top(), 600.0);
  EXPECT_EQ(slider.Value(), 0.0);

  // A range whose minimum lies above its maximum is still logarithmic: halfway
  // between 100 at the bottom and 1 at the top is 10.
  slider.set_MinValue(100);
  slider.set_MaxValue(1);
  slider.Set_From_Position(350);
  EXPECT_NEAR(slider.Value(), 10.0, 1e-12);
  slider.set_Value(10);
  EXPECT_NEAR(slider.thumb_top(), 350.0, 1e-9);
  EXPECT_EQ(slider.ticks().size(), 19u);  // 1..9, 10..90 and 100
  EXPECT_DOUBLE_EQ(slider.ticks().front().position, 100.0);

  // A minimum of 0 makes the logarithmic axis map linearly.
  slider.set_MaxValue(240);
  slider.set_MinValue(0);
  slider.Set_From_Position(350);
  EXPECT_DOUBLE_EQ(slider.Value(), 120.0);
  EXPECT_EQ(slider.lblMin(), "0");
  EXPECT_TRUE(slider.ticks().empty());
}

TEST(VRLogSlider, TicksMarkEveryUnitOfEachDecadeUpToTheMaximum) {
  VRLogSlider slider = slider_on_axis();
  const auto ticks = slider.ticks();
  // 0.1..0.9, 1..9, 10..90, 100 and 200: 300 and above lie beyond 240.
  ASSERT_EQ(ticks.size(), 29u);
  EXPECT_DOUBLE_EQ(ticks.front().position, 600.0);
  EXPECT_TRUE(ticks[9].decade);
  EXPECT_NEAR(ticks[9].position, 600 - 500 / std::log10(2400.0), 1e-9);  // the 1 s tick
}

TEST(SignificantText, RoundsToTheDigitsOrSwitchesToExponentForm) {
  EXPECT_EQ(significant_text(0, 3), "0");
  EXPECT_EQ(significant_text(4.898979, 3), "4.9");
  EXPECT_EQ(significant_text(12.34, 3), "12.3");
  EXPECT_EQ(significant_text(999.4, 3), "999");
  EXPECT_EQ(significant_text(-2.5, 3), "-2.5");
  EXPECT_EQ(significant_text(1.375, 3), "1.38");  // halves to even
  EXPECT_EQ(significant_text(1.125, 3), "1.12");
  EXPECT_EQ(significant_text(1234, 3), "1.234E+03");
  EXPECT_EQ(significant_text(0.0001, 3), "1.000E-04");
}

}  // namespace lumaris
