#include <gtest/gtest.h>

#include <optional>
#include <tuple>
#include <utility>

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
  EXPECT_EQ(std::tuple(p.live(7), p.panel().buttons()[0].lamp), std::tuple(128, kRed));
  p.release(0);
  EXPECT_EQ(std::tuple(p.live(7), p.panel().buttons()[0].lamp), std::tuple(0, kLampOff));

  p.button(0).Latch = true;
  p.click(0);
  EXPECT_EQ(std::tuple(p.store().Playback_Button_State[0], p.live(7)), std::tuple(true, 128));
  p.click(0);
  EXPECT_EQ(std::tuple(p.store().Playback_Button_State[0], p.live(7)), std::tuple(false, 0));
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
  EXPECT_EQ(std::tuple(p.live(4), p.live(64), p.live(7)), std::tuple(100, 100, 51));
  EXPECT_EQ(p.panel().faders()[1].fader, 127);
  EXPECT_EQ(std::tuple(p.live(1), p.live(2), p.live(3)), std::tuple(51, 0, 20)) << "a component of 0 drives nothing";
}

TEST(PlaybackButtons, AColourButtonWithoutAFixedColourAsksAtEveryPressFromOff) {
  PlaybackTestDesk p;
  ButtonFunction& b = PlaybackTestDesk::on_channels(p.set_button(5, kFunctionColour, 0, 0, true), 10, 11, 12);
  PlaybackTestDesk::on_channels(p.set_button(4, kFunctionPreset, 0, 40, true), 11);
  p.click(4);
  p.t.dialogs.answer_colour(Rgb{255, 0, 60});
  p.click(5);
  EXPECT_EQ(p.t.dialogs.colour_titles(), std::vector<std::string>{" Choose a Colour"});
  EXPECT_EQ(std::tuple(p.live(10), p.live(11), p.live(12)), std::tuple(255, 40, 60))
      << "a component of 0 leaves its channel to the buttons before";
  EXPECT_EQ(p.panel().buttons()[5].caption_colour, (Rgb{255, 0, 60}));
  p.click(5);  // off: no question
  EXPECT_EQ(std::tuple(p.t.dialogs.colour_titles().size(), p.live(10)), std::tuple(1u, 0));
  p.click(5);  // cancelled: stays off
  EXPECT_FALSE(p.store().Playback_Button_State[5]);

  b.Preset = true;  // "Preset Colour ?": fixed, never asks
  p.click(5);
  EXPECT_EQ(std::tuple(p.t.dialogs.colour_titles().size(), p.store().Playback_Button_State[5]), std::tuple(2u, true));
}

TEST(PlaybackButtons, CueButtonsRecallOutsideRunModeAndTakeInRunMode) {
  PlaybackTestDesk p;
  p.record(8, "Eight", 30, 99);
  p.store().Desk_Level.fill(0);
  p.set_button(2, kFunctionCue, 8);
  p.desk->Refresh_Playback_Panel();
  EXPECT_EQ(p.panel().buttons()[2].caption + "|" + p.panel().buttons()[2].function_caption, "Eight|Cue");
  p.press(2);
  EXPECT_EQ(std::tuple(p.store().Desk_Level[29], p.screens().Current_Screen(), p.panel().buttons()[2].lamp),
            std::tuple(99, 8, kRed));
  p.release(2);
  EXPECT_EQ(p.panel().buttons()[2].lamp, kLampOff);

  p.desk->run_mode().Run_Switch_Click();
  p.press(2);
  EXPECT_EQ(std::tuple(p.store().Autotake_Running, p.store().Run_Screen, p.store().Desk_Level[29]),
            std::tuple(true, 8, 0)) << "no recall in run mode: the take crossfades";
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
  EXPECT_EQ(std::tuple(b[0].caption, b[1].caption, b[2].caption, b[2].function_caption, b[3].caption,
                       b[3].function_caption),
            std::tuple("Submix 1", "Wash", "Seq 5", "Seq", "Spot", "Preset"));
  EXPECT_EQ(std::tuple(b[1].caption_colour, b[2].caption_colour),
            std::tuple(std::optional(Rgb{255, 0, 0}), std::optional(Rgb{0, 255, 0})));
  const auto& f = p.panel().faders();
  EXPECT_EQ(std::tuple(f[3].caption, f[3].step_time_note, f[4].caption, f[4].step_time_note),
            std::tuple("Seq 3", "Seq 3 Step Timing", "Submix 5", ""));

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
  EXPECT_EQ(std::tuple(p.store().Playback_Fader_Level[0], p.store().Playback_Button_State[0],
                       p.store().Desk_Level[3], p.live(7)),
            std::tuple(0, true, 50, 255)) << "Clear leaves the buttons";

  p.desk->Clear_All();
  EXPECT_EQ(p.status(), " Desk Cleared ");
  EXPECT_EQ(std::tuple(p.store().Playback_Button_State[0], p.store().Desk_Level[3], p.live(7),
                       p.panel().buttons()[0].lamp),
            std::tuple(false, 0, 0, kLampOff));
}

TEST(PlaybackPanel, PagesStepThroughFiveNameThemselvesAndSetUpTheirOwnElements) {
  PlaybackTestDesk p;
  PageControls& pages = p.desk->pages();
  EXPECT_EQ(std::tuple(pages.Dec_Page_enabled(), pages.Page_Details()), std::tuple(false, "Page 1"));
  pages.Inc_Page_Click();
  p.panel().Button_Press(3, MouseButton::Right);
  EXPECT_EQ(std::tuple(p.desk->button_setup().visible(), p.desk->button_setup().element(),
                       p.store().Playback_Button_State[19]),
            std::tuple(true, 19, false)) << "the right mouse button opens the set-up";
  p.panel().Fader_Setup_Click(11);
  EXPECT_EQ(std::tuple(p.desk->fader_setup().visible(), p.desk->fader_setup().element()), std::tuple(true, 23));

  for (int i = 0; i < 5; ++i) pages.Inc_Page_Click();
  EXPECT_EQ(std::tuple(p.store().Playback_Page, pages.Inc_Page_enabled(), pages.Dec_Page_enabled(),
                       pages.Page_Number(), p.panel().button_number(0)),
            std::tuple(4, false, true, "5", 64));
  pages.Page_Details_Change("Page 5");
  EXPECT_EQ(p.store().Pages[4].Name, "") << "the default caption is not a name";
  pages.Page_Details_Change("Finale");
  EXPECT_EQ(p.store().Pages[4].Name, "Finale");
  pages.Page_text_Change("House lights at the end");
  pages.Dec_Page_Click();
  EXPECT_EQ(pages.Page_Details() + "|" + pages.Page_text(), "Page 4|");
  pages.Inc_Page_Click();
  EXPECT_EQ(pages.Page_Details() + "|" + pages.Page_text(), "Finale|House lights at the end");
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
