#include <gtest/gtest.h>

#include "playback/instant_cues.h"
#include "playback/run_mode.h"
#include "tests/playback/playback_desk.h"

namespace lumaris {
namespace {

class InstantCuesTest : public ::testing::Test {
 protected:
  InstantCuesTest() { store().Screen_Count = 40; }
  Store& store() { return d.store(); }
  instant_screen& panel() { return d.desk->instant_cues(); }
  void flag(int n, const std::string& name, const std::string& colour = "") {
    store().Screens[n].Instant = true;
    store().Screens[n].Name = name;
    store().Screens[n].Colour = colour;
  }

  PlaybackDesk d;
};

TEST_F(InstantCuesTest, SlotsFollowScreenOrderWithTooltipsAndColours) {
  flag(12, "Blue", "16711680");  // 0x00BBGGRR: blue
  flag(3, "Warm");
  flag(7, "Red", "255");
  d.desk->Instant_screens_Click();
  EXPECT_TRUE(panel().visible());
  EXPECT_EQ(panel().caption(), "Instant Cues");
  EXPECT_EQ(panel().Instant_Map(0), 3);
  EXPECT_EQ(panel().Instant_Map(1), 7);
  EXPECT_EQ(panel().Instant_Map(2), 12);
  EXPECT_EQ(panel().Screen_sel(2).caption, "Blue");
  EXPECT_EQ(panel().Screen_sel(2).tooltip, "3, Screen 12 Blue");
  EXPECT_EQ(panel().Screen_sel(2).colour, (Rgb{0, 0, 255}));
  EXPECT_EQ(panel().Screen_sel(1).colour, (Rgb{255, 0, 0}));
  EXPECT_FALSE(panel().Screen_sel(0).colour.has_value()) << "no colour: button face";
  EXPECT_TRUE(panel().Screen_sel(2).visible);
  EXPECT_FALSE(panel().Screen_sel(3).visible);
}

TEST_F(InstantCuesTest, FourteenSlotsAtMostAndNoneWithoutFlags) {
  d.desk->Instant_screens_Click();
  for (int i = 0; i < instant_screen::kSlots; ++i) EXPECT_FALSE(panel().Screen_sel(i).visible);
  for (int n = 1; n <= 15; ++n) flag(n * 2, "S" + std::to_string(n * 2));
  panel().Refresh_Instant_Panel();
  EXPECT_TRUE(panel().Screen_sel(13).visible);
  EXPECT_EQ(panel().Instant_Map(13), 28) << "the fifteenth flagged screen (30) is left out";
}

TEST_F(InstantCuesTest, LeftClickTakesOnlyInRunMode) {
  flag(3, "Three");
  store().Screens[3].Preset[0] = 99;
  d.desk->Instant_screens_Click();
  panel().Screen_sel_Click(0, MouseButton::Left);
  EXPECT_FALSE(store().Autotake_Running);
  EXPECT_EQ(store().Desk_Level[0], 0) << "outside run mode nothing changes";

  d.desk->run_mode().Run_Switch_Click();
  panel().Screen_sel_Click(0, MouseButton::Left);
  EXPECT_TRUE(store().Autotake_Running);
  EXPECT_EQ(store().Run_Screen, 3);
  panel().Screen_sel_Click(0, MouseButton::Left);
  EXPECT_FALSE(store().Autotake_Running) << "a second click pauses, as Auto Take does";
  EXPECT_TRUE(store().Take_Manual);
}

TEST_F(InstantCuesTest, RightClickOpensTheCueEditorOnTheScreen) {
  flag(5, "Five");
  d.desk->Instant_screens_Click();
  panel().Screen_sel_Click(0, MouseButton::Right);
  EXPECT_TRUE(d.desk->cue_editor().visible());
  EXPECT_EQ(d.desk->cue_editor().selected_screen(), 5);
}

TEST_F(InstantCuesTest, RebuiltWhenRunModeIsEnteredOrLeft) {
  d.desk->Instant_screens_Click();
  flag(4, "Late");
  EXPECT_FALSE(panel().Screen_sel(0).visible);
  d.desk->run_mode().Run_Switch_Click();
  EXPECT_TRUE(panel().Screen_sel(0).visible);
  store().Screens[4].Instant = false;
  d.t.dialogs.answer_message(MessageResult::Ok);
  d.desk->run_mode().Run_Switch_Click();
  EXPECT_FALSE(panel().Screen_sel(0).visible);
}

}  // namespace
}  // namespace lumaris
