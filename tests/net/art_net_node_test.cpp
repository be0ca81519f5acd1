#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "core/output_timing.h"
#include "tests/net/art_net_desk.h"

namespace lumaris {

namespace {

std::uint8_t universe_of(const FakeUdp::Sent& packet) { return packet.bytes[14]; }

std::vector<std::uint8_t> data_of(const FakeUdp::Sent& packet) {
  return {packet.bytes.begin() + 18, packet.bytes.end()};
}

bool logged(const ArtNetDesk& t, const std::string& line) {
  return t.log.str().find(line + "\n") != std::string::npos;
}

}  // namespace

TEST(ArtNetNode, RowsZeroAndThreeSendTwoPacketsEveryHundredMillisecondsWhileTheIndicatorBlinks) {
  ArtNetDesk t;
  t.build();
  t.main_desk().max_clicked(0);  // channel 1 full: DMX 1
  t.main_desk().channel_fader_changed(4, 255 - 77);  // channel 5 at 77: DMX 5
  t.open_setup();
  t.config().enable_button_clicked(0);
  t.config().enable_button_clicked(3);
  EXPECT_TRUE(t.main_desk().Art_Label_enabled());

  t.desk.scheduler.advance(100);
  ASSERT_EQ(t.udp.sent().size(), 2u);
  const auto first = t.udp.sent()[0];
  const auto second = t.udp.sent()[1];
  EXPECT_EQ(std::tuple(first.bytes.size(), universe_of(first), universe_of(second)), std::tuple(530u, 0, 3));
  EXPECT_EQ(data_of(first), data_of(second));
  EXPECT_EQ(std::tuple(data_of(first)[0], data_of(first)[4]), std::tuple(255, 77));
  EXPECT_EQ(std::tie(first.host, first.port), std::tuple("255.255.255.255", 6454));
  EXPECT_EQ(t.main_desk().art_net_lamp(), Paint{kGreen});
  t.desk.scheduler.advance(99);
  EXPECT_EQ(t.udp.sent().size(), 2u);
  t.desk.scheduler.advance(1);
  EXPECT_EQ(std::tuple(t.udp.sent().size(), t.main_desk().art_net_lamp()), std::tuple(4u, Paint{kBlack}));

  t.config().enable_button_clicked(0);
  EXPECT_TRUE(t.node().Art_Time().enabled());
  t.config().enable_button_clicked(3);  // the last one
  EXPECT_EQ(std::tuple(t.node().Art_Time().enabled(), t.main_desk().art_net_lamp()), std::tuple(false, Paint{}));
  EXPECT_FALSE(t.main_desk().Art_Label_enabled());
  t.udp.clear_sent();
  t.desk.scheduler.advance(1000);
  EXPECT_EQ(std::tuple(t.udp.sent().empty(), t.main_desk().art_net_lamp()), std::tuple(true, Paint{}));
}

TEST(ArtNetNode, BroadcastAddressFollowsTheLocalAddress) {
  struct Case {
    const char* local;
    const char* broadcast;
    const char* log;
  };
  const Case cases[] = {
      {"192.168.1.5", "255.255.255.255", "Please set IP address to 10.x.x.x or 2.x.x.x!!!!"},
      {"10.0.4.17", "10.255.255.255", "Art-Net 10.x.x.x BCAST: 10.255.255.255"},
      {"2.3.4.5", "2.255.255.255", "Art-Net 2.x.x.x BCAST: 2.255.255.255"},
      {"", "255.255.255.255", "Network not configured for Art-Net"},  // no interface up
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.local);
    ArtNetDesk t;
    t.udp.set_local(c.local);
    t.build();
    EXPECT_EQ(t.node().Art_Init(), 1);
    EXPECT_EQ(std::tuple(t.node().Art_Broadcast(), t.udp.bound_port()), std::tuple(c.broadcast, 6454));
    EXPECT_TRUE(logged(t, c.log));
  }
}

TEST(ArtNetNode, ReceivingNotesArtNetPacketsLogsUnknownOpcodesAndAnswersNoneOfThem) {
  ArtNetDesk t;
  t.build();
  t.open_setup();
  auto no_zero = art_packet(0x2000, 14);
  no_zero[7] = 'X';  // "Art-Net" followed by something other than its zero byte
  t.arrive(no_zero);
  t.arrive(std::vector<std::uint8_t>{'A', 'r', 't', '-', 'N', 'e', 't', 0x00, 0x00});  // 9 bytes
  t.arrive(art_packet(0x5000, 529));  // one byte short of an ArtDmx
  t.arrive({});
  EXPECT_FALSE(t.node().Art_Packet_Seen());
  EXPECT_FALSE(t.node().Art_Dmx_Seen());

  auto other_universe = art_packet(0x5000, 530);
  other_universe[14] = 1;
  t.arrive(other_universe);
  EXPECT_TRUE(t.node().Art_Packet_Seen());
  auto high_byte = art_packet(0x5000, 530);
  high_byte[15] = 1;  // universe 256, not 0
  t.arrive(high_byte);
  EXPECT_FALSE(t.node().Art_Dmx_Seen());
  t.arrive(art_packet(0x5000, 530));
  EXPECT_TRUE(t.node().Art_Dmx_Seen());

  t.arrive(art_packet(0x2100, 239));  // another node's ArtPollReply
  t.arrive(art_packet(0x8000, 10));
  EXPECT_TRUE(logged(t, "Art-Net: NYI OpCode : 0x8448"));
  EXPECT_TRUE(logged(t, "Art-Net: NYI OpCode : 0x-32768"));  // read as a signed 16-bit number
  EXPECT_TRUE(t.udp.sent().empty()) << "levels received are not used, nothing answered";
}

// Nine rows keep the send timer running, as they always have; only the eight
// rows that have buttons send.
TEST(ArtNetNode, ALoadedShowSendsOnTheUniversesOfItsEightRowsWithButtonsWithoutTheWindow) {
  ArtNetDesk t;
  t.build();
  ASSERT_TRUE(t.load_show_with_rows({}));
  EXPECT_FALSE(t.udp.bound_port().has_value()) << "no rows: nothing starts";

  ASSERT_TRUE(t.load_show_with_rows({1, 0x93, 12, 13, 14, 15, 16, 17, 18}));
  EXPECT_FALSE(t.config().visible());
  t.desk.scheduler.advance(100);
  ASSERT_EQ(t.udp.sent().size(), 8u);
  EXPECT_EQ(std::tuple(universe_of(t.udp.sent()[0]), universe_of(t.udp.sent()[7])), std::tuple(1, 17));
  const auto& second = t.udp.sent()[1].bytes;
  EXPECT_EQ((std::vector<std::uint8_t>{second[14], second[15]}),
            (std::vector<std::uint8_t>{0x93, 0x00}))  // Universe 147, low byte first
      << "neither swapped nor split into sub-net and universe";

  t.open_setup();  // the window then shows the running node and what each row sends
  EXPECT_EQ(std::tuple(t.config().state_box(), t.console().status().main()),
            std::tuple(" Art Net OK", " ART NET OK "));
  EXPECT_EQ(std::tuple(t.config().enable_button(1), t.config().universe_box(0), t.config().universe_box(1)),
            std::tuple("Disable", "1", "147"));
  t.config().enable_button_clicked(1);
  t.config().enable_button_clicked(1);
  EXPECT_EQ(t.config().universe_box(1), "1") << "enabled again: on its own index";

  for (int row = 0; row < 8; ++row) t.config().enable_button_clicked(row);  // all but the ninth off
  t.open_setup();
  EXPECT_EQ(t.config().universe_box(2), "2") << "a disabled row shows the universe enabling gives it";
  EXPECT_TRUE(t.node().Art_Time().enabled());
  EXPECT_TRUE(t.main_desk().Art_Label_enabled());
  t.udp.clear_sent();
  t.desk.scheduler.advance(100);
  EXPECT_TRUE(t.udp.sent().empty());
  EXPECT_EQ(t.main_desk().art_net_lamp(), Paint{kGreen}) << "the indicator still blinks";
}

TEST(ArtNetNode, APortTakenOrAFailingSendIsReportedOnceAndTheDeskRunsOnUntilArtNetRecovers) {
  ArtNetDesk t;
  t.build();
  t.udp.fail_next_bind("Address already in use");
  t.open_setup();
  EXPECT_EQ(t.config().state_box(), " ! Art-Net Failed, Maybe another Art-Net program has the open?");
  EXPECT_EQ(t.console().status().main(), " Art-Net Failed");
  EXPECT_TRUE(logged(t, "! Art-Net Init Error: Address already in use"));
  t.config().enable_button_clicked(0);
  t.main_desk().max_clicked(0);
  t.desk.scheduler.advance(500);
  EXPECT_TRUE(t.udp.sent().empty());
  EXPECT_EQ(t.store().DMX_Out[0], 255);  // the output cycle goes on
  EXPECT_EQ(t.main_desk().dmx_lamp(), kGreen);
  t.open_setup();  // the operator retries once the other program is gone
  EXPECT_EQ(t.config().state_box(), " Art-Net Initialized");
  t.desk.scheduler.advance(100);
  EXPECT_EQ(t.udp.sent().size(), 1u);

  std::vector<std::string> said;
  t.console().status().on_main_change([&](const std::string& s) { said.push_back(s); });
  t.udp.fail_sends("Network is unreachable");
  t.udp.clear_sent();
  t.desk.scheduler.advance(500);
  const std::string failed = " Art-Net Sending Failed: Network is unreachable";
  EXPECT_EQ(std::tuple(said, t.console().status().playback()), std::tuple(std::vector<std::string>{failed}, failed));
  EXPECT_EQ(t.main_desk().art_net_lamp(), Paint{MainDesk::kTroubleLamp}) << "held amber, not blinking";
  EXPECT_EQ(t.main_desk().art_net_lamp_tooltip(), "Art-Net sending fails: Network is unreachable");
  EXPECT_EQ(t.node().status(), "Art-Net sending to 255.255.255.255 fails: Network is unreachable");
  EXPECT_TRUE(t.udp.sent().empty());

  t.config().enable_button_clicked(0);  // nothing to send: the failure is over, said again if it returns
  EXPECT_EQ(t.main_desk().art_net_lamp_tooltip(), "Art-Net output");
  t.config().enable_button_clicked(0);
  t.desk.scheduler.advance(100);
  EXPECT_EQ(said, (std::vector<std::string>{failed, failed}));

  t.udp.recover();
  t.desk.scheduler.advance(100);
  ASSERT_EQ(t.udp.sent().size(), 1u);
  EXPECT_EQ(data_of(t.udp.sent()[0])[0], 255);
  EXPECT_EQ(said, (std::vector<std::string>{failed, failed, " Art-Net Sending Again"}));
  EXPECT_EQ(std::tuple(t.main_desk().art_net_lamp(), t.main_desk().art_net_lamp_tooltip()),
            std::tuple(Paint{kGreen}, "Art-Net output"))
      << "blinking again";
  EXPECT_EQ(t.node().status(), "Art-Net sending to 255.255.255.255");
  t.desk.scheduler.advance(300);
  EXPECT_EQ(said.size(), 3u);
}

TEST(ArtNetNode, ATakenPortHoldsTheLampAmberWithItsReasonAndIsTriedAgainUntilFree) {
  ArtNetDesk t;
  t.build();
  std::vector<std::string> reported;
  t.node().on_port_report([&](const std::string& text) { reported.push_back(text); });
  t.udp.hold_port("Address already in use");
  ASSERT_TRUE(t.load_show_with_rows({0}));
  const std::string taken = "Art-Net cannot use port 6454: Address already in use (another program "
                            "holds it and does not share it); trying again every 3 s";
  EXPECT_EQ(t.main_desk().art_net_lamp_tooltip(), taken);
  EXPECT_EQ(t.node().status(), "Art-Net waiting for port 6454: Address already in use");
  t.desk.scheduler.advance(10000);
  EXPECT_EQ(t.main_desk().art_net_lamp(), Paint{ArtNetNode::kPortTakenLamp}) << "held, not blinking";
  EXPECT_EQ(reported, std::vector<std::string>{taken}) << "said once, not at every retry";
  EXPECT_TRUE(t.udp.sent().empty());

  t.udp.release_port();
  t.desk.scheduler.advance(ArtNetNode::kBindRetryInterval);
  EXPECT_EQ(std::tuple(t.udp.bound_port(), t.console().status().main(), reported.size()),
            std::tuple(6454, " Art-Net port 6454 is free again: Art-Net started", 2u));
  EXPECT_EQ(t.main_desk().art_net_lamp_tooltip(), "Art-Net output");
  t.udp.clear_sent();
  t.desk.scheduler.advance(100);
  EXPECT_EQ(t.udp.sent().size(), 1u);
  EXPECT_NE(t.main_desk().art_net_lamp(), Paint{ArtNetNode::kPortTakenLamp});
}

// With smooth output Art-Net carries every frame the output cycle builds, as it
// builds it, and Art_Time sends nothing of its own.
TEST(ArtNetNode, SmoothOutputSendsEachFrameRightAfterItsTick) {
  ArtNetDesk t;
  t.settings.write(OutputTiming::kSmoothSetting, "1");
  t.build();
  t.console().output_cycle().output_timer().set_interval(23);
  t.open_setup();
  t.config().enable_button_clicked(0);
  t.desk.scheduler.advance(23);
  ASSERT_EQ(t.udp.sent().size(), 1u);
  t.main_desk().channel_fader_changed(0, 255 - 9);
  t.desk.scheduler.advance(22);
  EXPECT_EQ(t.udp.sent().size(), 1u);
  t.desk.scheduler.advance(1);
  ASSERT_EQ(t.udp.sent().size(), 2u);
  EXPECT_EQ(t.udp.sent()[1].bytes[18], 9);
  t.desk.scheduler.advance(100 - 46);  // Art_Time's own tick at 100 ms adds nothing
  EXPECT_EQ(t.udp.sent().size(), 4u);
  t.config().enable_button_clicked(0);  // the last row off: nothing more
  t.desk.scheduler.advance(100);
  EXPECT_EQ(t.udp.sent().size(), 4u);
}

}  // namespace lumaris
