#include <gtest/gtest.h>

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
  EXPECT_EQ(one.Preset[4], 180);
  EXPECT_EQ(one.Fad_Sel[3], 90);
  EXPECT_TRUE(one.But_Sel[17]);
  EXPECT_EQ(one.Preset_l, 200);
  EXPECT_EQ(one.Name, "Opening");
  EXPECT_EQ(one.Time, 20);
  EXPECT_EQ(p.store().Screen_Count, 2);
  EXPECT_EQ(p.screens().Current_Screen(), 2);
  EXPECT_EQ(p.screens().screen_txt(), "") << "the panel shows the new current screen";
  EXPECT_TRUE(p.store().Project_Changed);

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
  EXPECT_EQ(p.store().Desk_Level[8], 140);
  EXPECT_EQ(p.store().Playback_Fader_Level[2], 77);
  EXPECT_TRUE(p.store().Playback_Button_State[0]);
  EXPECT_EQ(p.desk->preset_value(), 100);
  EXPECT_TRUE(p.screens().Auto_next());
  EXPECT_EQ(p.screens().screen_txt(), "Look");
  EXPECT_EQ(p.live(12), 200);
  EXPECT_EQ(p.panel().buttons()[0].lamp, kRed);
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
  EXPECT_EQ(nine.Name, "Source");
  EXPECT_EQ(nine.Preset[2], 33);
  EXPECT_EQ(p.store().Screen_Count, 9);
  EXPECT_EQ(p.screens().screen_txt(), "Source") << "the panel shows the pasted screen";

  // Clearing empties the look and keeps the screen's colour and delay.
  nine.Colour = "255";
  nine.Delay = 7;
  nine.Next = 2;
  nine.Time = 3;
  nine.Preset_l = 10;
  p.desk->Menu_Click("clear-cue");
  EXPECT_EQ(p.status(), " Cue 9 Cleared");
  EXPECT_EQ(nine.Preset[2], 0);
  EXPECT_EQ(nine.Name, "");
  EXPECT_EQ(nine.Next, 10);
  EXPECT_EQ(nine.Time, 20);
  EXPECT_EQ(nine.Preset_l, 255);
  EXPECT_EQ(nine.Colour, "255");
  EXPECT_EQ(nine.Delay, 7);
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
  EXPECT_EQ(p.name(3), "S4");
  EXPECT_EQ(p.name(4), "S5");
  EXPECT_EQ(p.name(5), "");
  EXPECT_EQ(p.store().Screens[5].Next, 6);
  EXPECT_EQ(p.store().Screen_Count, 4);
  EXPECT_TRUE(p.store().Project_Changed);
  EXPECT_EQ(p.screens().screen_txt(), "S4");

  p.store().Screens[2].Next = 4;
  p.screens().Screen_Num_sel_Change(2);
  p.desk->Menu_Click("insert-cue");
  EXPECT_EQ(p.status(), " Cue 2 Inserted");
  EXPECT_EQ(p.name(2), "");
  EXPECT_EQ(p.store().Screens[2].Next, 3);
  EXPECT_EQ(p.name(3), "S2");
  EXPECT_EQ(p.store().Screens[3].Next, 4) << "Next fields are not renumbered";
  EXPECT_EQ(p.name(4), "S4");
  EXPECT_EQ(p.name(5), "S5");
  EXPECT_EQ(p.store().Screen_Count, 5);
}

TEST(Screens, InsertAndDeleteAreRefusedOutsideTheUsedTableAndInsertIntoAFullOne) {
  FiveScreens p;
  p.t.console->status().show_playback("before");
  p.screens().Screen_Num_sel_Change(5);  // = Screen_Count
  p.desk->Menu_Click("insert-cue");
  p.desk->Menu_Click("delete-cue");
  EXPECT_EQ(p.store().Screen_Count, 5);
  EXPECT_EQ(p.name(4), "S4");
  EXPECT_EQ(p.status(), "before");
  EXPECT_FALSE(p.store().Project_Changed);

  p.store().Screen_Count = 199;
  p.store().Screens[199].Name = "last";
  p.screens().Screen_Num_sel_Change(3);
  p.desk->Menu_Click("insert-cue");
  EXPECT_EQ(p.status(), " Cue 3 Not Inserted, Cue Table Full");
  EXPECT_EQ(p.store().Screen_Count, 199);
  EXPECT_EQ(p.name(3), "S3");
  EXPECT_EQ(p.name(199), "last");
  p.store().Screen_Count = 198;  // one below full still inserts, moving screen 198 to 199
  p.store().Screens[198].Name = "moved";
  p.desk->Menu_Click("insert-cue");
  EXPECT_EQ(p.name(199), "moved");
  EXPECT_EQ(p.store().Screen_Count, 199);

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
  EXPECT_EQ(s.Name, "Blue");
  EXPECT_EQ(s.Time, 7);
  EXPECT_EQ(p.screens().screen_intxt(), "7");
  EXPECT_TRUE(s.Instant);
  EXPECT_EQ(s.Colour, colour_to_text(Rgb{1, 2, 3}));
  EXPECT_EQ(p.t.dialogs.colour_titles().back(), " Choose a Colour");
  p.screens().Screen_Num_sel_Change(1);
  EXPECT_EQ(p.screens().screen_txt(), "");
  p.screens().Screen_Num_sel_Change(3);
  EXPECT_EQ(p.screens().Cue_Colour(), (Rgb{1, 2, 3}));
  EXPECT_TRUE(p.screens().Screen_instant_box());
}

}  // namespace lumaris
