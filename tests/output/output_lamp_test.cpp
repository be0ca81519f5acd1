#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "console/output_cycle.h"
#include "core/main_desk.h"
#include "output/output_device_setup.h"
#include "output/output_devices.h"
#include "tests/support/fake_adapter_libraries.h"
#include "tests/support/fake_d2xx.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

// The DMX lamp after one output tick: green while the chosen adapter takes the
// frames, amber with the reason while it is absent or failing.
struct DmxLampTest : ::testing::Test {
  FakeD2xx device;
  FakeAdapterLibraries libraries;
  TestConsole test;  // no parallel port on this computer
  Console* console = nullptr;

  void SetUp() override {
    test.services.d2xx = &device;
    test.services.adapter_libraries = &libraries;
    console = &test.build();
  }
  std::tuple<Rgb, std::string> lamp_after_tick() {
    test.scheduler.advance(console->output_cycle().output_timer().interval());
    const MainDesk& desk = console->main_desk();
    return {desk.dmx_lamp(), desk.dmx_lamp_tooltip()};
  }
  void choose(int adapter) { test.store().Adapter = static_cast<std::int16_t>(adapter); }
};

const std::tuple<Rgb, std::string> kWorking{kGreen, "DMX output"};
std::tuple<Rgb, std::string> amber(const std::string& why) { return {MainDesk::kTroubleLamp, why}; }

TEST_F(DmxLampTest, AnAbsentAdapterHoldsTheLampAmberWithItsReasonUntilFramesGetThrough) {
  EXPECT_EQ(lamp_after_tick(), kWorking) << "no adapter chosen";
  choose(1);
  EXPECT_EQ(lamp_after_tick(), amber("Parlex DMX Adapter: the parallel port at 378h is missing or not accessible"));

  choose(3);
  device.unplug();
  EXPECT_EQ(lamp_after_tick(), amber("Open DMX USB Adapter not found: searching for it at every output tick"));
  device.plug();
  EXPECT_EQ(lamp_after_tick(), kWorking);
  device.set_driver_present(false);
  EXPECT_EQ(lamp_after_tick(), amber("Open DMX USB Adapter: the FTDI driver is not installed"));
}

TEST_F(DmxLampTest, AFailingAdapterSwitchedOffKeepsItsReasonUntilTheOperatorChoosesAgain) {
  choose(5);
  libraries.oksid_status = 1;
  const auto failed = amber("USB DMX Adapter Not Connected or Not Responding");
  EXPECT_EQ(lamp_after_tick(), failed);
  EXPECT_EQ(test.store().Adapter, 0);
  EXPECT_EQ(lamp_after_tick(), failed) << "still, with no adapter in force";

  OutputDeviceSetup& setup = console->output_device_setup();
  setup.Form_Load();
  setup.Show();
  EXPECT_EQ(lamp_after_tick(), failed) << "looking at the set-up is no choice";
  setup.save_clicked();
  EXPECT_EQ(lamp_after_tick(), kWorking);
}

}  // namespace
}  // namespace lumaris
