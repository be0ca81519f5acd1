#include <gtest/gtest.h>

#include <optional>
#include <tuple>

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
  EXPECT_EQ(std::tuple(panel().visible(), panel().Instant_Map(0), panel().Instant_Map(1), panel().Instant_Map(2)),
            std::tuple(true, 3, 7, 12));
  EXPECT_EQ(panel().Screen_sel(2).caption + "|" + panel().Screen_sel(2).tooltip, "Blue|3, Screen 12 Blue");
  EXPECT_EQ(std::tuple(panel().Screen_sel(2).colour, panel().Screen_sel(1).colour, panel().Screen_sel(0).colour),
            std::tuple(std::optional(Rgb{0, 0, 255}), std::optional(Rgb{255, 0, 0}), std::optional<Rgb>()))
      << "no colour: button face";
  EXPECT_EQ(std::tuple(panel().Screen_sel(2).visible, panel().Screen_sel(3).visible), std::tuple(true, false));

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
  EXPECT_EQ(std::tuple(store().Autotake_Running, store().Desk_Level[0]), std::tuple(false, 0))
      << "outside run mode nothing changes";
  panel().Screen_sel_Click(0, MouseButton::Right);
  EXPECT_EQ(std::tuple(d.desk->cue_editor().visible(), d.desk->cue_editor().selected_screen()), std::tuple(true, 3));

  flag(4, "Late");
  EXPECT_FALSE(panel().Screen_sel(1).visible);
  d.desk->run_mode().Run_Switch_Click();
  EXPECT_TRUE(panel().Screen_sel(1).visible) << "rebuilt on entering run mode";
  panel().Screen_sel_Click(1, MouseButton::Left);
  EXPECT_EQ(std::tuple(store().Autotake_Running, store().Run_Screen), std::tuple(true, 4));
  panel().Screen_sel_Click(1, MouseButton::Left);
  EXPECT_EQ(std::tuple(store().Autotake_Running, store().Take_Manual), std::tuple(false, true))
      << "a second click pauses, as Auto Take does";

  store().Screens[4].Instant = false;
  d.t.dialogs.answer_message(MessageResult::Ok);
  d.desk->run_mode().Run_Switch_Click();
  EXPECT_FALSE(panel().Screen_sel(1).visible) << "rebuilt on leaving run mode";
}

}  // namespace
}  // namespace lumaris
