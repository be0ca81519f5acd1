// The real libftdi seam on whatever machine runs the tests. No FTDI device is
// expected: every call must fail cleanly, never hang and never crash.
#include "platform/linux/libftdi_d2xx.h"

#include <gtest/gtest.h>

#include "output/output_devices.h"
#include "output/portsetup.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

TEST(LibftdiD2xx, AMissingLibraryIsNoDriverAndEveryCallFails) {
  LibftdiD2xx d2xx({"liblumaris-no-such-ftdi.so"});
  EXPECT_FALSE(d2xx.driver_present());
  D2xx::FT_HANDLE handle = 0;
  EXPECT_NE(d2xx.FT_Open(0, &handle), D2xx::FT_OK);
  EXPECT_NE(d2xx.FT_Close(handle), D2xx::FT_OK);
  std::uint32_t written = 7;
  const std::uint8_t byte = 0;
  EXPECT_NE(d2xx.FT_Write(handle, &byte, 1, &written), D2xx::FT_OK);
  EXPECT_EQ(written, 0u);
}

TEST(LibftdiD2xx, ALibraryWithoutTheFunctionsIsNoDriver) {
  LibftdiD2xx d2xx({"libm.so.6"});
  EXPECT_FALSE(d2xx.driver_present());
}

TEST(LibftdiD2xx, CallsOnAHandleThatWasNeverOpenedFail) {
  LibftdiD2xx d2xx;
  EXPECT_NE(d2xx.FT_ResetDevice(1), D2xx::FT_OK);
  EXPECT_NE(d2xx.FT_SetDivisor(1, 12), D2xx::FT_OK);
  EXPECT_NE(d2xx.FT_SetBreakOn(1), D2xx::FT_OK);
  EXPECT_NE(d2xx.FT_Purge(1, D2xx::FT_PURGE_TX), D2xx::FT_OK);
}

TEST(LibftdiD2xx, TheDriverOnThisMachineReportsGracefully) {
  LibftdiD2xx d2xx;
  TestConsole test;
  test.services.d2xx = &d2xx;
  Console& console = test.build();
  console.port_setup().Form_Load();
  console.port_setup().Combo1_Click(3);
  const std::string text2 = console.port_setup().Text2_Text();
  if (d2xx.driver_present()) {
    // Whether a device answers depends on the machine; either way the search ends.
    EXPECT_TRUE(text2 == "Connected" || text2 == "Searching...") << text2;
  } else {
    EXPECT_EQ(text2, "USB Driver not Found");
  }
  EXPECT_TRUE(test.dialogs.messages().empty());
  test.scheduler.advance(40 * 3);
  EXPECT_TRUE(test.dialogs.messages().empty());
  console.shutdown();
}

}  // namespace
}  // namespace lumaris
