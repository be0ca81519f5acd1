// The libftdi wrapper against a stand-in library loaded the way the real one is:
// what the desk asks in D2XX terms must reach libftdi as the same line settings.
#include "platform/linux/libftdi_d2xx.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/linux/shared_library.h"

namespace lumaris {
namespace {

// The stand-in's record of the calls it received, one per line.
struct FakeLibftdi {
  SharedLibrary library;  // the wrapper's own handle: dlopen shares the loaded module
  const char* (*calls_text)() = nullptr;
  void (*clear)() = nullptr;
  void (*fail)(const char*) = nullptr;

  FakeLibftdi() {
    library.load({LUMARIS_FAKE_LIBFTDI});
    calls_text = library.function<const char* (*)()>("fake_ftdi_calls");
    clear = library.function<void (*)()>("fake_ftdi_clear");
    fail = library.function<void (*)(const char*)>("fake_ftdi_fail");
  }
  std::vector<std::string> calls() const {
    std::vector<std::string> lines;
    std::string text = calls_text();
    for (std::size_t start = 0, end; (end = text.find('\n', start)) != std::string::npos;
         start = end + 1) {
      lines.push_back(text.substr(start, end - start));
    }
    return lines;
  }
};

TEST(LibftdiD2xx, OpensFor250kBaud8N2WithoutFlowControlAndSendsBreakStartCodeAndFrame) {
  LibftdiD2xx d2xx({LUMARIS_FAKE_LIBFTDI});
  FakeLibftdi fake;
  ASSERT_NE(fake.calls_text, nullptr);
  ASSERT_TRUE(d2xx.driver_present());
  fake.clear();

  // The Open DMX USB driver's open and one frame, in its order.
  D2xx::FT_HANDLE h = 0;
  ASSERT_EQ(d2xx.FT_Open(0, &h), D2xx::FT_OK);
  const std::uint8_t start_code = 0;
  std::vector<std::uint8_t> frame(512, 0);
  frame[0] = 200;
  std::uint32_t written = 0;
  for (const D2xx::FT_STATUS status :
       {d2xx.FT_ResetDevice(h), d2xx.FT_SetDivisor(h, 12),
        d2xx.FT_SetDataCharacteristics(h, D2xx::FT_BITS_8, D2xx::FT_STOP_BITS_2, D2xx::FT_PARITY_NONE),
        d2xx.FT_SetFlowControl(h, D2xx::FT_FLOW_NONE, 0, 0), d2xx.FT_ClrRts(h),
        d2xx.FT_Purge(h, D2xx::FT_PURGE_TX), d2xx.FT_Purge(h, D2xx::FT_PURGE_RX), d2xx.FT_SetBreakOn(h),
        d2xx.FT_SetBreakOff(h), d2xx.FT_Write(h, &start_code, 1, &written),
        d2xx.FT_Write(h, frame.data(), 512, &written), d2xx.FT_Close(h)}) {
    EXPECT_EQ(status, D2xx::FT_OK);
  }
  EXPECT_EQ(written, 512u);

  EXPECT_EQ(fake.calls(), (std::vector<std::string>{
                              "ftdi_usb_open(0x0403, 0x6001)",      // FTDI, FT232R/FT245
                              "ftdi_usb_reset",                      //
                              "ftdi_set_baudrate(250000)",           // 3 MHz / 12
                              "ftdi_set_line_property2(8, 2, 0, 0)", // BITS_8, STOP_BIT_2, NONE, BREAK_OFF
                              "ftdi_setflowctrl(0)",                 // SIO_DISABLE_FLOW_CTRL
                              "ftdi_setrts(0)",                      // RS-485 driver to send
                              "ftdi_tcoflush",                       // transmit buffer
                              "ftdi_tciflush",                       // receive buffer
                              "ftdi_set_line_property2(8, 2, 0, 1)", // break on, still 8N2
                              "ftdi_set_line_property2(8, 2, 0, 0)", // break off: mark
                              "ftdi_write_data(1, 0)",               // start code 0
                              "ftdi_write_data(512, 200)",           // 512 slots, slot 1 first
                              "ftdi_usb_close",
                          }))
      << "no other setting (latency, chunk size) reaches the chip";
}

TEST(LibftdiD2xx, LibraryFailuresUnopenedHandlesAndAMissingLibraryFailWithoutReachingTheChip) {
  LibftdiD2xx d2xx({LUMARIS_FAKE_LIBFTDI});
  FakeLibftdi fake;
  ASSERT_NE(fake.fail, nullptr);
  D2xx::FT_HANDLE handle = 0;
  EXPECT_NE(d2xx.FT_ResetDevice(1), D2xx::FT_OK);  // nothing open yet
  EXPECT_NE(d2xx.FT_SetBreakOn(1), D2xx::FT_OK);
  ASSERT_EQ(d2xx.FT_Open(0, &handle), D2xx::FT_OK);
  EXPECT_NE(d2xx.FT_Purge(handle + 1, D2xx::FT_PURGE_TX), D2xx::FT_OK);  // not this handle
  fake.clear();
  fake.fail("ftdi_set_baudrate");
  EXPECT_EQ(d2xx.FT_SetDivisor(handle, 12), D2xx::FT_IO_ERROR);
  fake.fail("ftdi_write_data");
  std::uint32_t written = 7;
  const std::uint8_t byte = 0;
  EXPECT_EQ(d2xx.FT_Write(handle, &byte, 1, &written), D2xx::FT_IO_ERROR);
  EXPECT_EQ(written, 0u);
  fake.fail("");
  // The break keeps whatever line settings were set last.
  EXPECT_EQ(d2xx.FT_SetDataCharacteristics(handle, 7, 0, 2), D2xx::FT_OK);
  EXPECT_EQ(d2xx.FT_SetBreakOn(handle), D2xx::FT_OK);
  EXPECT_EQ(fake.calls(), (std::vector<std::string>{
                              "ftdi_set_baudrate(250000)",            // failed
                              "ftdi_write_data(1, 0)",                // failed
                              "ftdi_set_line_property2(7, 0, 2, 0)",  // BITS_7, STOP_BIT_1, EVEN
                              "ftdi_set_line_property2(7, 0, 2, 1)",  // the same, BREAK_ON
                          }));

  // A missing or wrong library is no driver, and every call fails.
  EXPECT_FALSE(LibftdiD2xx({"libm.so.6"}).driver_present());
  LibftdiD2xx missing({"liblumaris-no-such-ftdi.so"});
  EXPECT_FALSE(missing.driver_present());
  EXPECT_NE(missing.FT_Open(0, &handle), D2xx::FT_OK);
  EXPECT_NE(missing.FT_Close(handle), D2xx::FT_OK);
}

}  // namespace
}  // namespace lumaris
