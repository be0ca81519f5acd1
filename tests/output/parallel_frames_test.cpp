#include "output/parallel_frames.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>
#include <vector>

#include "console/output_cycle.h"
#include "output/output_devices.h"
#include "tests/support/fake_port_io.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

using Writes = std::vector<std::pair<int, int>>;

// The frame as the adapter sees it on the port at `base`: a 3/1 pulse on the
// control register, then per slot the data byte strobed with 0 and back to 1,
// and a closing 1.
Writes expected_frame(int base, const std::vector<int>& slots) {
  const int control = base + 2;
  Writes w = {{control, 3}, {control, 1}};
  for (const int value : slots) {
    w.push_back({base, value});  // data register
    w.push_back({control, 0});   // strobe
    w.push_back({control, 1});   // release
  }
  w.push_back({control, 1});
  return w;
}

struct ParallelFrameTest : ::testing::Test {
  FakePortIo port;
  TestConsole test;
  Console* console = nullptr;

  void SetUp() override {
    test.services.port_io = &port;
    console = &test.build();
    // A frame whose slots all differ: slot s carries (s * 7 + 1) mod 256.
    for (int s = 0; s <= 512; ++s) {
      test.store().DMX_Out[s] = static_cast<std::uint8_t>((s * 7 + 1) % 256);
    }
  }
  std::vector<int> slots(int n) const {
    std::vector<int> v;
    for (int s = 0; s < n; ++s) v.push_back((s * 7 + 1) % 256);
    return v;
  }
};

TEST_F(ParallelFrameTest, ParlexSendsSlots1To65OnLpt1) {
  test.store().Adapter = 1;
  console->output_devices().Send_Frame();
  ASSERT_EQ(port.writes.size(), 2u + 65u * 3u + 1u);
  EXPECT_EQ(port.writes, expected_frame(0x378, slots(65)));
  // Spot checks written out by hand.
  EXPECT_EQ(port.writes[5], std::make_pair(0x378, 8));         // slot 2
  EXPECT_EQ(port.writes[2 + 64 * 3], std::make_pair(0x378, 193));  // slot 65: 64*7+1 = 449 - 256
  EXPECT_EQ(port.writes.back(), std::make_pair(0x37A, 1));
}

TEST_F(ParallelFrameTest, ManolatorSendsSlots1To255OnLpt2) {
  test.store().Adapter = 4;
  test.store().Port_Address = 632;
  console->output_devices().Send_Frame();
  ASSERT_EQ(port.writes.size(), 2u + 255u * 3u + 1u);
  EXPECT_EQ(port.writes, expected_frame(0x278, slots(255)));
  EXPECT_EQ(port.writes[2 + 254 * 3], std::make_pair(0x278, 243));  // slot 255: 254*7+1 = 1779 - 6*256
}

TEST(ParallelFrameWithoutPort, WritesNothingAndDoesNotFail) {
  TestConsole test;  // no port seam
  Console& console = test.build();
  test.store().Adapter = 4;
  test.scheduler.advance(70);
  EXPECT_FALSE(console.output_cycle().last_tick_failed());
  EXPECT_TRUE(test.dialogs.messages().empty());
}

}  // namespace
}  // namespace lumaris
