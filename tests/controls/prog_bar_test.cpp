#include <gtest/gtest.h>

#include <tuple>

#include "controls/prog_bar.h"

namespace lumaris {
namespace {

TEST(ProgBar, ValueIsKeptWithinTheRangeAndAnEmptyOrInvertedRangeShowsNoBar) {
  ProgBar bar;
  const auto shows = [&bar](int value, double fraction) {
    EXPECT_EQ(bar.Value(), value);
    EXPECT_NEAR(bar.filled_fraction(), fraction, 1e-12) << "at value " << value;
  };
  bar.set_Value(150);
  shows(100, 1.0);
  bar.set_Value(-5);
  shows(0, 0.0);
  bar.set_Value(20);
  bar.set_Min(30);  // a new range pulls the value in
  shows(30, 0.0);
  bar.set_Value(90);
  bar.set_Max(60);
  shows(60, 1.0);
  bar.set_Value(45);
  shows(45, 0.5);  // 15 of 30 units
  bar.set_Value(31);
  shows(31, 1.0 / 30);
  bar.set_Max(40);
  bar.set_Min(70);  // Min above Max: the value sits at Min
  shows(70, 0.0);
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
  EXPECT_EQ(std::tuple(copy.BackColor(), copy.BarColor(), copy.Vertical(), copy.Min(), copy.Value(),
                       copy.BorderStyle()),
            std::tuple(0x112233u, 0x8000000Du, true, 5, 77, 0));
  copy.load(PropertyBag{{"Max", 10}, {"Value", 70}});
  EXPECT_EQ(std::tuple(copy.Vertical(), copy.Value(), copy.BackColor()), std::tuple(false, 10, 0x8000000Fu));
}

}  // namespace
}  // namespace lumaris
