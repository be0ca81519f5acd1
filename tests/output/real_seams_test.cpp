// Every adapter chosen on this machine's real seams. Where the hardware or its
// library is missing the desk must say so in its own words, once, and go on.
#include <gtest/gtest.h>

#include <sstream>

#include "console/output_cycle.h"
#include "output/output_devices.h"
#include "output/portsetup.h"
#include "platform/linux/libftdi_d2xx.h"
#include "platform/linux/ppdev_port_io.h"
#include "platform/linux/shared_library.h"
#include "platform/linux/vendor_libraries.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

struct RealSeamsTest : ::testing::Test {
  LibftdiD2xx d2xx;
  std::ostringstream port_log;
  PpdevPortIo port{&port_log};
  VendorLibraries libraries;
  TestConsole test;
  Console* console = nullptr;

  void SetUp() override {
    test.services.d2xx = &d2xx;
    test.services.port_io = &port;
    test.services.adapter_libraries = &libraries;
    console = &test.build();
  }
  void choose_and_save(int adapter) {
    Portsetup& setup = console->port_setup();
    setup.Form_Load();
    setup.Show();
    setup.Combo1_Click(adapter);
    setup.Command1_Click();
  }
  void run_ticks(int n) {
    test.scheduler.advance(static_cast<long>(n) * console->output_cycle().Timer1().interval());
  }
  static bool installed(const std::vector<std::string>& names) {
    SharedLibrary probe;
    return probe.load(names);
  }
};

TEST_F(RealSeamsTest, ParallelAdaptersRunWithOrWithoutAPort) {
  choose_and_save(1);
  EXPECT_EQ(test.console->status().main(), " Parlex Adapter Running");
  run_ticks(5);
  choose_and_save(4);
  EXPECT_EQ(test.console->status().main(), " Manolator Connectd  70ms");
  run_ticks(5);
  EXPECT_EQ(test.store().Adapter, 4);
  EXPECT_FALSE(console->output_cycle().last_tick_failed());
  EXPECT_TRUE(test.dialogs.messages().empty());
}

TEST_F(RealSeamsTest, OkiWithoutItsLibraryFallsBackToNoneOnce) {
  if (installed(VendorLibraries::kOkiNames)) GTEST_SKIP() << "an OKI library is installed";
  choose_and_save(2);
  run_ticks(10);
  ASSERT_EQ(test.dialogs.messages().size(), 2u);  // the read and the write of one tick
  EXPECT_EQ(test.dialogs.messages()[0].text, " 3-1 DMX Adapter Not Connected or Not Responding");
  EXPECT_EQ(test.store().Adapter, 0);
}

TEST_F(RealSeamsTest, OksidizerWithoutItsLibraryFallsBackToNoneOnce) {
  if (installed(VendorLibraries::kOksidizerNames)) GTEST_SKIP() << "usb2dmx is installed";
  choose_and_save(5);
  console->port_setup().Form_Load();  // opened again to watch it
  console->port_setup().Show();
  run_ticks(10);
  ASSERT_EQ(test.dialogs.messages().size(), 1u);
  EXPECT_EQ(test.dialogs.messages()[0].title, " DMX ERROR");
  EXPECT_EQ(test.store().Adapter, 0);
  EXPECT_EQ(console->port_setup().Combo1_ListIndex(), 0);  // the open window follows
}

TEST_F(RealSeamsTest, OpenDmxSearchesQuietlyOrSaysTheDriverIsMissing) {
  choose_and_save(3);
  run_ticks(10);
  EXPECT_TRUE(test.dialogs.messages().empty());
  const std::string status = test.console->status().main();
  if (!d2xx.driver_present()) {
    EXPECT_EQ(status, " Open USB Not Found !");
  } else {
    EXPECT_TRUE(status == " Open USB Searching" || status == " Open USB Searching......." ||
                status == " Open USB Connected")
        << status;
  }
  console->shutdown();
}

}  // namespace
}  // namespace lumaris
