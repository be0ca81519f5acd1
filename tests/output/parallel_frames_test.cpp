#include "output/parallel_frames.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "console/output_cycle.h"
#include "output/output_devices.h"
#include "tests/support/fake_port_io.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

using Events = std::vector<std::pair<int, int>>;
constexpr int kWait = FakePortIo::kWait;

// The frame as the adapter sees it on the port at `base`, counting loops included.
Events expected_frame(int base, int slots) {
  const int control = base + 2;
  Events e = {
      {control, 3},  // start pulse
      {kWait, 50},   //   held for 50 rounds
      {control, 1},  //   released
  };
  for (int s = 0; s < slots; ++s) {
    e.push_back({base, (s * 7 + 1) % 256});  // slot s+1 on the data register
    e.push_back({control, 0});               // strobe low
    e.push_back({kWait, 20});                //   held low for 20 rounds
    e.push_back({control, 1});               // strobe released
    e.push_back({kWait, 20});                //   held high for 20 rounds
  }
  e.push_back({control, 1});  // closing release
  return e;
}

TEST(ParallelFrame, ParlexSends65SlotsAndManolator255OnTheChosenPortWithTheirWaits) {
  struct Case {
    int adapter;
    int port_address;
    int slots;
  };
  for (const Case c : {Case{1, 888, 65}, Case{4, 632, 255}}) {
    SCOPED_TRACE(c.adapter);
    FakePortIo port;
    TestConsole test;
    test.services.port_io = &port;
    Console& console = test.build();
    // A frame whose slots all differ: slot s carries (s * 7 + 1) mod 256.
    for (int s = 0; s <= 512; ++s) {
      test.store().DMX_Out[s] = static_cast<std::uint8_t>((s * 7 + 1) % 256);
    }
    test.store().Adapter = static_cast<std::int16_t>(c.adapter);
    test.store().Port_Address = static_cast<std::int16_t>(c.port_address);
    console.output_devices().Send_Frame();
    ASSERT_EQ(port.events.size(), 3u + static_cast<std::size_t>(c.slots) * 5u + 1u);
    EXPECT_EQ(port.events, expected_frame(c.port_address, c.slots));
    // Spot checks worked out by hand.
    EXPECT_EQ(port.events[8], std::make_pair(c.port_address, 8));  // slot 2: 1*7+1
    const int last = 3 + (c.slots - 1) * 5;
    EXPECT_EQ(port.events[last].second, c.slots == 65 ? 193 : 243);  // 449-256, 1779-6*256
  }
}

TEST(ParallelFrame, WithoutAPortNothingIsWrittenAndNothingFails) {
  TestConsole test;  // no port seam
  Console& console = test.build();
  test.store().Adapter = 4;
  test.scheduler.advance(70);
  EXPECT_FALSE(console.output_cycle().last_tick_failed());
  EXPECT_TRUE(test.dialogs.messages().empty());
}

}  // namespace
}  // namespace lumaris
