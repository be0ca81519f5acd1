#include <gtest/gtest.h>

#include <tuple>

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
  EXPECT_EQ(std::tuple(b.Function, b.Channel1, b.Channel3, b.Level, b.Name, b.Latch, b.Value),
            std::tuple(kFunctionPreset, 12, 64, 200, "Front", true, 6)) << "a Preset keeps the Value it had";
  EXPECT_EQ(std::tuple(p.store().Project_Changed, w.visible(), p.panel().buttons()[6].caption),
            std::tuple(true, false, "Front"));

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
  EXPECT_EQ(std::tuple(c.Channel1, c.Channel2, c.Preset, c.Data3, c.Colour),
            std::tuple(5, 6, true, 30, colour_to_text(Rgb{10, 20, 30})));
  p.press(1);  // a flash button: lit while held
  EXPECT_EQ(std::tuple(p.live(5), p.live(6)), std::tuple(10, 20));
}

TEST(ButtonSetup, ChannelsOutsideTheDeskAreRefusedAndPlusAndMinusKeepTheNumberInRange) {
  PlaybackTestDesk p;
  ButtonSetup& w = p.desk->button_setup();
  w.Open(0);  // Submix 1
  w.Channel_Change(1, "65");
  ASSERT_EQ(p.t.dialogs.messages().size(), 1u);
  EXPECT_EQ(p.t.dialogs.messages()[0].text + "|" + w.Channel(1), " Values must be between 0 and 64|0");
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
  EXPECT_EQ(std::tuple(w.visible(), w.element(), w.Fun_set_entries().size()), std::tuple(true, 0, 5u))
      << "no Cue for faders";
  w.Fun_set_Click(kFunctionSequence);
  w.Plus_Click();
  w.Sequence_Fun_Click(1);
  w.OK_Click();
  EXPECT_EQ(std::tuple(p.fader(0).Function, p.fader(0).Value, p.fader(0).Data1), std::tuple(kFunctionSequence, 1, 1));
  w.Open(0);
  EXPECT_EQ(std::tuple(w.Sequence_Fun(), p.panel().faders()[0].step_time_note), std::tuple(1, "Seq 2 Step Timing"));
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
  EXPECT_EQ(e.screen_list(), (std::vector<std::string>{"1 One", "2 Two", "3 "}));
  EXPECT_EQ(std::tuple(e.visible(), e.selected_screen(), e.name_box(), e.fade_time_box(), e.Next_Scn_index()),
            std::tuple(true, 1, "One", "20", 1));
  EXPECT_EQ(e.content_list(), (std::vector<std::string>{"Preset Channel 3 @ 100", "Button 3 Submix 3  ON",
                                                 "Fader 2 Submix 2  @ 128"}));
  e.content_list_clicked(2);
  EXPECT_EQ(std::tuple(e.item_label(), e.level_fader()), std::tuple("Fader 2", 127));
  e.level_fader_changed(55);
  EXPECT_EQ(std::tuple(p.store().Screens[1].Fad_Sel[1], e.content_list()[2]),
            std::tuple(200, "Fader 2 Submix 2  @ 200"));
  e.content_list_clicked(0);
  e.level_fader_changed(0);
  EXPECT_EQ(std::tuple(p.store().Screens[1].Preset[2], e.level_box()), std::tuple(255, "255"));
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
  EXPECT_EQ(std::tuple(s.Name, s.Time, s.Next, s.Delay, s.Auto, e.screen_list()[1], p.store().Project_Changed),
            std::tuple("Second", 7, 1, 12, true, "2 Second", true));

  e.screen_list_clicked(0);
  e.copy_clicked();  // copy screen 1
  e.screen_list_clicked(2);  // screen 3
  e.paste_clicked();
  EXPECT_EQ(std::tuple(p.store().Screens[3].Name, e.screen_list()[2]), std::tuple("One", "3 One"));
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
