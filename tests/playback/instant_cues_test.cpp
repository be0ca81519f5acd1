#include <gtest/gtest.h>

#include "playback/instant_cues.h"
#include "playback/run_mode.h"
#include "tests/playback/playback_test_desk.h"

namespace lumaris {
namespace {

class InstantCuesTest : public ::testing::Test {
 protected:
  InstantCuesTest() { store().Screen_Count = 40; }
  Store& store() { return d.store(); }
  InstantCues& panel() { return d.desk->instant_cues(); }
  void flag(int n, const std::string& name, const std::string& colour = "") {
    store().Screens[n].Instant = true;
    store().Screens[n].Name = name;
    store().Screens[n].Colour = colour;
  }

  PlaybackTestDesk d;
};

TEST_F(InstantCuesTest, SlotsFollowScreenOrderWithTooltipsAndColoursFourteenAtMost) {
  flag(12, "Blue", "16711680");  // 0x00BBGGRR: blue
  flag(3, "Warm");
  flag(7, "Red", "255");
  flag(40, "Past the show");  // Screen_Count is 40: screens 1..39
  d.desk->Instant_screens_Click();
  EXPECT_TRUE(panel().visible());
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

  for (int n = 13; n <= 27; ++n) flag(n, "S" + std::to_string(n));
  panel().Refresh_Instant_Panel();
  EXPECT_TRUE(panel().Screen_sel(13).visible);
  EXPECT_EQ(panel().Instant_Map(13), 23) << "flagged screens past the fourteenth are left out";
}

TEST_F(InstantCuesTest, LeftClickTakesInRunModeOnlyRightClickEditsAndRunModeRebuildsTheSlots) {
  flag(3, "Three");
  store().Screens[3].Preset[0] = 99;
  d.desk->Instant_screens_Click();
  panel().Screen_sel_Click(0, MouseButton::Left);
  EXPECT_FALSE(store().Autotake_Running);
  EXPECT_EQ(store().Desk_Level[0], 0) << "outside run mode nothing changes";
  panel().Screen_sel_Click(0, MouseButton::Right);
  EXPECT_TRUE(d.desk->cue_editor().visible());
  EXPECT_EQ(d.desk->cue_editor().selected_screen(), 3);

  flag(4, "Late");
  EXPECT_FALSE(panel().Screen_sel(1).visible);
  d.desk->run_mode().Run_Switch_Click();
  EXPECT_TRUE(panel().Screen_sel(1).visible) << "rebuilt on entering run mode";
  panel().Screen_sel_Click(1, MouseButton::Left);
  EXPECT_TRUE(store().Autotake_Running);
  EXPECT_EQ(store().Run_Screen, 4);
  panel().Screen_sel_Click(1, MouseButton::Left);
  EXPECT_FALSE(store().Autotake_Running) << "a second click pauses, as Auto Take does";
  EXPECT_TRUE(store().Take_Manual);

  store().Screens[4].Instant = false;
  d.t.dialogs.answer_message(MessageResult::Ok);
  d.desk->run_mode().Run_Switch_Click();
  EXPECT_FALSE(panel().Screen_sel(1).visible) << "rebuilt on leaving run mode";
}

}  // namespace
}  // namespace lumaris
