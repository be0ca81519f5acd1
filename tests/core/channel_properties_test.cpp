#include <gtest/gtest.h>

#include <tuple>

#include "core/channel_properties.h"
#include "core/main_desk.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

struct ChannelPropertiesTest : ::testing::Test {
  TestConsole t;
  ChannelProperties* properties = nullptr;

  void SetUp() override {
    t.build();
    properties = &t.console->channel_properties();
  }
  void open(int channel_index) {
    t.store().Edit_Channel = static_cast<std::int16_t>(channel_index);
    properties->Refresh();
    properties->Show();
  }
  Store& store() { return t.store(); }
  const ChannelStrip& strip(int i) { return t.console->main_desk().strips()[i]; }
};

TEST_F(ChannelPropertiesTest, ShowsTheRecordAndStoresTheInverseFollowFlags) {
  store().Fader_Names[9] = {"Front spot left", "Spot", "255", true, false};
  open(9);
  EXPECT_EQ(std::tuple(properties->Show_Channel(), properties->Show_Name(),
                       properties->Channel_Description()),
            std::tuple("10", "Spot", "Front spot left"));
  EXPECT_EQ(properties->colour_box(), Paint(kRed));
  // The boxes say "follows the Main fader / the crossfade": the inverse of the exemption flags.
  EXPECT_EQ(std::tuple(properties->Main_F(), properties->Cross_F()), std::tuple(false, true));
  properties->Main_F_Click(true);
  properties->Cross_F_Click(false);
  EXPECT_EQ(std::tuple(store().Fader_Names[9].Main_F, store().Fader_Names[9].Cross_F),
            std::tuple(false, true));
  EXPECT_TRUE(store().Project_Changed);
  properties->OK_Click();
  EXPECT_FALSE(properties->visible());
}

TEST_F(ChannelPropertiesTest, ListsTheSixLowestSlotsAndPagingStopsAtTheEnds) {
  for (int s : {500, 3, 200, 64, 100, 7, 300, 401}) store().Patch[s] = 12;
  open(11);
  const char* expected[] = {"4", "8", "12", "65", "101", "201"};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(properties->Show_DMX(i), expected[i]) << i;
  store().Project_Changed = false;
  properties->next_channel_clicked();  // a channel on one slot empties the other boxes
  EXPECT_TRUE(store().Project_Changed) << "paging marks the project changed";
  EXPECT_EQ(properties->Show_DMX(0), "13");
  for (int i = 1; i < 6; ++i) EXPECT_EQ(properties->Show_DMX(i), "") << i;

  open(0);
  properties->previous_channel_clicked();
  EXPECT_EQ(store().Edit_Channel, 0) << "paging stops at both ends";
  open(63);
  EXPECT_FALSE(properties->next_channel_enabled());
  properties->next_channel_clicked();
  EXPECT_EQ(store().Edit_Channel, 63);
  properties->previous_channel_clicked();
  EXPECT_EQ(properties->Show_Channel(), "63");
}

TEST_F(ChannelPropertiesTest, NameDescriptionAndColourReachTheDeskAndAFifthCharacterIsCutAfterAWarning) {
  open(2);
  properties->Show_Name_Change("Äöüß");  // 4 characters, 8 bytes
  EXPECT_TRUE(t.dialogs.messages().empty());
  properties->Show_Name_Change("Wash1");
  ASSERT_EQ(t.dialogs.messages().size(), 1u);
  EXPECT_EQ(t.dialogs.messages()[0].title, " Text too long");
  EXPECT_EQ(t.dialogs.messages()[0].text, " Text must be 4 Chars max");
  EXPECT_EQ(std::tuple(properties->Show_Name(), store().Fader_Names[2].Name, strip(2).name_box),
            std::tuple("Wash", "Wash", "Wash"))
      << "the main desk panel was redrawn";
  properties->Show_Name_Change("Grün€");
  EXPECT_EQ(store().Fader_Names[2].Name, "Grün");

  open(4);
  store().Project_Changed = false;
  properties->Channel_Description_Change("Cyc blue");
  EXPECT_TRUE(store().Project_Changed);
  EXPECT_EQ(strip(4).name_box_tooltip, " Ch 5 5");  // not yet redrawn
  properties->Channel_Description_Validate();
  EXPECT_EQ(strip(4).name_box_tooltip, " Ch 5 Cyc blue");

  properties->colour_box_clicked();  // cancelled
  EXPECT_EQ(store().Fader_Names[4].Colour, "16776960");
  t.dialogs.answer_colour(Rgb{0, 0, 255});
  properties->Colour_button_Click();
  EXPECT_EQ(t.dialogs.colour_titles().back(), " Choose a Colour");
  EXPECT_EQ(store().Fader_Names[4].Colour, "16711680");  // 0xFF0000 = blue
  EXPECT_EQ(strip(4).name_box_colour, Paint(Rgb{0, 0, 255}));
}

TEST_F(ChannelPropertiesTest, FaderAndMainDeskFollowEachOther) {
  open(5);
  properties->level_fader_changed(55);  // level 200
  EXPECT_EQ(std::tuple(store().Desk_Level[5], strip(5).fader, strip(5).level_box), std::tuple(200, 55, "200"));
  t.console->main_desk().max_clicked(5);
  EXPECT_EQ(properties->level_fader(), 0);

  open(40);  // page 1, the desk shows page 0
  properties->level_fader_changed(0);
  EXPECT_EQ(store().Desk_Level[40], 255);
  EXPECT_EQ(strip(8).fader, 255) << "strip 8 shows channel 9 and stays";
  EXPECT_EQ(store().Desk_Level[8], 0);
  t.console->main_desk().Inc_Channel_Click();
  EXPECT_EQ(strip(8).fader, 0);
}

}  // namespace
}  // namespace lumaris
