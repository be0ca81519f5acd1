#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "platform/d2xx.h"

namespace lumaris {

class DeskContext;

// The Open DMX USB driver (module opendmx): an FTDI chip behind an RS-485 line
// driver, opened for DMX512 (250 kbaud, 8N2) and sent frames of break, start
// code and 512 slots. Failures never raise: they keep a code 1..11 and, unless
// the driver is quiet, show a message box.
class OpenDmx {
 public:
  static constexpr int kDataLength = 512;

  // Error codes of the last failing step.
  enum Code : std::uint8_t {
    kNoError = 0,
    kOpenFailed = 1,
    kResetFailed = 2,
    kBaudRateFailed = 3,
    kDataCharacteristicsFailed = 4,
    kFlowControlFailed = 5,
    kRtsFailed = 6,
    kPurgeTxFailed = 7,
    kPurgeRxFailed = 8,
    kCloseFailed = 9,
    kStartCodeFailed = 10,
    kDataFailed = 11,
  };

  // `d2xx` may be null: the driver then behaves as one with no device attached.
  OpenDmx(DeskContext& context, D2xx* d2xx);

  // Sets quiet mode (mode 1) or loud mode and reports the code of the previous operations.
  std::uint8_t USB_Get_Error(int mode);
  D2xx::FT_HANDLE USB_Close_Device();
  D2xx::FT_HANDLE USB_Reset_Device();
  D2xx::FT_HANDLE USB_Open_Device();
  void USB_Set_Start_Code(std::uint8_t code);
  // Keeps the first 512 elements; a shorter frame is padded with blanks.
  void USB_Set_Data(std::span<const std::uint8_t> frame);
  D2xx::FT_HANDLE USB_Send_Frame();
  void USB_Close_If_Open();

  bool USB_Open() const { return open_; }
  bool USB_Quiet() const { return quiet_; }
  std::uint8_t USB_Error() const { return error_; }
  const std::array<std::uint8_t, kDataLength>& USB_Data() const { return data_; }
  std::uint8_t USB_Start_Code() const { return start_code_; }
  bool driver_present();

 private:
  // A failing step: a message box when loud, the code when quiet.
  void fail(Code code);
  void fail_with_status(Code code, const char* main_text, const char* playback_text);
  bool open_step(D2xx::FT_STATUS status, Code code);

  DeskContext& context_;
  D2xx& d2xx_;
  D2xx::FT_HANDLE handle_ = 0;
  std::array<std::uint8_t, kDataLength> data_{};
  std::uint8_t start_code_ = 0;
  std::uint32_t bytes_written_ = 0;
  bool quiet_ = false;
  std::uint8_t error_ = kNoError;
  bool open_ = false;
};

}  // namespace lumaris
