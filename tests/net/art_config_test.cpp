#include <gtest/gtest.h>

#include <string>

#include "tests/net/art_net_desk.h"

namespace lumaris {

TEST(ArtConfig, OpeningStartsTheNodeAndButtonsToggleTheirRowWithItsOwnUniverse) {
  ArtNetDesk t;
  t.build();
  std::vector<std::string> statuses;
  t.console().status().on_main_change([&](const std::string& s) { statuses.push_back(s); });
  t.open_setup();
  EXPECT_EQ(t.config().Text1(7), "7");
  EXPECT_EQ(statuses, (std::vector<std::string>{" ART NET Loading.......", " Art-Net Initialized"}));
  EXPECT_EQ(t.config().Text2(), " Art-Net Initialized");
  EXPECT_FALSE(t.console().art_net().Art_Time().enabled()) << "opening sends nothing";
  t.config().Command1_Click();
  t.open_setup();
  EXPECT_EQ(t.config().Text2(), " Art Net OK");

  t.store().Art_Universes[4].Universe = 9;  // left over from somewhere
  t.config().Button1_Click(4);
  EXPECT_TRUE(t.store().Art_Universes[4].Enable);
  EXPECT_EQ(t.store().Art_Universes[4].Universe, 4);
  EXPECT_EQ(t.config().Button1(4), "Disable");
  EXPECT_EQ(t.config().Button1_colour(4), Paint{kGreen});
  t.config().Button1_Click(4);
  EXPECT_FALSE(t.store().Art_Universes[4].Enable);
  EXPECT_EQ(t.config().Button1_colour(4), Paint{kRed});
  t.open_setup();
  EXPECT_EQ(t.config().Text2(), " Art-Net Initialized") << "every row was off: initialised again";
}

}  // namespace lumaris
