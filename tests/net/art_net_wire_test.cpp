#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "tests/net/art_net_desk.h"

namespace lumaris {

namespace {

// Appends bytes, text and zero runs: the tests spell packets out field by field.
struct Bytes {
  std::vector<std::uint8_t> v;
  Bytes& add(std::initializer_list<std::uint8_t> bytes) {
    v.insert(v.end(), bytes);
    return *this;
  }
  Bytes& text(const std::string& s) {
    v.insert(v.end(), s.begin(), s.end());
    return *this;
  }
  Bytes& zeros(std::size_t n) {
    v.insert(v.end(), n, 0);
    return *this;
  }
};

std::vector<std::uint8_t> poll_reply_expected(const std::string& long_name_64) {
  Bytes b;
  b.add({'A', 'r', 't', '-', 'N', 'e', 't', 0x00})  // ID
      .add({0x00, 0x21})                            // OpCode 0x2100, low byte first
      .add({0, 0, 0, 0})                            // IP address: nothing sets it
      .add({0, 0})                                  // port: nothing sets it
      .add({0x00, 0x0E})                            // VersInfoH, VersInfo = 14
      .add({0x00, 0x00})                            // SubSwitchH, SubSwitch
      .add({0x00, 0xFF})                            // Oem 0x00FF, high byte first
      .add({0x00})                                  // UbeaVersion
      .add({0x00})                                  // Status
      .add({0x00, 0x00})                            // EstaMan
      .text("Lumaris           ")                   // ShortName: 7 letters + 11 blanks = 18
      .text(long_name_64)                           // LongName, 64
      .text("OK                                                              ")  // NodeReport, 64
      .add({0x00, 0x01})                            // NumPortsHi, NumPorts = 1
      .add({0x80, 0x00, 0x00, 0x00})                // PortTypes: port 0 outputs DMX512
      .add({0, 0, 0, 0})                            // GoodInput (178)
      .add({0, 0, 0, 0})                            // GoodOutput (182)
      .add({0, 0, 0, 0})                            // SwIn (186)
      .add({0, 0, 0, 0})                            // SwOut (190): port 0 = universe 0
      .add({0})                                     // SwVideo (194)
      .add({0})                                     // SwMacro (195)
      .add({0})                                     // SwRemote (196)
      .add({0, 0, 0})                               // spare (197..199)
      .add({0})                                     // Style (200)
      .add({0, 0, 0, 0, 0, 0})                      // MAC (201..206)
      .zeros(32);                                   // filler up to 239
  return b.v;
}

}  // namespace

TEST(ArtNetWire, ArtDmxCarriesTheFrameByteForByte) {
  ArtNetDesk t;
  t.build();
  t.open_setup();
  std::array<std::uint8_t, kDmxSlots + 1> frame{};
  for (int s = 0; s < kDmxSlots; ++s) frame[s] = static_cast<std::uint8_t>((s * 7 + 3) & 0xFF);
  frame[kDmxSlots] = 0xEE;  // slot 512 is never transmitted
  t.node().Art_Send_Dmx(0x93, frame);  // both nibbles set: neither swapped nor split

  ASSERT_EQ(t.udp.sent().size(), 1u);
  Bytes b;
  b.add({'A', 'r', 't', '-', 'N', 'e', 't', 0x00})  // ID
      .add({0x00, 0x50})                            // OpCode 0x5000, low byte first
      .add({0x00})                                  // ProtVerHi
      .add({0x0E})                                  // ProtVerLo = 14
      .add({0x00})                                  // Sequence: off
      .add({0x00})                                  // Physical
      .add({0x93, 0x00})                            // Universe 147, low byte first
      .add({0x02, 0x00});                           // Length 512, high byte first
  for (int s = 0; s < kDmxSlots; ++s) b.add({static_cast<std::uint8_t>((s * 7 + 3) & 0xFF)});
  ASSERT_EQ(b.v.size(), 530u);
  EXPECT_EQ(std::tuple(t.udp.sent()[0].bytes, t.udp.sent()[0].port), std::tuple(b.v, 6454));
}

TEST(ArtNetWire, ArtPollIsAnsweredWithAPollReplyNamingTheMainDeskAsCaptionedNow) {
  ArtNetDesk t;
  t.build();
  t.open_setup();
  t.arrive(art_packet(0x2000, 14));
  ASSERT_EQ(t.udp.sent().size(), 1u);
  EXPECT_EQ(std::tuple(t.udp.sent()[0].host, t.udp.sent()[0].port), std::tuple("255.255.255.255", 6454));
  // "DMX 512 Main Desk" is 17 characters, then 47 blanks.
  EXPECT_EQ(t.udp.sent()[0].bytes,
            poll_reply_expected("DMX 512 Main Desk                                               "));

  // 69 characters: the LongName field keeps the first 64.
  t.main_desk().set_main_caption(
      "Theatre of the Long Name - Act One - Scene Two - Evening Performance!");
  t.arrive(art_packet(0x2000, 10));  // only the header: still a poll
  ASSERT_EQ(t.udp.sent().size(), 2u);
  EXPECT_EQ(t.udp.sent()[1].bytes,
            poll_reply_expected("Theatre of the Long Name - Act One - Scene Two - Evening Perform"));
}

TEST(ArtNetWire, PollsAreAnsweredAFewTimesASecondAndOnlyFromTheNodesOwnNetworks) {
  ArtNetDesk t;
  t.build();
  t.open_setup();
  t.udp.deliver(art_packet(0x2000, 14), "203.0.113.9");  // a forged or far-away source
  t.udp.deliver(art_packet(0x2000, 14), "192.168.2.20");
  t.udp.deliver(art_packet(0x2000, 14), "not an address");
  t.desk.scheduler.run_posted();
  EXPECT_TRUE(t.udp.sent().empty());
  t.arrive(art_packet(0x2000, 14));
  for (int i = 0; i < 10; ++i) t.udp.deliver(art_packet(0x2000, 14), i % 2 ? "127.0.0.1" : "192.168.1.77");
  t.desk.scheduler.run_posted();
  EXPECT_EQ(t.udp.sent().size(), 3u);
  t.desk.scheduler.advance(999);
  t.arrive(art_packet(0x2000, 14));
  EXPECT_EQ(t.udp.sent().size(), 3u);
  t.desk.scheduler.advance(1);
  t.arrive(art_packet(0x2000, 14));
  EXPECT_EQ(t.udp.sent().size(), 4u) << "again a second after the first";
}

}  // namespace lumaris
