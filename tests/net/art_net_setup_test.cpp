// The Art-Net Setup window: its rows and the destination, kept or given for one run.
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "net/ipv4_address.h"
#include "tests/net/art_net_desk.h"

namespace lumaris {

namespace {
// Art-Net running on row 0, one tick sent; returns where that packet went.
std::string host_of_next_packet(ArtNetDesk& t) {
  t.udp.clear_sent();
  t.desk.scheduler.advance(ArtNetNode::kArtInterval);
  return t.udp.sent().empty() ? std::string("(nothing sent)") : t.udp.sent().back().host;
}
}  // namespace

TEST(ArtConfig, OpeningStartsTheNodeAndButtonsToggleTheirRowWithItsOwnUniverse) {
  ArtNetDesk t;
  t.build();
  std::vector<std::string> statuses;
  t.console().status().on_main_change([&](const std::string& s) { statuses.push_back(s); });
  t.open_setup();
  EXPECT_EQ(t.config().universe_box(7), "7");
  EXPECT_EQ(statuses, (std::vector<std::string>{" ART NET Loading.......", " Art-Net Initialized"}));
  EXPECT_EQ(t.config().state_box(), " Art-Net Initialized");
  EXPECT_FALSE(t.console().art_net().Art_Time().enabled()) << "opening sends nothing";
  t.config().close_clicked();
  t.open_setup();
  EXPECT_EQ(t.config().state_box(), " Art Net OK");

  t.store().Art_Universes[4].Universe = 9;  // left over from somewhere
  t.config().enable_button_clicked(4);
  EXPECT_EQ(std::tuple(t.store().Art_Universes[4].Enable, t.store().Art_Universes[4].Universe), std::tuple(true, 4));
  EXPECT_EQ(t.config().enable_button(4), "Disable");
  EXPECT_EQ(t.config().enable_button_colour(4), Paint{kGreen});
  t.config().enable_button_clicked(4);
  EXPECT_FALSE(t.store().Art_Universes[4].Enable);
  EXPECT_EQ(t.config().enable_button_colour(4), Paint{kRed});
  t.open_setup();
  EXPECT_EQ(t.config().state_box(), " Art-Net Initialized") << "every row was off: initialised again";
}

TEST(ArtConfig, TheInterfaceChosenIsKeptAndBoundAtOnceAndOneForThisRunIsNeverSaved) {
  ArtNetDesk t;
  t.udp.set_networks({{"10.0.0.7", "255.0.0.0"}, {"127.0.0.1", "255.0.0.0"}});
  t.build();
  ASSERT_TRUE(t.node().set_run_interface("127.0.0.1"));
  EXPECT_FALSE(t.node().set_run_interface("10.0.0"));
  t.open_setup();
  EXPECT_EQ(t.udp.bound_address(), "127.0.0.1");
  EXPECT_EQ(t.config().Interface_Items(),
            (std::vector<std::string>{"Every address (automatic)", "10.0.0.7",
                                      "127.0.0.1 (this run only, --artnet-bind)"}));
  EXPECT_EQ(t.config().Interface_Index(), 2);
  EXPECT_FALSE(t.settings.read(ArtNetNode::kInterfaceSetting).has_value());

  t.config().Interface_Click(1);
  EXPECT_EQ(std::tuple(t.udp.bound_address(), t.node().Art_Broadcast()), std::tuple("10.0.0.7", "10.255.255.255"));
  EXPECT_EQ(t.settings.read(ArtNetNode::kInterfaceSetting), "10.0.0.7");
  t.config().Interface_Click(0);
  EXPECT_EQ(t.udp.bound_address(), "");
  EXPECT_FALSE(t.settings.read(ArtNetNode::kInterfaceSetting).has_value());
}

TEST(ArtDestination, CommandLineDestinationHoldsForThisRunOnlyUntilSetKeepsOneForEveryPacket) {
  ArtNetDesk t;
  t.build();
  ASSERT_EQ(t.node().set_run_destination("127.0.0.1"), ArtNetNode::DestinationCheck::Accepted);
  t.store().Art_Universes[0] = {true, 0};
  t.config().Start_From_Show();
  EXPECT_EQ(host_of_next_packet(t), "127.0.0.1");
  EXPECT_FALSE(t.udp.broadcast_allowed());
  EXPECT_FALSE(t.settings.read(ArtNetNode::kDestinationSetting).has_value()) << "never saved";
  EXPECT_EQ(t.main_desk().Art_Destination(), "to 127.0.0.1 (this run)");
  EXPECT_NE(t.main_desk().Art_Destination_ToolTipText().find("--artnet-target"), std::string::npos);
  t.open_setup();
  EXPECT_EQ(t.config().Destination(), "") << "the field shows what is kept, not the option";
  EXPECT_EQ(t.config().Destination_Status(),
            " Sending to 127.0.0.1 port 6454 (this run only, --artnet-target)");

  // The operator's Set keeps a destination and ends the one of the command line;
  // poll replies go there as well, never broadcast.
  t.config().Destination_Change(" 127.0.0.3 ");
  t.config().Destination_Set_Click();
  EXPECT_EQ(t.settings.read(ArtNetNode::kDestinationSetting), "127.0.0.3");
  EXPECT_EQ(host_of_next_packet(t), "127.0.0.3");
  EXPECT_EQ(t.main_desk().Art_Destination(), "to 127.0.0.3");
  EXPECT_EQ(t.config().Destination_Status(), " Sending to 127.0.0.3 port 6454");
  t.arrive(art_packet(0x2000, 14));
  ASSERT_EQ(t.udp.sent().size(), 2u);
  for (const auto& packet : t.udp.sent()) {
    EXPECT_EQ(std::tuple(packet.host, packet.broadcast_allowed), std::tuple("127.0.0.3", false));
  }

  t.config().Destination_Change("");  // back to automatic
  t.config().Destination_Set_Click();
  EXPECT_FALSE(t.settings.read(ArtNetNode::kDestinationSetting).has_value());
  EXPECT_EQ(t.config().Destination_Status(), " Sending to 255.255.255.255 port 6454 (automatic)");
  EXPECT_EQ(host_of_next_packet(t), "255.255.255.255");
  EXPECT_TRUE(t.udp.sent()[0].broadcast_allowed);
}

TEST(ArtDestination, NoAddressesAndBroadcastsAreRefusedAndAnEmptyOneForThisRunBroadcastsKeepingTheSavedOne) {
  ArtNetDesk t;
  t.udp.set_broadcasts({"192.168.1.255", "172.16.3.127"});
  t.settings.write(ArtNetNode::kDestinationSetting, "127.0.0.1");
  t.build();
  EXPECT_EQ(t.main_desk().Art_Destination(), "to 127.0.0.1") << "a kept destination shows at start";
  t.store().Art_Universes[0] = {true, 0};
  t.config().Start_From_Show();
  t.open_setup();
  using Check = ArtNetNode::DestinationCheck;
  const std::pair<const char*, Check> refused[] = {
      {"10.0.0", Check::NotAnAddress},          {"localhost", Check::NotAnAddress},
      {"1.2.3.256", Check::NotAnAddress},       {"0.0.0.0", Check::NotAnAddress},
      {"255.255.255.255", Check::Broadcast},    {"10.255.255.255", Check::Broadcast},
      {"2.255.255.255", Check::Broadcast},      {"192.168.1.255", Check::Broadcast},
      {"172.16.3.127", Check::Broadcast}};
  for (const auto& [text, check] : refused) {
    SCOPED_TRACE(text);
    t.desk.dialogs.clear();
    t.config().Destination_Change(text);
    t.config().Destination_Set_Click();
    ASSERT_EQ(t.desk.dialogs.messages().size(), 1u);
    const MessageBoxSpec& box = t.desk.dialogs.messages()[0];
    EXPECT_EQ(box.title, " Art-Net Destination");
    const std::string quoted = std::string("\"") + text + "\"";
    EXPECT_NE(box.text.find(check == Check::Broadcast ? quoted + " is a broadcast address, not one node"
                                                      : "Not an IPv4 address: " + quoted),
              std::string::npos)
        << box.text;
    EXPECT_EQ(t.settings.read(ArtNetNode::kDestinationSetting), "127.0.0.1");
    EXPECT_EQ(t.config().Destination(), "127.0.0.1");
    EXPECT_EQ(host_of_next_packet(t), "127.0.0.1");
    EXPECT_EQ(t.node().set_run_destination(text), check);
    EXPECT_EQ(t.main_desk().Art_Destination(), "to 127.0.0.1");
  }
  // An empty destination given for this run broadcasts and keeps the saved one.
  ASSERT_EQ(t.node().set_run_destination(""), Check::Accepted);
  EXPECT_EQ(host_of_next_packet(t), "255.255.255.255");
  EXPECT_EQ(std::tuple(t.udp.broadcast_allowed(), t.main_desk().Art_Destination()), std::tuple(true, ""));
  EXPECT_EQ(t.settings.read(ArtNetNode::kDestinationSetting), "127.0.0.1");
  // An ordinary host of the same network is one node.
  EXPECT_EQ(t.node().check_destination("192.168.1.254"), Check::Accepted);
  EXPECT_EQ(t.node().check_destination("10.255.255.254"), Check::Accepted);

  // A kept setting that is no address, or a broadcast address from an older
  // version, is ignored from the start, and the log says why.
  for (const auto& [kept, logged] : {std::pair("stage-node", "not an address: stage-node"),
                                     std::pair("192.168.1.255", "broadcast address: 192.168.1.255")}) {
    ArtNetDesk old;
    old.settings.write(ArtNetNode::kDestinationSetting, kept);
    old.build();
    EXPECT_EQ(old.node().destination(), "") << kept;
    EXPECT_NE(old.log.str().find(logged), std::string::npos) << old.log.str();
  }
}

TEST(Ipv4Address, DottedQuadsOnlyAndTheKnownBroadcasts) {
  EXPECT_EQ(parse_ipv4("127.0.0.1"), (std::array<std::uint8_t, 4>{127, 0, 0, 1}));
  EXPECT_EQ(parse_ipv4("2.255.0.10"), (std::array<std::uint8_t, 4>{2, 255, 0, 10}));
  for (const char* bad : {"", "1.2.3", "1.2.3.4.5", "256.1.1.1", "1.2.3.1000", "01.2.3.4",
                          " 1.2.3.4", "1.2.3.4 ", "1..3.4", "a.b.c.d", "1.2.3.4/24", "-1.2.3.4"}) {
    EXPECT_FALSE(parse_ipv4(bad).has_value()) << bad;
  }
  // Known broadcasts: the limited one and the Art-Net networks'.
  for (const char* broadcast : {"255.255.255.255", "2.255.255.255", "10.255.255.255"}) {
    EXPECT_TRUE(is_known_broadcast(broadcast)) << broadcast;
  }
  for (const char* node : {"10.255.255.254", "2.255.254.255", "11.255.255.255", "127.0.0.1", "",
                           "10.255.255.255 "}) {
    EXPECT_FALSE(is_known_broadcast(node)) << node;
  }
}

}  // namespace lumaris
