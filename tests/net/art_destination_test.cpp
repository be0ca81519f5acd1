#include <gtest/gtest.h>

#include <string>

#include "tests/net/art_net_desk.h"

namespace lumaris {

namespace {
// Art-Net running on row 0, one tick sent; returns where that packet went.
std::string host_of_next_packet(ArtNetDesk& t) {
  t.udp.clear_sent();
  t.desk.scheduler.advance(D_ArtNet::kArtInterval);
  return t.udp.sent().empty() ? std::string("(nothing sent)") : t.udp.sent().back().host;
}
}  // namespace

TEST(ArtDestination, CommandLineDestinationHoldsForThisRunOnlyAndTheMainDeskSaysSo) {
  ArtNetDesk t;
  t.build();
  ASSERT_EQ(t.node().set_run_destination("127.0.0.1"), D_ArtNet::DestinationCheck::Accepted);
  t.store().Art_Universes[0] = {true, 0};
  t.config().Start_From_Show();
  EXPECT_EQ(host_of_next_packet(t), "127.0.0.1");
  EXPECT_FALSE(t.udp.broadcast_allowed());
  EXPECT_FALSE(t.settings.read(D_ArtNet::kDestinationSetting).has_value()) << "never saved";
  EXPECT_EQ(t.main_desk().Art_Destination(), "to 127.0.0.1 (this run)");
  EXPECT_NE(t.main_desk().Art_Destination_ToolTipText().find("--artnet-target"), std::string::npos);
  t.open_setup();
  EXPECT_EQ(t.config().Destination(), "") << "the field shows what is kept, not the option";
  EXPECT_EQ(t.config().Destination_Status(),
            " Sending to 127.0.0.1 port 6454 (this run only, --artnet-target)");

  // The next start on this computer, without the option: automatic, nothing on the desk.
  ArtNetDesk next;
  next.settings = t.settings;
  next.build();
  EXPECT_EQ(next.node().destination_in_force(), "");
  EXPECT_EQ(next.main_desk().Art_Destination(), "");

  // The operator's Set keeps a destination and ends the one of the command line.
  t.config().Destination_Change("127.0.0.3");
  t.config().Destination_Set_Click();
  EXPECT_EQ(t.settings.read(D_ArtNet::kDestinationSetting), "127.0.0.3");
  EXPECT_EQ(host_of_next_packet(t), "127.0.0.3");
  EXPECT_EQ(t.main_desk().Art_Destination(), "to 127.0.0.3");
  EXPECT_EQ(t.config().Destination_Status(), " Sending to 127.0.0.3 port 6454");
}

TEST(ArtDestination, AnEmptyCommandLineDestinationBroadcastsThisRunAndKeepsTheSavedOne) {
  ArtNetDesk t;
  t.settings.write(D_ArtNet::kDestinationSetting, "127.0.0.1");
  t.build();
  EXPECT_EQ(t.main_desk().Art_Destination(), "to 127.0.0.1") << "a kept destination shows at start";
  ASSERT_EQ(t.node().set_run_destination(""), D_ArtNet::DestinationCheck::Accepted);
  EXPECT_EQ(t.main_desk().Art_Destination(), "");
  t.store().Art_Universes[0] = {true, 0};
  t.config().Start_From_Show();
  EXPECT_EQ(host_of_next_packet(t), "255.255.255.255");
  EXPECT_TRUE(t.udp.broadcast_allowed());
  EXPECT_EQ(t.settings.read(D_ArtNet::kDestinationSetting), "127.0.0.1");
}

TEST(ArtDestination, BroadcastAddressesAreRefusedWithAMessageAndChangeNothing) {
  ArtNetDesk t;
  t.udp.set_broadcasts({"192.168.1.255", "172.16.3.127"});
  t.settings.write(D_ArtNet::kDestinationSetting, "127.0.0.1");
  t.build();
  t.store().Art_Universes[0] = {true, 0};
  t.config().Start_From_Show();
  t.open_setup();
  for (const char* broadcast :
       {"255.255.255.255", "10.255.255.255", "2.255.255.255", "192.168.1.255", "172.16.3.127"}) {
    SCOPED_TRACE(broadcast);
    t.desk.dialogs.clear();
    t.config().Destination_Change(broadcast);
    t.config().Destination_Set_Click();
    ASSERT_EQ(t.desk.dialogs.messages().size(), 1u);
    const MessageBoxSpec& box = t.desk.dialogs.messages()[0];
    EXPECT_EQ(box.title, " Art-Net Destination");
    EXPECT_EQ(box.text.rfind(std::string("\"") + broadcast + "\" is a broadcast address, not one node", 0),
              0u)
        << box.text;
    EXPECT_EQ(t.settings.read(D_ArtNet::kDestinationSetting), "127.0.0.1");
    EXPECT_EQ(t.config().Destination(), "127.0.0.1");
    EXPECT_EQ(host_of_next_packet(t), "127.0.0.1");
    EXPECT_EQ(t.node().set_run_destination(broadcast), D_ArtNet::DestinationCheck::Broadcast);
    EXPECT_EQ(t.main_desk().Art_Destination(), "to 127.0.0.1");
  }
  // An ordinary host of the same network is one node.
  EXPECT_EQ(t.node().check_destination("192.168.1.254"), D_ArtNet::DestinationCheck::Accepted);
  EXPECT_EQ(t.node().check_destination("10.255.255.254"), D_ArtNet::DestinationCheck::Accepted);

  // A broadcast address kept from an older version is ignored, and the log says why.
  ArtNetDesk old;
  old.settings.write(D_ArtNet::kDestinationSetting, "192.168.1.255");
  old.build();
  EXPECT_EQ(old.node().destination(), "");
  EXPECT_NE(old.log.str().find("broadcast address: 192.168.1.255"), std::string::npos);
}

}  // namespace lumaris
