#include <gtest/gtest.h>

#include "controls/prog_bar.h"

namespace lumaris {
namespace {

TEST(ProgBar, ValueIsKeptWithinTheRangeAndRangeChangesPullItIn) {
  ProgBar bar;
  bar.set_Value(150);
  EXPECT_EQ(bar.Value(), 100);
  EXPECT_DOUBLE_EQ(bar.filled_fraction(), 1.0);
  bar.set_Value(-5);
  EXPECT_EQ(bar.Value(), 0);
  EXPECT_DOUBLE_EQ(bar.filled_fraction(), 0.0);
  bar.set_Value(20);
  bar.set_Min(30);
  EXPECT_EQ(bar.Value(), 30);
  bar.set_Value(90);
  bar.set_Max(60);
  EXPECT_EQ(bar.Value(), 60);
  bar.set_Value(45);
  EXPECT_DOUBLE_EQ(bar.filled_fraction(), 0.5);  // 15 of 30 units
  bar.set_Value(31);
  EXPECT_NEAR(bar.filled_fraction(), 1.0 / 30, 1e-12);
}

TEST(ProgBar, EmptyOrInvertedRangeShowsNoBar) {
  ProgBar bar;
  bar.set_Max(40);
  bar.set_Min(40);
  EXPECT_EQ(bar.Value(), 40);
  EXPECT_DOUBLE_EQ(bar.filled_fraction(), 0.0);
  bar.set_Min(70);
  EXPECT_EQ(bar.Value(), 70);
  EXPECT_DOUBLE_EQ(bar.filled_fraction(), 0.0);
}

TEST(ProgBar, OnlyRealChangesCountAsRevisions) {
  ProgBar bar;
  const unsigned start = bar.revision();
  bar.set_Value(50);
  bar.set_Vertical(false);
  bar.set_Value(500);  // clamped to 100
  EXPECT_EQ(bar.revision(), start + 1);
  bar.set_Value(100);
  EXPECT_EQ(bar.revision(), start + 1);
  bar.set_BarColor(0x0000FF);
  EXPECT_EQ(bar.revision(), start + 2);
}

TEST(ProgBar, SettingsRoundTripAndMissingOnesTakeTheDefaults) {
  ProgBar bar;
  bar.set_BackColor(0x112233);
  bar.set_Vertical(true);
  bar.set_Max(255);
  bar.set_Min(5);
  bar.set_Value(77);
  bar.set_BorderStyle(0);
  PropertyBag bag;
  bar.save(bag);
  EXPECT_EQ(bag.at("Vertical"), -1);
  ProgBar copy;
  copy.load(bag);
  EXPECT_EQ(copy.BackColor(), 0x112233u);
  EXPECT_EQ(copy.BarColor(), 0x8000000Du);
  EXPECT_TRUE(copy.Vertical());
  EXPECT_EQ(copy.Min(), 5);
  EXPECT_EQ(copy.Value(), 77);
  EXPECT_EQ(copy.BorderStyle(), 0);
  copy.load(PropertyBag{{"Max", 10}, {"Value", 70}});
  EXPECT_FALSE(copy.Vertical());
  EXPECT_EQ(copy.Value(), 10);
  EXPECT_EQ(copy.BackColor(), 0x8000000Fu);
}

}  // namespace
}  // namespace lumaris
