#include <gtest/gtest.h>

#include <tuple>

#include "console/output_cycle.h"
#include "core/main_desk.h"
#include "core/surface_feedback.h"
#include "playback/playback_panel.h"
#include "playback/playback_desk.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

class MainDeskTest : public ::testing::Test {
 protected:
  MainDeskTest() { t.build(); }
  MainDesk& desk() { return t.console->main_desk(); }
  Store& store() { return t.store(); }
  TestConsole t;
};

TEST_F(MainDeskTest, FadersButtonsAndPagingWorkOnTheShownPageAndClearTheWholeDesk) {
  desk().channel_fader_changed(4, 55);
  EXPECT_EQ(std::tuple(store().Desk_Level[4], desk().strips()[4].level_box), std::tuple(200, "200"));
  store().Fader_Names[3].Desc.clear();
  store().Fader_Names[32] = {"Follow spot", "Spot", "255", false, false};
  store().Desk_Level[32] = 17;
  desk().Refresh_Desk_Panel();
  EXPECT_EQ(desk().strips()[3].name_box, "4") << "no description: the channel number";

  desk().Inc_Channel_Click();
  EXPECT_EQ(desk().Status(), " Faders  1 Selected");
  const ChannelStrip& strip = desk().strips()[0];
  EXPECT_EQ(std::tie(strip.name_box, strip.name_box_tooltip), std::tuple("Spot", " Ch 33 Follow spot"));
  EXPECT_EQ(std::tie(strip.name_box_colour, strip.level_box_colour),
            std::tuple(Paint{Rgb{255, 0, 0}}, Paint{Rgb{255, 0, 0}}));
  EXPECT_EQ(strip.fader, 255 - 17);
  desk().max_clicked(0);
  EXPECT_EQ(store().Desk_Level[32], 255) << "page 1 strip 0 is channel 33";
  desk().max_clicked(31);
  EXPECT_EQ(store().Desk_Level[63], 255) << "page 1 strip 31 is channel 64";
  desk().min_clicked(31);
  EXPECT_EQ(store().Desk_Level[63], 0);
  desk().Open_Channel_Properties(3);
  EXPECT_EQ(store().Edit_Channel, 35) << "page 1 strip 3 is channel 36";
  desk().Dec_Channels_Click();
  EXPECT_FALSE(desk().Dec_Channels_enabled()) << "back on page 0";
  EXPECT_TRUE(desk().Inc_Channel_enabled());
  EXPECT_EQ(desk().strips()[0].level_box_colour, Paint{}) << "default colour leaves the level box alone";

  store().Desk_Level[40] = 90;  // a channel of the page not on show
  desk().Clearall_Click();
  EXPECT_EQ(std::tuple(store().Desk_Level[4], store().Desk_Level[40], desk().strips()[4].fader),
            std::tuple(0, 0, 255));
  EXPECT_EQ(desk().Status(), " Desk Cleared ");
}

TEST_F(MainDeskTest, ResetDeskAsksWithCancelAsDefaultThenRestoresTheStartUpDesk) {
  const auto expect_start_up_panel = [this] {
    EXPECT_EQ(desk().strips()[4].fader_tooltip, "level on channel 5");
    EXPECT_EQ(desk().strips()[4].name_box_tooltip, " Ch 5 5");
    EXPECT_EQ(std::tuple(desk().Submix_Text(), desk().submix_number()), std::tuple(" ", "1"));
  };
  expect_start_up_panel();
  store().Patch[0] = 9;
  store().Patch[40] = 3;
  store().Submix[3].Name = "Wash";
  store().Fader_Names[4].Desc = "Spot";
  store().Project_Changed = true;
  store().Project_File = "/tmp/show.xml";
  store().Project_Title = "Hamlet";
  store().Playback_Button_State[2] = true;
  store().Playback_Fader_Level[1] = 200;
  desk().channels_Change(100);
  desk().Submix_Master_Change(30);
  desk().Submix_Plus_Click();
  desk().Refresh_Desk_Panel();
  desk().resetdesk_Click();  // default answer: Cancel
  ASSERT_EQ(t.dialogs.messages().size(), 1u);
  const MessageBoxSpec& box = t.dialogs.messages()[0];
  EXPECT_EQ(std::tie(box.title, box.text),
            std::tuple(" Reset Desk", "All Current Information will Be Lost Are You Sure "));
  EXPECT_EQ(box.default_button, MessageResult::Cancel);
  EXPECT_EQ(store().Patch[0], 9) << "cancel changes nothing";

  t.dialogs.answer_message(MessageResult::Ok);
  desk().resetdesk_Click();
  EXPECT_EQ(std::tuple(store().Patch[0], store().Patch[31], store().Patch[32], store().Patch[40]),
            std::tuple(1, 32, 0, 0))
      << "reset patches 32 slots";
  EXPECT_EQ(std::tuple(store().Submix[3].Name.empty(), store().Fader_Names[4].Desc, store().Project_Changed),
            std::tuple(true, "5", false));
  EXPECT_EQ(std::tuple(store().Project_File.empty(), store().Project_Title, store().Playback_Button_State[2]),
            std::tuple(true, "untitled", false));
  EXPECT_EQ(store().Playback_Fader_Level[1], 0);
  EXPECT_EQ(std::tuple(desk().channels_value(), desk().submix_master_value()), std::tuple(0, 255));
  EXPECT_EQ(std::tuple(desk().caption(), t.console->status().playback()), std::tuple(" Lumaris   ", " Desk Reset"));
  expect_start_up_panel();
}

TEST_F(MainDeskTest, ExitAsksOnlyWhenTheShowIsUnsaved) {
  store().Project_Changed = true;
  EXPECT_FALSE(desk().Form_Unload());
  ASSERT_EQ(t.dialogs.messages().size(), 1u);
  EXPECT_EQ(t.dialogs.messages()[0].buttons, MessageButtons::SaveDiscardCancel);
  EXPECT_TRUE(t.console->output_cycle().output_timer().enabled()) << "the desk keeps running";

  store().Project_Changed = false;
  EXPECT_TRUE(desk().exit_clicked());
  EXPECT_EQ(std::tuple(t.dialogs.messages().size(), desk().Status()), std::tuple(1u, " Exit Software"));
  EXPECT_FALSE(t.console->output_cycle().output_timer().enabled()) << "the exit path stops output";
}

// The Help menu holds the keys page before About; both only inform.
TEST_F(MainDeskTest, HelpShowsTheKeysTheConsoleAnswersToAndRecallShowsTheRecalledSubmixName) {
  std::vector<std::string> help;
  for (const MenuEntry& entry : desk().menu_entries()) {
    if (entry.menu == "&Help") help.push_back(entry.caption);
  }
  EXPECT_EQ(help, (std::vector<std::string>{"&Keyboard and keypad", "&About"}));
  desk().Menu_Click("keys-help");
  ASSERT_EQ(t.dialogs.messages().size(), 1u);
  const MessageBoxSpec& page = t.dialogs.messages()[0];
  EXPECT_EQ(std::tie(page.title, page.icon),
            std::tuple(" Keyboard and keypad", MessageIcon::Information));
  for (const char* key : {"5 . 50 Enter", "1 * 8 . 000", "C 7 Enter", "Alt+F", "Ctrl-C"}) {
    EXPECT_NE(page.text.find(key), std::string::npos) << key;
  }

  store().Submix[0].Name = "Front";
  desk().Submix_Text_Change("half typed");
  desk().Submix_Recal_Click();
  EXPECT_EQ(desk().Submix_Text(), "Front");
}

// Keys reaching the command line are tested in tests/keypad.
TEST_F(MainDeskTest, FaderMovesReachTheSurfaceOnlyWhenItDrivesTheMainDesk) {
  struct RecordingSurface : SurfaceFeedback {
    std::vector<std::pair<int, int>> sent;
    void BCF_Fader_Update(SurfaceStrip strip, int level) override { sent.emplace_back(strip.index(), level); }
  } surface;
  t.console->attach_surface(&surface);
  desk().channel_fader_changed(1, 0);
  EXPECT_TRUE(surface.sent.empty());
  store().BCF_Mode = 1;
  desk().channel_fader_changed(1, 55);
  EXPECT_EQ(surface.sent, (std::vector<std::pair<int, int>>{{1, 200}}));
}

TEST_F(MainDeskTest, SubmixProgramStoresCompactedEntriesNameAndColourRecallRestoresThemAndReprogramClears) {
  store().Desk_Level[2] = 40;
  store().Desk_Level[9] = 255;
  desk().Submix_Text_Change("Warm");
  desk().Sub_colour_Click();  // cancelled: nothing changes
  EXPECT_EQ(store().Submix[0].Colour, "");
  t.dialogs.answer_colour(Rgb{255, 0, 0});
  desk().Sub_colour_Click();
  desk().Submix_Prog_Click();
  const SubmixRec& sub = store().Submix[0];
  EXPECT_EQ(std::tuple(sub.Chan[0], sub.Level[0], sub.Chan[1], sub.Level[1], sub.Chan[2]),
            std::tuple(3, 40, 10, 255, 0));
  EXPECT_EQ(std::tuple(sub.Name, sub.Colour, desk().Status(), store().Project_Changed),
            std::tuple("Warm", "255", " Submix  0 Programmed", true));
  EXPECT_EQ(t.dialogs.colour_titles().front(), " Choose a Colour");

  for (int i = 0; i < 64; ++i) store().Desk_Level[i] = static_cast<std::int16_t>(255 - i);
  desk().Submix_Text_Change("Everything");
  desk().Submix_Prog_Click();
  EXPECT_EQ(store().Submix[0].Chan[63], 64) << "all 64 channels are stored";
  EXPECT_EQ(t.console->playback_desk().panel().buttons()[0].caption, "Everything")
      << "the playback button of submix 1 shows its new name";
  store().Desk_Level.fill(3);
  desk().Inc_Channel_Click();
  desk().Submix_Recal_Click();
  for (int i = 0; i < 64; ++i) EXPECT_EQ(store().Desk_Level[i], 255 - i) << i;
  EXPECT_EQ(std::tuple(desk().strips()[8].fader, desk().strips()[8].level_box), std::tuple(40, "215"))
      << "page 1 fader 8 is channel 41";
  EXPECT_EQ(desk().Status(), " Submix 0 Recalled");

  store().Desk_Level.fill(0);
  store().Desk_Level[50] = 7;
  desk().Submix_Prog_Click();
  EXPECT_EQ(store().Submix[0].Chan[0], 51);
  for (int k = 1; k < 65; ++k) EXPECT_EQ(store().Submix[0].Chan[k], 0) << k;
  store().Desk_Level.fill(3);
  desk().Submix_Recal_Click();
  for (int i = 0; i < 64; ++i) EXPECT_EQ(store().Desk_Level[i], i == 50 ? 7 : 0) << i;
}

TEST_F(MainDeskTest, SubmixSelectionWrapsAtBothEndsAndShowsNameAndColour) {
  desk().Submix_Minus_Click();
  EXPECT_EQ(std::tuple(desk().submix_number(), desk().current_submix()), std::tuple("32", 31));
  store().Submix[1].Name = "Blue wash";
  store().Submix[1].Colour = "16711680";  // 0xFF0000 in BBGGRR: blue
  desk().Submix_Plus_Click();
  EXPECT_EQ(desk().submix_number(), "1");
  desk().Submix_Plus_Click();
  EXPECT_EQ(std::tuple(desk().Submix_Text(), desk().Sub_colour()), std::tuple("Blue wash", Paint{Rgb{0, 0, 255}}));
  desk().Submix_Plus_Click();
  EXPECT_EQ(desk().Sub_colour(), Paint{}) << "no colour stored: button face";
}

}  // namespace
}  // namespace lumaris
