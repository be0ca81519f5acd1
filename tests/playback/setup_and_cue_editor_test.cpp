#include <gtest/gtest.h>

#include "tests/playback/playback_test_desk.h"

namespace lumaris {

TEST(ButtonSetup, OkOrMovingOnStoresWhatTheFunctionUsesAndMarksTheProject) {
  PlaybackTestDesk p;
  p.store().Project_Changed = false;
  ButtonSetup& w = p.desk->button_setup();
  p.desk->Open_Button_Setup(6);
  EXPECT_EQ(w.Fun_set_entries().back(), "Cue");
  w.Fun_set_Click(kFunctionPreset);
  EXPECT_TRUE(w.layout().channels);
  w.Channel_Change(0, "12");
  w.Channel_Change(2, "64");
  w.level_fader_changed(55);
  w.F_Name_Change("Front");
  w.Latch_Click(true);
  w.OK_Click();
  const ButtonFunction& b = p.button(6);
  EXPECT_EQ(b.Function, kFunctionPreset);
  EXPECT_EQ(b.Channel1, 12);
  EXPECT_EQ(b.Channel3, 64);
  EXPECT_EQ(b.Level, 200);
  EXPECT_EQ(b.Name, "Front");
  EXPECT_TRUE(b.Latch);
  EXPECT_EQ(b.Value, 6) << "a Preset keeps the Value it had";
  EXPECT_TRUE(p.store().Project_Changed);
  EXPECT_FALSE(w.visible());
  EXPECT_EQ(p.panel().buttons()[6].caption, "Front");

  w.Open(1);  // a Colour stores its fixed colour only when ticked
  w.Fun_set_Click(kFunctionColour);
  w.Colour_Channel_Change(0, "5");
  w.Colour_Channel_Change(1, "6");
  p.t.dialogs.answer_colour(Rgb{10, 20, 30});
  w.Colour_box_Click();
  EXPECT_EQ(w.Component_Label(2), "30");
  w.Preset_Col_Click(true);
  w.next_clicked();
  EXPECT_EQ(w.element(), 2);
  const ButtonFunction& c = p.button(1);
  EXPECT_EQ(c.Channel1, 5);
  EXPECT_EQ(c.Channel2, 6);
  EXPECT_TRUE(c.Preset);
  EXPECT_EQ(c.Data3, 30);
  EXPECT_EQ(c.Colour, colour_to_text(Rgb{10, 20, 30}));
  p.press(1);  // a flash button: lit while held
  EXPECT_EQ(p.live(5), 10);
  EXPECT_EQ(p.live(6), 20);
}

TEST(ButtonSetup, ChannelsOutsideTheDeskAreRefusedAndPlusAndMinusKeepTheNumberInRange) {
  PlaybackTestDesk p;
  ButtonSetup& w = p.desk->button_setup();
  w.Open(0);  // Submix 1
  w.Channel_Change(1, "65");
  ASSERT_EQ(p.t.dialogs.messages().size(), 1u);
  EXPECT_EQ(p.t.dialogs.messages()[0].text, " Values must be between 0 and 64");
  EXPECT_EQ(w.Channel(1), "0");
  w.Colour_Channel_Change(0, "-1");
  EXPECT_EQ(p.t.dialogs.messages().size(), 2u);
  w.Channel_Change(1, "64");
  EXPECT_EQ(p.t.dialogs.messages().size(), 2u);

  EXPECT_EQ(w.Number(), "1");
  w.Minus_Click();
  EXPECT_EQ(w.Number(), "1");
  for (int i = 0; i < 40; ++i) w.Plus_Click();
  EXPECT_EQ(w.Number(), "32");
  w.Fun_set_Click(kFunctionCue);
  for (int i = 0; i < 200; ++i) w.Plus_Click();
  EXPECT_EQ(w.Number(), "198");
}

TEST(FaderSetup, ASequenceFaderKeepsItsLevelOrStepTimeChoice) {
  PlaybackTestDesk p;
  FaderSetup& w = p.desk->fader_setup();
  p.desk->Menu_Click("fader-setup");
  EXPECT_TRUE(w.visible());
  EXPECT_EQ(w.element(), 0);
  EXPECT_EQ(w.Fun_set_entries().size(), 5u) << "no Cue for faders";
  w.Fun_set_Click(kFunctionSequence);
  w.Plus_Click();
  w.Sequence_Fun_Click(1);
  w.OK_Click();
  EXPECT_EQ(p.fader(0).Function, kFunctionSequence);
  EXPECT_EQ(p.fader(0).Value, 1);
  EXPECT_EQ(p.fader(0).Data1, 1);
  w.Open(0);
  EXPECT_EQ(w.Sequence_Fun(), 1);
  EXPECT_EQ(p.panel().faders()[0].step_time_note, "Seq 2 Step Timing");
}

struct EditedShow : PlaybackTestDesk {
  EditedShow() {
    store().Playback_Button_State[2] = true;
    store().Playback_Fader_Level[1] = 128;
    record(1, "One", 3, 100);
    store().Desk_Level.fill(0);
    store().Playback_Button_State.fill(false);
    store().Playback_Fader_Level.fill(0);
    record(2, "Two", 5, 40);
    store().Project_Changed = false;
  }
  CueEditor& editor() { return desk->cue_editor(); }
};

TEST(CueEditor, ListsTheScreensAndWhatTheSelectedOneHoldsAndItsSliderWritesBack) {
  EditedShow p;
  p.desk->Menu_Click("cue-editor");
  CueEditor& e = p.editor();
  EXPECT_TRUE(e.visible());
  EXPECT_EQ(e.screen_list(), (std::vector<std::string>{"1 One", "2 Two", "3 "}));
  EXPECT_EQ(e.selected_screen(), 1);
  EXPECT_EQ(e.name_box(), "One");
  EXPECT_EQ(e.fade_time_box(), "20");
  EXPECT_EQ(e.Next_Scn_index(), 1);
  EXPECT_EQ(e.content_list(), (std::vector<std::string>{"Preset Channel 3 @ 100", "Button 3 Submix 3  ON",
                                                 "Fader 2 Submix 2  @ 128"}));
  e.content_list_clicked(2);
  EXPECT_EQ(e.item_label(), "Fader 2");
  EXPECT_EQ(e.level_fader(), 127);
  e.level_fader_changed(55);
  EXPECT_EQ(p.store().Screens[1].Fad_Sel[1], 200);
  EXPECT_EQ(e.content_list()[2], "Fader 2 Submix 2  @ 200");
  e.content_list_clicked(0);
  e.level_fader_changed(0);
  EXPECT_EQ(p.store().Screens[1].Preset[2], 255);
  EXPECT_EQ(e.level_box(), "255");
  e.content_list_clicked(1);
  EXPECT_FALSE(e.level_fader_enabled()) << "a button has no level";
  EXPECT_TRUE(p.store().Project_Changed);
}

TEST(CueEditor, UpdateStoresTheFieldsAndTheTableButtonsWorkOnTheSelectedScreen) {
  EditedShow p;
  CueEditor& e = p.editor();
  e.Open(2);  // preselected, as the instant panel opens it
  EXPECT_EQ(e.name_box(), "Two");
  e.name_box_changed("Second");
  e.fade_time_box_changed("7");
  e.Next_Scn_Click(0);
  e.Screen_Delay_Change(12);
  e.auto_box_clicked(true);
  e.update_clicked();
  const Screen& s = p.store().Screens[2];
  EXPECT_EQ(p.status(), " Cue's Updated");
  EXPECT_EQ(s.Name, "Second");
  EXPECT_EQ(s.Time, 7);
  EXPECT_EQ(s.Next, 1);
  EXPECT_EQ(s.Delay, 12);
  EXPECT_TRUE(s.Auto);
  EXPECT_EQ(e.screen_list()[1], "2 Second");
  EXPECT_TRUE(p.store().Project_Changed);

  e.screen_list_clicked(0);
  e.copy_clicked();  // copy screen 1
  e.screen_list_clicked(2);  // screen 3
  e.paste_clicked();
  EXPECT_EQ(p.store().Screens[3].Name, "One");
  EXPECT_EQ(e.screen_list()[2], "3 One");
  e.screen_list_clicked(0);
  e.delete_clicked();
  EXPECT_EQ(p.status(), " Cue 1 Deleted");
  EXPECT_EQ(e.screen_list(), (std::vector<std::string>{"1 Second", "2 One"}));
  e.insert_clicked();
  EXPECT_EQ(e.screen_list()[1], "2 Second");
  e.save_and_exit_clicked();
  EXPECT_FALSE(e.visible());
}

}  // namespace lumaris
