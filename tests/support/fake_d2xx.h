#pragma once

#include <cstdint>
#include <initializer_list>
#include <map>
#include <string>
#include <vector>

#include "platform/d2xx.h"

namespace lumaris {

// An FTDI device on a fake D2XX library. Records every call by name, keeps the
// bytes each FT_Write was given, and fails the calls a test names. Unplugging
// makes every call fail and invalidates the open handle, as a real device does.
class FakeD2xx final : public D2xx {
 public:
  bool driver_present() override { return driver_present_; }
  FT_STATUS FT_Open(int device, FT_HANDLE* handle) override;
  FT_STATUS FT_Close(FT_HANDLE handle) override;
  FT_STATUS FT_ResetDevice(FT_HANDLE h) override { return handle_call("FT_ResetDevice", h); }
  FT_STATUS FT_SetDivisor(FT_HANDLE h, std::uint16_t divisor) override {
    return handle_call("FT_SetDivisor(" + std::to_string(divisor) + ")", h);
  }
  FT_STATUS FT_SetDataCharacteristics(FT_HANDLE h, std::uint8_t bits, std::uint8_t stop,
                                      std::uint8_t parity) override {
    return handle_call("FT_SetDataCharacteristics(" + numbers({bits, stop, parity}) + ")", h);
  }
  FT_STATUS FT_SetFlowControl(FT_HANDLE h, std::uint16_t flow, std::uint8_t xon,
                              std::uint8_t xoff) override {
    return handle_call("FT_SetFlowControl(" + numbers({flow, xon, xoff}) + ")", h);
  }
  FT_STATUS FT_ClrRts(FT_HANDLE h) override { return handle_call("FT_ClrRts", h); }
  FT_STATUS FT_Purge(FT_HANDLE h, std::uint32_t mask) override {
    return handle_call("FT_Purge(" + std::to_string(mask) + ")", h);
  }
  FT_STATUS FT_SetBreakOn(FT_HANDLE h) override { return handle_call("FT_SetBreakOn", h); }
  FT_STATUS FT_SetBreakOff(FT_HANDLE h) override { return handle_call("FT_SetBreakOff", h); }
  FT_STATUS FT_Write(FT_HANDLE handle, const std::uint8_t* data, std::uint32_t length,
                     std::uint32_t* written) override;

  // Makes the call (as recorded, e.g. "FT_Purge(1)" or "FT_Write(512)") fail from now on.
  void fail(const std::string& call, FT_STATUS status = FT_IO_ERROR) { failures_[call] = status; }
  void heal(const std::string& call) { failures_.erase(call); }
  void unplug();
  void plug() { plugged_ = true; }
  void set_driver_present(bool present) { driver_present_ = present; }

  const std::vector<std::string>& calls() const { return calls_; }
  const std::vector<std::vector<std::uint8_t>>& writes() const { return writes_; }
  bool device_open() const { return open_handle_ != 0; }
  void clear() {
    calls_.clear();
    writes_.clear();
  }

 private:
  FT_STATUS handle_call(const std::string& call, FT_HANDLE handle);
  static std::string numbers(std::initializer_list<unsigned> values) {
    std::string text;
    for (unsigned v : values) text += (text.empty() ? "" : ",") + std::to_string(v);
    return text;
  }

  bool driver_present_ = true;
  bool plugged_ = true;
  FT_HANDLE open_handle_ = 0;
  FT_HANDLE next_handle_ = 0x100;
  std::map<std::string, FT_STATUS> failures_;
  std::vector<std::string> calls_;
  std::vector<std::vector<std::uint8_t>> writes_;
};

}  // namespace lumaris
