// The real libftdi seam without a usable library or device: every call must fail
// cleanly, never hang and never crash. The seam on this machine's own driver is
// exercised with the desk in real_seams_test.cpp.
#include "platform/linux/libftdi_d2xx.h"

#include <gtest/gtest.h>

namespace lumaris {
namespace {

TEST(LibftdiD2xx, AMissingOrWrongLibraryIsNoDriverAndEveryCallFails) {
  EXPECT_FALSE(LibftdiD2xx({"libm.so.6"}).driver_present());
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

TEST(LibftdiD2xx, CallsOnAHandleThatWasNeverOpenedFail) {
  LibftdiD2xx d2xx;
  EXPECT_NE(d2xx.FT_ResetDevice(1), D2xx::FT_OK);
  EXPECT_NE(d2xx.FT_SetDivisor(1, 12), D2xx::FT_OK);
  EXPECT_NE(d2xx.FT_SetBreakOn(1), D2xx::FT_OK);
  EXPECT_NE(d2xx.FT_Purge(1, D2xx::FT_PURGE_TX), D2xx::FT_OK);
}

}  // namespace
}  // namespace lumaris
