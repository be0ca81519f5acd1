#include <gtest/gtest.h>

#include "console/output_cycle.h"
#include "output/output_devices.h"
#include "output/portsetup.h"
#include "tests/support/fake_d2xx.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

// A flaky cable: the device drops out and comes back a thousand times, for a
// varying number of ticks each time. The frame must be back on the wire in the
// very tick the device answers again, and nothing else may be said than the
// link status.
TEST(UsbUnplugFault, ThousandUnplugCycles) {
  FakeD2xx device;
  TestConsole test;
  test.services.d2xx = &device;
  Console& console = test.build();
  console.port_setup().Form_Load();
  console.port_setup().Combo1_Click(3);
  console.port_setup().Command1_Click();
  const int interval = console.output_cycle().Timer1().interval();
  ASSERT_EQ(interval, 40);
  test.scheduler.advance(interval);
  ASSERT_EQ(test.console->status().main(), " Open USB Connected");

  for (int cycle = 0; cycle < 1000; ++cycle) {
    SCOPED_TRACE(cycle);
    device.unplug();
    const int away = 1 + cycle % 4;
    for (int t = 0; t < away; ++t) test.scheduler.advance(interval);
    ASSERT_EQ(test.console->status().main(), " Open USB Searching");
    ASSERT_FALSE(device.device_open());

    device.plug();
    device.clear();
    test.store().Desk_Level[0] = static_cast<std::int16_t>(cycle % 256);
    test.scheduler.advance(interval);
    ASSERT_EQ(test.console->status().main(), " Open USB Connected");
    ASSERT_EQ(device.writes().size(), 2u);
    ASSERT_EQ(device.writes()[1][0], cycle % 256);  // this tick's frame
    ASSERT_FALSE(console.output_cycle().last_tick_failed());
  }
  EXPECT_TRUE(test.dialogs.messages().empty());
  console.shutdown();
  EXPECT_FALSE(device.device_open());
}

}  // namespace
}  // namespace lumaris
