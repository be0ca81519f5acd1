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

TEST(ArtConfig, DestinationSendsEveryPacketToOneAddressWithoutBroadcast) {
  ArtNetDesk t;
  t.build();
  t.open_setup();
  t.config().Button1_Click(0);
  t.config().Destination_Change(" 127.0.0.1 ");
  t.config().Destination_Set_Click();
  EXPECT_EQ(t.settings.read(D_ArtNet::kDestinationSetting), "127.0.0.1");
  EXPECT_EQ(t.config().Destination_Status(), " Sending to 127.0.0.1 port 6454");
  t.desk.scheduler.advance(100);
  t.arrive(art_packet(0x2000, 14));
  ASSERT_EQ(t.udp.sent().size(), 2u);
  for (const auto& packet : t.udp.sent()) {
    EXPECT_EQ(packet.host, "127.0.0.1");
    EXPECT_FALSE(packet.broadcast_allowed);
  }

  t.config().Destination_Change("");  // back to automatic
  t.config().Destination_Set_Click();
  EXPECT_FALSE(t.settings.read(D_ArtNet::kDestinationSetting).has_value());
  EXPECT_EQ(t.config().Destination_Status(), " Sending to 255.255.255.255 port 6454 (automatic)");
  t.udp.clear_sent();
  t.desk.scheduler.advance(100);
  ASSERT_EQ(t.udp.sent().size(), 1u);
  EXPECT_EQ(t.udp.sent()[0].host, "255.255.255.255");
  EXPECT_TRUE(t.udp.sent()[0].broadcast_allowed);
}

TEST(ArtConfig, InvalidDestinationIsExplainedAndChangesNothing) {
  ArtNetDesk t;
  t.settings.write(D_ArtNet::kDestinationSetting, "127.0.0.1");
  t.build();
  t.open_setup();
  for (const char* bad : {"10.0.0", "localhost", "255.255.255.255", "1.2.3.256", "0.0.0.0"}) {
    SCOPED_TRACE(bad);
    t.desk.dialogs.clear();
    t.config().Destination_Change(bad);
    t.config().Destination_Set_Click();
    ASSERT_EQ(t.desk.dialogs.messages().size(), 1u);
    EXPECT_EQ(t.desk.dialogs.messages()[0].title, " Art-Net Destination");
    EXPECT_NE(t.desk.dialogs.messages()[0].text.find(bad), std::string::npos);
    EXPECT_EQ(t.settings.read(D_ArtNet::kDestinationSetting), "127.0.0.1");
    EXPECT_EQ(t.node().Art_Broadcast(), "127.0.0.1");
  }
}

TEST(ArtConfig, StoredDestinationIsUsedFromTheStartUnlessItIsNoAddress) {
  ArtNetDesk t;
  t.settings.write(D_ArtNet::kDestinationSetting, "127.0.0.1");
  t.build();
  t.store().Art_Universes[0] = {true, 0};
  t.config().Start_From_Show();
  t.desk.scheduler.advance(100);
  ASSERT_EQ(t.udp.sent().size(), 1u);
  EXPECT_EQ(t.udp.sent()[0].host, "127.0.0.1");
  EXPECT_FALSE(t.udp.broadcast_allowed());

  ArtNetDesk other;
  other.settings.write(D_ArtNet::kDestinationSetting, "stage-node");
  other.build();
  EXPECT_EQ(other.node().destination(), "");
  EXPECT_NE(other.log.str().find("stage-node"), std::string::npos);
}

}  // namespace lumaris
