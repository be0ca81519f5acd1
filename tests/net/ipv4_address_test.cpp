#include <gtest/gtest.h>

#include "net/ipv4_address.h"

namespace lumaris {

TEST(Ipv4Address, DottedQuadsOnly) {
  EXPECT_EQ(parse_ipv4("127.0.0.1"), (std::array<std::uint8_t, 4>{127, 0, 0, 1}));
  EXPECT_EQ(parse_ipv4("2.255.0.10"), (std::array<std::uint8_t, 4>{2, 255, 0, 10}));
  for (const char* bad : {"", "1.2.3", "1.2.3.4.5", "256.1.1.1", "1.2.3.1000", "01.2.3.4",
                          " 1.2.3.4", "1.2.3.4 ", "1..3.4", "a.b.c.d", "1.2.3.4/24", "-1.2.3.4"}) {
    EXPECT_FALSE(parse_ipv4(bad).has_value()) << bad;
  }
}

TEST(Ipv4Address, KnownBroadcastsAreTheLimitedOneAndTheArtNetNetworks) {
  for (const char* broadcast : {"255.255.255.255", "2.255.255.255", "10.255.255.255"}) {
    EXPECT_TRUE(is_known_broadcast(broadcast)) << broadcast;
  }
  for (const char* node : {"10.255.255.254", "2.255.254.255", "11.255.255.255", "127.0.0.1", "",
                           "10.255.255.255 "}) {
    EXPECT_FALSE(is_known_broadcast(node)) << node;
  }
}

}  // namespace lumaris
