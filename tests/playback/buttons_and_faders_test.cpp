#include <gtest/gtest.h>

#include "playback/run_mode.h"
#include "tests/playback/playback_test_desk.h"

namespace lumaris {

namespace {

// Submix 1 (Value 0) holds channel 7 at full.
void one_channel_submix(Store& store) {
  store.Submix[0].Chan[0] = 7;
  store.Submix[0].Level[0] = 255;
}

}  // namespace

TEST(PlaybackButtons, ASubmixButtonLightsWhileHeldOrTogglesWhenLatched) {
  PlaybackTestDesk p;
  one_channel_submix(p.store());
  p.button(0).Level = 128;
  p.press(0);
  EXPECT_EQ(p.live(7), 128);
  EXPECT_EQ(p.panel().buttons()[0].lamp, kRed);
  p.release(0);
  EXPECT_EQ(p.live(7), 0);
  EXPECT_EQ(p.panel().buttons()[0].lamp, kLampOff);

  p.button(0).Latch = true;
  p.click(0);
  EXPECT_TRUE(p.store().Playback_Button_State[0]);
  EXPECT_EQ(p.live(7), 128);
  p.click(0);
  EXPECT_FALSE(p.store().Playback_Button_State[0]);
  EXPECT_EQ(p.live(7), 0);
}

TEST(PlaybackButtons, OfTwoPresetButtonsOnAChannelTheHigherNumberWinsAndAFaderRaisesOverThem) {
  PlaybackTestDesk p;
  PlaybackTestDesk::on_channels(p.set_button(3, kFunctionPreset, 0, 40, true), 20);
  PlaybackTestDesk::on_channels(p.set_button(9, kFunctionPreset, 0, 10, true), 20);
  p.click(9);
  p.click(3);
  EXPECT_EQ(p.live(20), 10);
  PlaybackTestDesk::on_channels(p.set_fader(0, kFunctionPreset, 0), 0, 20);
  p.fader_to(0, 30);
  EXPECT_EQ(p.live(20), 30);
}

TEST(PlaybackFaders, PresetColourAndSubmixFadersScaleWhatTheyHold) {
  PlaybackTestDesk p;
  one_channel_submix(p.store());
  PlaybackTestDesk::on_channels(p.set_fader(1, kFunctionPreset, 0, 200), 4, 0, 64);
  FaderFunction& colour = PlaybackTestDesk::on_channels(p.set_fader(2, kFunctionColour, 0), 1, 2, 3);
  colour.Data1 = 255;
  colour.Data3 = 100;
  p.fader_to(1, 128);
  p.fader_to(2, 51);
  p.fader_to(0, 51);  // the start-up fader 1 plays submix 1
  EXPECT_EQ(p.live(4), 100);
  EXPECT_EQ(p.live(64), 100);
  EXPECT_EQ(p.store().Playback_Fader_Level[1], 128);
  EXPECT_EQ(p.panel().faders()[1].fader, 127);
  EXPECT_EQ(p.live(1), 51);
  EXPECT_EQ(p.live(2), 0) << "a component of 0 drives nothing";
  EXPECT_EQ(p.live(3), 20);
  EXPECT_EQ(p.live(7), 51);
}

TEST(PlaybackButtons, AColourButtonWithoutAFixedColourAsksAtEveryPressFromOff) {
  PlaybackTestDesk p;
  ButtonFunction& b = PlaybackTestDesk::on_channels(p.set_button(5, kFunctionColour, 0, 0, true), 10, 11, 12);
  PlaybackTestDesk::on_channels(p.set_button(4, kFunctionPreset, 0, 40, true), 11);
  p.click(4);
  p.t.dialogs.answer_colour(Rgb{255, 0, 60});
  p.click(5);
  EXPECT_EQ(p.t.dialogs.colour_titles(), std::vector<std::string>{" Choose a Colour"});
  EXPECT_EQ(p.live(10), 255);
  EXPECT_EQ(p.live(11), 40) << "a component of 0 leaves its channel to the buttons before";
  EXPECT_EQ(p.live(12), 60);
  EXPECT_EQ(p.panel().buttons()[5].caption_colour, (Rgb{255, 0, 60}));
  p.click(5);  // off: no question
  EXPECT_EQ(p.t.dialogs.colour_titles().size(), 1u);
  EXPECT_EQ(p.live(10), 0);
  p.click(5);  // cancelled: stays off
  EXPECT_EQ(p.t.dialogs.colour_titles().size(), 2u);
  EXPECT_FALSE(p.store().Playback_Button_State[5]);

  b.Preset = true;  // "Preset Colour ?": fixed, never asks
  p.click(5);
  EXPECT_EQ(p.t.dialogs.colour_titles().size(), 2u);
  EXPECT_TRUE(p.store().Playback_Button_State[5]);
}

TEST(PlaybackButtons, CueButtonsRecallOutsideRunModeAndTakeInRunMode) {
  PlaybackTestDesk p;
  p.record(8, "Eight", 30, 99);
  p.store().Desk_Level.fill(0);
  p.set_button(2, kFunctionCue, 8);
  p.desk->Refresh_Playback_Panel();
  EXPECT_EQ(p.panel().buttons()[2].caption, "Eight");
  EXPECT_EQ(p.panel().buttons()[2].function_caption, "Cue");
  p.press(2);
  EXPECT_EQ(p.store().Desk_Level[29], 99);
  EXPECT_EQ(p.screens().Current_Screen(), 8);
  EXPECT_EQ(p.status(), " Screen 8 Recalled");
  EXPECT_EQ(p.panel().buttons()[2].lamp, kRed);
  p.release(2);
  EXPECT_EQ(p.panel().buttons()[2].lamp, kLampOff);

  p.desk->run_mode().Run_Switch_Click();
  p.press(2);
  EXPECT_TRUE(p.store().Autotake_Running);
  EXPECT_EQ(p.store().Run_Screen, 8);
  EXPECT_EQ(p.store().Desk_Level[29], 0) << "no recall in run mode: the take crossfades";
}

TEST(PlaybackPanel, CaptionsFollowTheFunctions) {
  PlaybackTestDesk p;
  Store& s = p.store();
  s.Submix[1].Name = "Wash";
  s.Submix[1].Colour = "255";
  s.Chase_Table[4].Colour = "65280";
  p.button(1).Value = 1;
  p.set_button(2, kFunctionSequence, 4);
  p.set_button(3, kFunctionPreset, 0).Name = "Spot";
  p.set_fader(3, kFunctionSequence, 2).Data1 = 1;
  p.desk->Refresh_Playback_Panel();
  const auto& b = p.panel().buttons();
  EXPECT_EQ(b[0].caption, "Submix 1");
  EXPECT_EQ(b[1].caption, "Wash");
  EXPECT_EQ(b[1].caption_colour, (Rgb{255, 0, 0}));
  EXPECT_EQ(b[2].caption, "Seq 5");
  EXPECT_EQ(b[2].caption_colour, (Rgb{0, 255, 0}));
  EXPECT_EQ(b[2].function_caption, "Seq");
  EXPECT_EQ(b[3].caption, "Spot");
  EXPECT_EQ(b[3].function_caption, "Preset");
  const auto& f = p.panel().faders();
  EXPECT_EQ(f[3].caption, "Seq 3");
  EXPECT_EQ(f[3].step_time_note, "Seq 3 Step Timing");
  EXPECT_EQ(f[4].caption, "Submix 5");
  EXPECT_EQ(f[4].step_time_note, "");

  p.desk->pages().Inc_Page_Click();  // page 2: everything Off
  EXPECT_EQ(p.panel().buttons()[0].function_caption, "Off");
  EXPECT_EQ(p.panel().faders()[0].function_caption, "Off");
}

TEST(PlaybackPanel, ClearAllAndClearEmptyTheDeskAndSaySo) {
  PlaybackTestDesk p;
  one_channel_submix(p.store());
  p.button(0).Latch = true;
  p.click(0);
  p.fader_to(0, 200);
  p.store().Desk_Level[3] = 50;
  p.desk->Submix_Clear();
  EXPECT_EQ(p.status(), " Submixes Cleared ");
  EXPECT_EQ(p.store().Playback_Fader_Level[0], 0);
  EXPECT_TRUE(p.store().Playback_Button_State[0]) << "Clear leaves the buttons";
  EXPECT_EQ(p.store().Desk_Level[3], 50);
  EXPECT_EQ(p.live(7), 255);

  p.desk->Clear_All();
  EXPECT_EQ(p.status(), " Desk Cleared ");
  EXPECT_FALSE(p.store().Playback_Button_State[0]);
  EXPECT_EQ(p.store().Desk_Level[3], 0);
  EXPECT_EQ(p.live(7), 0);
  EXPECT_EQ(p.panel().buttons()[0].lamp, kLampOff);
}

TEST(PlaybackPanel, PagesStepThroughFiveNameThemselvesAndSetUpTheirOwnElements) {
  PlaybackTestDesk p;
  PageControls& pages = p.desk->pages();
  EXPECT_FALSE(pages.Dec_Page_enabled());
  EXPECT_EQ(pages.Page_Details(), "Page 1");
  pages.Inc_Page_Click();
  p.panel().Button_Press(3, MouseButton::Right);
  EXPECT_TRUE(p.desk->button_setup().visible()) << "the right mouse button opens the set-up";
  EXPECT_EQ(p.desk->button_setup().element(), 19);
  EXPECT_FALSE(p.store().Playback_Button_State[19]);
  p.panel().Fader_Setup_Click(11);
  EXPECT_TRUE(p.desk->fader_setup().visible());
  EXPECT_EQ(p.desk->fader_setup().element(), 23);

  for (int i = 0; i < 5; ++i) pages.Inc_Page_Click();
  EXPECT_EQ(p.store().Playback_Page, 4);
  EXPECT_FALSE(pages.Inc_Page_enabled());
  EXPECT_TRUE(pages.Dec_Page_enabled());
  EXPECT_EQ(pages.Page_Number(), "5");
  EXPECT_EQ(p.panel().button_number(0), 64);
  pages.Page_Details_Change("Page 5");
  EXPECT_EQ(p.store().Pages[4].Name, "") << "the default caption is not a name";
  pages.Page_Details_Change("Finale");
  EXPECT_EQ(p.store().Pages[4].Name, "Finale");
  pages.Page_text_Change("House lights at the end");
  EXPECT_EQ(p.store().Pages[4].Text, "House lights at the end");
  pages.Dec_Page_Click();
  EXPECT_EQ(pages.Page_Details(), "Page 4");
  EXPECT_EQ(pages.Page_text(), "");
  pages.Inc_Page_Click();
  EXPECT_EQ(pages.Page_Details(), "Finale");
  p.desk->Menu_Click("page-text");
  EXPECT_TRUE(pages.Page_Text_Shown());
}

TEST(PlaybackDeskMasters, MainStaysEqualOnBothDesks) {
  PlaybackTestDesk p;
  p.desk->Main_Change(90);
  EXPECT_EQ(p.t.console->main_desk().main_value(), 90);
  p.t.console->main_desk().Main_Change(20);
  EXPECT_EQ(p.desk->main_value(), 20);
}

}  // namespace lumaris
