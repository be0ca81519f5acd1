#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/d2xx.h"
#include "platform/linux/shared_library.h"

struct ftdi_context;

namespace lumaris {

// The D2XX calls over libftdi1, loaded at run time: the first FTDI device
// (vendor 0x0403) of the kinds Open DMX USB interfaces are built on. libftdi
// detaches the kernel's ftdi_sio driver from the device when it opens it.
class LibftdiD2xx final : public D2xx {
 public:
  static const std::vector<std::string> kLibraryNames;
  static constexpr int kVendor = 0x0403;
  // FT232R, FT245R and FT245BM all answer with 0x6001.
  static constexpr std::uint16_t kProducts[] = {0x6001};

  explicit LibftdiD2xx(std::vector<std::string> library_names = kLibraryNames);
  ~LibftdiD2xx() override;
  LibftdiD2xx(const LibftdiD2xx&) = delete;
  LibftdiD2xx& operator=(const LibftdiD2xx&) = delete;

  // The library loads, has every function and can start a USB context.
  bool driver_present() override;

  FT_STATUS FT_Open(int device, FT_HANDLE* handle) override;
  FT_STATUS FT_Close(FT_HANDLE handle) override;
  FT_STATUS FT_ResetDevice(FT_HANDLE handle) override;
  FT_STATUS FT_SetDivisor(FT_HANDLE handle, std::uint16_t divisor) override;
  FT_STATUS FT_SetDataCharacteristics(FT_HANDLE handle, std::uint8_t word_length,
                                      std::uint8_t stop_bits, std::uint8_t parity) override;
  FT_STATUS FT_SetFlowControl(FT_HANDLE handle, std::uint16_t flow, std::uint8_t xon,
                              std::uint8_t xoff) override;
  FT_STATUS FT_ClrRts(FT_HANDLE handle) override;
  FT_STATUS FT_Purge(FT_HANDLE handle, std::uint32_t mask) override;
  FT_STATUS FT_SetBreakOn(FT_HANDLE handle) override;
  FT_STATUS FT_SetBreakOff(FT_HANDLE handle) override;
  FT_STATUS FT_Write(FT_HANDLE handle, const std::uint8_t* data, std::uint32_t length,
                     std::uint32_t* written) override;

 private:
  // libftdi's C interface; its enums travel as int.
  struct Api {
    ftdi_context* (*new_context)() = nullptr;
    void (*free_context)(ftdi_context*) = nullptr;
    int (*usb_open)(ftdi_context*, int, int) = nullptr;
    int (*usb_close)(ftdi_context*) = nullptr;
    int (*usb_reset)(ftdi_context*) = nullptr;
    int (*set_baudrate)(ftdi_context*, int) = nullptr;
    int (*set_line_property2)(ftdi_context*, int, int, int, int) = nullptr;
    int (*setflowctrl)(ftdi_context*, int) = nullptr;
    int (*setrts)(ftdi_context*, int) = nullptr;
    int (*flush_tx)(ftdi_context*) = nullptr;
    int (*flush_rx)(ftdi_context*) = nullptr;
    int (*write_data)(ftdi_context*, const unsigned char*, int) = nullptr;
  };

  bool load();
  bool is_open(FT_HANDLE handle) const { return handle != 0 && handle == open_handle_; }
  FT_STATUS result(FT_HANDLE handle, int (*call)(ftdi_context*));
  FT_STATUS set_break(FT_HANDLE handle, bool on);

  std::vector<std::string> names_;
  SharedLibrary library_;
  Api api_;
  bool tried_ = false;
  bool usable_ = false;
  ftdi_context* context_ = nullptr;
  FT_HANDLE open_handle_ = 0;
  FT_HANDLE next_handle_ = 1;
  int bits_ = 8;
  int stop_bits_ = 2;  // libftdi STOP_BIT_2
  int parity_ = 0;
};

}  // namespace lumaris
