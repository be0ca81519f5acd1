#include "output/open_dmx.h"

#include <algorithm>

#include "core/desk_context.h"
#include "platform/dialogs.h"

namespace lumaris {

namespace {

constexpr std::uint8_t kBlank = 0x20;
constexpr std::uint16_t kDmxDivisor = 12;  // 3 MHz / 12 = 250 kbaud

constexpr const char* kMessages[] = {
    "",
    "Open Failed!",
    "Failed To Reset Device!",
    "Failed To Set Baud Rate!",
    "Failed To Set Data Characteristics!",
    "Failed to set flow control!",
    "Failed to set RS485 to send!",
    "Failed to purge TX buffer!",
    "Failed to purge RX buffer!",
    "Close Failed",
    "Write Start Code Failed!",
    "Write DMX Failed!",
};

constexpr const char* kOpenFailedMain = "Open USB Device Failed! ";
constexpr const char* kOpenFailedPlayback = "Open USB Device Failed!";
constexpr const char* kResetFailedMain = "Open USB Device Reset Failed! ";
constexpr const char* kResetFailedPlayback = "Open USB Device Reset Failed!";
constexpr const char* kBaudFailedMain = "Open USB Device Baudrate Failed! ";
constexpr const char* kBaudFailedPlayback = "Open USB Device Baudrate Failed!";
constexpr const char* kResetUsbFailedMain = "Failed To Reset USB Device! ";
constexpr const char* kResetUsbFailedPlayback = "Failed To Reset USB Device!";
constexpr const char* kCloseUsbFailedMain = "Failed To Close USB Device! ";
constexpr const char* kCloseUsbFailedPlayback = "Failed To Close USB Device!";

// What the driver talks to when there is no D2XX library at all.
class NoDevice final : public D2xx {
 public:
  bool driver_present() override { return false; }
  FT_STATUS FT_Open(int, FT_HANDLE*) override { return FT_DEVICE_NOT_FOUND; }
  FT_STATUS FT_Close(FT_HANDLE) override { return FT_INVALID_HANDLE; }
  FT_STATUS FT_ResetDevice(FT_HANDLE) override { return FT_INVALID_HANDLE; }
  FT_STATUS FT_SetDivisor(FT_HANDLE, std::uint16_t) override { return FT_INVALID_HANDLE; }
  FT_STATUS FT_SetDataCharacteristics(FT_HANDLE, std::uint8_t, std::uint8_t,
                                      std::uint8_t) override {
    return FT_INVALID_HANDLE;
  }
  FT_STATUS FT_SetFlowControl(FT_HANDLE, std::uint16_t, std::uint8_t, std::uint8_t) override {
    return FT_INVALID_HANDLE;
  }
  FT_STATUS FT_ClrRts(FT_HANDLE) override { return FT_INVALID_HANDLE; }
  FT_STATUS FT_Purge(FT_HANDLE, std::uint32_t) override { return FT_INVALID_HANDLE; }
  FT_STATUS FT_SetBreakOn(FT_HANDLE) override { return FT_INVALID_HANDLE; }
  FT_STATUS FT_SetBreakOff(FT_HANDLE) override { return FT_INVALID_HANDLE; }
  FT_STATUS FT_Write(FT_HANDLE, const std::uint8_t*, std::uint32_t, std::uint32_t*) override {
    return FT_INVALID_HANDLE;
  }
};

D2xx& device_or_none(D2xx* d2xx) {
  static NoDevice none;
  return d2xx != nullptr ? *d2xx : none;
}

}  // namespace

OpenDmx::OpenDmx(DeskContext& context, D2xx* d2xx)
    : context_(context), d2xx_(device_or_none(d2xx)) {
  data_.fill(kBlank);
}

bool OpenDmx::driver_present() { return d2xx_.driver_present(); }

std::uint8_t OpenDmx::USB_Get_Error(int mode) {
  quiet_ = mode == 1;
  return error_;
}

void OpenDmx::fail(Code code) {
  if (quiet_) {
    error_ = code;
    return;
  }
  context_.dialogs().message({"", kMessages[code], MessageIcon::None, MessageButtons::Ok,
                              MessageResult::Ok});
}

void OpenDmx::fail_with_status(Code code, const char* main_text, const char* playback_text) {
  fail(code);
  if (!quiet_) context_.status().show(main_text, playback_text);
}

bool OpenDmx::open_step(D2xx::FT_STATUS status, Code code) {
  if (status == D2xx::FT_OK) return true;
  switch (code) {
    case kOpenFailed:
      fail_with_status(code, kOpenFailedMain, kOpenFailedPlayback);
      break;
    case kResetFailed:
      fail_with_status(code, kResetFailedMain, kResetFailedPlayback);
      break;
    case kBaudRateFailed:
      fail_with_status(code, kBaudFailedMain, kBaudFailedPlayback);
      break;
    default:
      fail(code);
      break;
  }
  USB_Close_If_Open();
  return false;
}

D2xx::FT_HANDLE OpenDmx::USB_Open_Device() {
  open_ = false;
  error_ = kNoError;
  D2xx& d = d2xx_;
  const bool opened =
      open_step(d.FT_Open(0, &handle_), kOpenFailed) &&
      open_step(d.FT_ResetDevice(handle_), kResetFailed) &&
      open_step(d.FT_SetDivisor(handle_, kDmxDivisor), kBaudRateFailed) &&
      open_step(d.FT_SetDataCharacteristics(handle_, D2xx::FT_BITS_8, D2xx::FT_STOP_BITS_2,
                                            D2xx::FT_PARITY_NONE),
                kDataCharacteristicsFailed) &&
      open_step(d.FT_SetFlowControl(handle_, D2xx::FT_FLOW_NONE, 0, 0), kFlowControlFailed) &&
      open_step(d.FT_ClrRts(handle_), kRtsFailed) &&
      open_step(d.FT_Purge(handle_, D2xx::FT_PURGE_TX), kPurgeTxFailed) &&
      open_step(d.FT_Purge(handle_, D2xx::FT_PURGE_RX), kPurgeRxFailed);
  if (opened) {
    data_.fill(kBlank);
    bytes_written_ = 0;
    open_ = true;
  }
  return handle_;
}

D2xx::FT_HANDLE OpenDmx::USB_Reset_Device() {
  error_ = kNoError;
  if (d2xx_.FT_ResetDevice(handle_) != D2xx::FT_OK) {
    fail_with_status(kResetFailed, kResetUsbFailedMain, kResetUsbFailedPlayback);
  }
  return handle_;
}

D2xx::FT_HANDLE OpenDmx::USB_Close_Device() {
  error_ = kNoError;
  if (d2xx_.FT_Close(handle_) != D2xx::FT_OK) {
    fail_with_status(kCloseFailed, kCloseUsbFailedMain, kCloseUsbFailedPlayback);
  }
  return handle_;
}

void OpenDmx::USB_Close_If_Open() {
  if (!open_) return;
  if (d2xx_.FT_Close(handle_) != D2xx::FT_OK) fail(kCloseFailed);
  open_ = false;
}

void OpenDmx::USB_Set_Start_Code(std::uint8_t code) { start_code_ = code; }

void OpenDmx::USB_Set_Data(std::span<const std::uint8_t> frame) {
  data_.fill(kBlank);
  const std::size_t kept = std::min(frame.size(), data_.size());
  std::copy_n(frame.begin(), kept, data_.begin());
}

D2xx::FT_HANDLE OpenDmx::USB_Send_Frame() {
  if (!open_) return handle_;
  // The break and the mark after it last as long as the two calls take.
  d2xx_.FT_SetBreakOn(handle_);
  d2xx_.FT_SetBreakOff(handle_);
  error_ = kNoError;
  if (d2xx_.FT_Write(handle_, &start_code_, 1, &bytes_written_) != D2xx::FT_OK) {
    fail(kStartCodeFailed);
  }
  if (d2xx_.FT_Write(handle_, data_.data(), kDataLength, &bytes_written_) != D2xx::FT_OK) {
    fail(kDataFailed);
  }
  return handle_;
}

}  // namespace lumaris
