#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

#include "tests/net/art_net_desk.h"

namespace lumaris {

namespace {

// An ArtPollReply as the desk sends it: a field not set here is zero (no IP address,
// port, status, switches or MAC is filled in).
std::vector<std::uint8_t> poll_reply_expected(const std::string& long_name_64) {
  auto p = art_packet(0x2100, 239);
  p[17] = 14;    // VersInfo, high byte first
  p[21] = 0xFF;  // Oem 0x00FF, high byte first
  // ShortName (18), LongName (64) and NodeReport (64) follow each other from byte 26.
  const std::string names = "Lumaris           " + long_name_64 + "OK" + std::string(62, ' ');
  std::copy(names.begin(), names.end(), p.begin() + 26);
  p[173] = 1;     // NumPorts
  p[174] = 0x80;  // PortTypes: port 0 outputs DMX512; SwOut 0: universe 0
  return p;
}

}  // namespace

TEST(ArtNetWire, ArtDmxAndTheReplyToArtPollAreLaidOutByteForByte) {
  ArtNetDesk t;
  t.build();
  t.open_setup();
  std::array<std::uint8_t, kDmxSlots + 1> frame{};
  for (int s = 0; s < kDmxSlots; ++s) frame[s] = static_cast<std::uint8_t>((s * 7 + 3) & 0xFF);
  frame[kDmxSlots] = 0xEE;  // slot 512 is never transmitted
  t.node().Art_Send_Dmx(0x93, frame);  // both nibbles set: neither swapped nor split

  ASSERT_EQ(t.udp.sent().size(), 1u);
  auto expected = art_packet(0x5000, 18);
  expected[11] = 14;    // ProtVer, high byte first; Sequence off, Physical 0
  expected[14] = 0x93;  // Universe 147, low byte first
  expected[16] = 0x02;  // Length 512, high byte first
  expected.insert(expected.end(), frame.begin(), frame.begin() + kDmxSlots);
  EXPECT_EQ(std::tuple(t.udp.sent()[0].bytes, t.udp.sent()[0].port), std::tuple(expected, 6454));

  // An ArtPoll is answered with a reply naming the main desk as captioned now.
  t.udp.clear_sent();
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
