#include <gtest/gtest.h>

#include <tuple>

#include "playback/playback_panel.h"
#include "playback/playdesk.h"

#include "core/main_desk.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

class SubmixTest : public ::testing::Test {
 protected:
  SubmixTest() { t.build(); }
  Hoofdblad& desk() { return t.console->main_desk(); }
  Store& store() { return t.store(); }
  TestConsole t;
};

TEST_F(SubmixTest, ProgramStoresCompactedEntriesNameAndColourRecallRestoresThemAndReprogramClearsTheRest) {
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
  EXPECT_EQ(std::tuple(sub.Name, sub.Colour), std::tuple("Warm", "255"));
  EXPECT_EQ(desk().Status(), " Submix  0 Programmed");
  EXPECT_TRUE(store().Project_Changed);
  EXPECT_EQ(t.dialogs.colour_titles().front(), " Choose a Colour");

  for (int i = 0; i < 64; ++i) store().Desk_Level[i] = static_cast<std::int16_t>(255 - i);
  desk().Submix_Text_Change("Everything");
  desk().Submix_Prog_Click();
  EXPECT_EQ(store().Submix[0].Chan[63], 64) << "all 64 channels are stored";
  EXPECT_EQ(t.console->playback_desk().panel().buttons()[0].Command1, "Everything")
      << "the playback button of submix 1 shows its new name";
  store().Desk_Level.fill(3);
  desk().Inc_Channel_Click();
  desk().Submix_Recal_Click();
  for (int i = 0; i < 64; ++i) EXPECT_EQ(store().Desk_Level[i], 255 - i) << i;
  EXPECT_EQ(std::tuple(desk().strips()[8].Slider1, desk().strips()[8].Text1), std::tuple(40, "215"))
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

TEST_F(SubmixTest, SelectionWrapsAtBothEndsAndShowsNameAndColour) {
  desk().Submix_Minus_Click();
  EXPECT_EQ(std::tuple(desk().Text9(), desk().current_submix()), std::tuple("32", 31));
  store().Submix[1].Name = "Blue wash";
  store().Submix[1].Colour = "16711680";  // 0xFF0000 in BBGGRR: blue
  desk().Submix_Plus_Click();
  EXPECT_EQ(desk().Text9(), "1");
  desk().Submix_Plus_Click();
  EXPECT_EQ(desk().Submix_Text(), "Blue wash");
  EXPECT_EQ(desk().Sub_colour(), (Paint{Rgb{0, 0, 255}}));
  desk().Submix_Plus_Click();
  EXPECT_EQ(desk().Sub_colour(), Paint{}) << "no colour stored: button face";
}

}  // namespace
}  // namespace lumaris
