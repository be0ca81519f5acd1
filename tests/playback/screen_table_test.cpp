#include <gtest/gtest.h>

#include <optional>
#include <tuple>

#include "tests/playback/playback_test_desk.h"

namespace lumaris {

TEST(Screens, RecordingWalksForwardAndKeepsTheCountOneAheadUpToScreen199) {
  PlaybackTestDesk p;
  EXPECT_EQ(p.status(), " Playback Desk Running");
  p.store().Playback_Fader_Level[3] = 90;
  p.store().Playback_Button_State[17] = true;
  p.desk->Preset_Change(55);  // Preset master at 200
  p.record(1, "Opening", 5, 180);
  const Screen& one = p.store().Screens[1];
  EXPECT_EQ(p.status(), " Cue 1 Recorded");
  EXPECT_EQ(std::tuple(one.Preset[4], one.Fad_Sel[3], one.But_Sel[17], one.Preset_l, one.Name, one.Time),
            std::tuple(180, 90, true, 200, "Opening", 20));
  EXPECT_EQ(std::tuple(p.store().Screen_Count, p.screens().Current_Screen(), p.screens().screen_txt(),
                       p.store().Project_Changed),
            std::tuple(2, 2, "", true)) << "the panel shows the new current screen";

  p.screens().Screen_Prog_Click();
  p.record(1, "Again", 5, 10);
  EXPECT_EQ(p.store().Screen_Count, 3) << "re-recording an early screen leaves the count";
  EXPECT_EQ(p.screens().Current_Screen(), 2);

  p.record(199, "Last", 1, 10);
  EXPECT_EQ(p.screens().Current_Screen(), 199) << "the last screen is written again and again";
  EXPECT_EQ(p.store().Screen_Count, 199);
}

TEST(Screens, RecallPutsTheScreenOnTheDesk) {
  PlaybackTestDesk p;
  p.store().Playback_Fader_Level[2] = 77;
  p.store().Playback_Button_State[0] = true;
  p.desk->Preset_Change(100);
  p.screens().Screen_Num_sel_Change(4);
  p.screens().Auto_next_Click(true);
  p.record(4, "Look", 9, 140);

  p.desk->Clear_All();
  p.desk->Preset_Change(0);
  // Button 0 flashes submix 1 at full: the live output follows the recalled state.
  p.store().Submix[0].Chan[0] = 12;
  p.store().Submix[0].Level[0] = 200;
  p.screens().Recall_Screen(4);
  EXPECT_EQ(p.status(), " Screen 4 Recalled");
  EXPECT_EQ(std::tuple(p.store().Desk_Level[8], p.store().Playback_Fader_Level[2],
                       p.store().Playback_Button_State[0], p.desk->preset_value()),
            std::tuple(140, 77, true, 100));
  EXPECT_EQ(std::tuple(p.screens().Auto_next(), p.screens().screen_txt(), p.live(12), p.panel().buttons()[0].lamp),
            std::tuple(true, "Look", 200, kRed));
}

TEST(Screens, CopyPasteAndClearThroughTheMenu) {
  PlaybackTestDesk p;
  p.record(2, "Source", 3, 33);
  p.screens().Screen_Num_sel_Change(2);
  p.desk->Menu_Click("copy-cue");
  EXPECT_EQ(p.status(), " Cue 2 Copied");
  p.screens().Screen_Num_sel_Change(9);
  p.desk->Menu_Click("paste-cue");
  EXPECT_EQ(p.status(), " Cue 9 Pasted");
  Screen& nine = p.store().Screens[9];
  EXPECT_EQ(std::tuple(nine.Name, nine.Preset[2], p.store().Screen_Count, p.screens().screen_txt()),
            std::tuple("Source", 33, 9, "Source")) << "the panel shows the pasted screen";

  // Clearing empties the look and keeps the screen's colour and delay.
  nine.Colour = "255";
  nine.Delay = 7;
  nine.Next = 2;
  nine.Time = 3;
  nine.Preset_l = 10;
  p.desk->Menu_Click("clear-cue");
  EXPECT_EQ(p.status(), " Cue 9 Cleared");
  EXPECT_EQ(std::tuple(nine.Preset[2], nine.Name, nine.Next, nine.Time, nine.Preset_l, nine.Colour, nine.Delay),
            std::tuple(0, "", 10, 20, 255, "255", 7));
}

struct FiveScreens : PlaybackTestDesk {
  FiveScreens() {
    for (int n = 1; n <= 4; ++n) record(n, "S" + std::to_string(n), n, 10 * n);
    store().Screens[5].Name = "S5";
    store().Project_Changed = false;
  }
  std::string name(int n) { return store().Screens[n].Name; }
};

TEST(Screens, DeleteMovesTheRestDownAndInsertMovesThemUpKeepingNextNumbers) {
  FiveScreens p;
  ASSERT_EQ(p.store().Screen_Count, 5);
  p.screens().Screen_Num_sel_Change(3);
  p.desk->Menu_Click("delete-cue");
  EXPECT_EQ(p.status(), " Cue 3 Deleted");
  EXPECT_EQ(std::tuple(p.name(3), p.name(4), p.name(5), p.store().Screens[5].Next), std::tuple("S4", "S5", "", 6));
  EXPECT_EQ(std::tuple(p.store().Screen_Count, p.store().Project_Changed, p.screens().screen_txt()),
            std::tuple(4, true, "S4"));

  p.store().Screens[2].Next = 4;
  p.screens().Screen_Num_sel_Change(2);
  p.desk->Menu_Click("insert-cue");
  EXPECT_EQ(p.status(), " Cue 2 Inserted");
  EXPECT_EQ(std::tuple(p.name(2), p.name(3), p.name(4), p.name(5), p.store().Screen_Count),
            std::tuple("", "S2", "S4", "S5", 5));
  EXPECT_EQ(std::tuple(p.store().Screens[2].Next, p.store().Screens[3].Next), std::tuple(3, 4))
      << "Next fields are not renumbered";
}

TEST(Screens, InsertAndDeleteAreRefusedOutsideTheUsedTableAndInsertIntoAFullOne) {
  FiveScreens p;
  p.t.console->status().show_playback("before");
  p.screens().Screen_Num_sel_Change(5);  // = Screen_Count
  p.desk->Menu_Click("insert-cue");
  p.desk->Menu_Click("delete-cue");
  EXPECT_EQ(std::tuple(p.store().Screen_Count, p.name(4), p.status(), p.store().Project_Changed),
            std::tuple(5, "S4", "before", false));

  p.store().Screen_Count = 199;
  p.store().Screens[199].Name = "last";
  p.screens().Screen_Num_sel_Change(3);
  p.desk->Menu_Click("insert-cue");
  EXPECT_EQ(p.status(), " Cue 3 Not Inserted, Cue Table Full");
  EXPECT_EQ(std::tuple(p.store().Screen_Count, p.name(3), p.name(199)), std::tuple(199, "S3", "last"));
  p.store().Screen_Count = 198;  // one below full still inserts, moving screen 198 to 199
  p.store().Screens[198].Name = "moved";
  p.desk->Menu_Click("insert-cue");
  EXPECT_EQ(std::tuple(p.name(199), p.store().Screen_Count), std::tuple("moved", 199));

  PlaybackTestDesk fresh;  // one screen in use: delete does nothing
  fresh.store().Screens[0].Name = "zero";
  fresh.desk->table().Delete_Screen(0);
  EXPECT_EQ(fresh.store().Screens[0].Name, "zero");
}

TEST(Screens, PanelEditsWriteThroughToTheCurrentScreen) {
  PlaybackTestDesk p;
  p.screens().Screen_Num_sel_Change(3);
  p.screens().screen_txt_Change("Blue");
  p.screens().Screen_Fade_Time_Change(7.4);
  p.screens().Screen_instant_box_Click(true);
  p.t.dialogs.answer_colour(Rgb{1, 2, 3});
  p.screens().Cue_Colour_Click();
  const Screen& s = p.store().Screens[3];
  EXPECT_EQ(std::tuple(s.Name, s.Time, p.screens().screen_intxt(), s.Instant, s.Colour),
            std::tuple("Blue", 7, "7", true, colour_to_text(Rgb{1, 2, 3})));
  EXPECT_EQ(p.t.dialogs.colour_titles().back(), " Choose a Colour");
  p.screens().Screen_Num_sel_Change(1);
  EXPECT_EQ(p.screens().screen_txt(), "");
  p.screens().Screen_Num_sel_Change(3);
  EXPECT_EQ(std::tuple(p.screens().Cue_Colour(), p.screens().Screen_instant_box()),
            std::tuple(std::optional(Rgb{1, 2, 3}), true));
}

}  // namespace lumaris
