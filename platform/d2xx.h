#pragma once

#include <cstdint>

namespace lumaris {

// The FTDI D2XX calls the Open DMX USB driver makes, nothing more. Every call
// returns a status; 0 (FT_OK) is success.
class D2xx {
 public:
  using FT_HANDLE = std::uint32_t;
  using FT_STATUS = std::uint32_t;

  static constexpr FT_STATUS FT_OK = 0;
  static constexpr FT_STATUS FT_INVALID_HANDLE = 1;
  static constexpr FT_STATUS FT_DEVICE_NOT_FOUND = 2;
  static constexpr FT_STATUS FT_DEVICE_NOT_OPENED = 3;
  static constexpr FT_STATUS FT_IO_ERROR = 4;

  static constexpr std::uint8_t FT_BITS_8 = 8;
  static constexpr std::uint8_t FT_STOP_BITS_2 = 2;
  static constexpr std::uint8_t FT_PARITY_NONE = 0;
  static constexpr std::uint16_t FT_FLOW_NONE = 0;
  static constexpr std::uint32_t FT_PURGE_RX = 1;
  static constexpr std::uint32_t FT_PURGE_TX = 2;

  virtual ~D2xx() = default;

  // Whether the driver library itself is installed and usable (the device may
  // still be missing).
  virtual bool driver_present() = 0;

  virtual FT_STATUS FT_Open(int device, FT_HANDLE* handle) = 0;
  virtual FT_STATUS FT_Close(FT_HANDLE handle) = 0;
  virtual FT_STATUS FT_ResetDevice(FT_HANDLE handle) = 0;
  // Baud rate as a divisor of the chip's 3 MHz base clock.
  virtual FT_STATUS FT_SetDivisor(FT_HANDLE handle, std::uint16_t divisor) = 0;
  virtual FT_STATUS FT_SetDataCharacteristics(FT_HANDLE handle, std::uint8_t word_length,
                                              std::uint8_t stop_bits, std::uint8_t parity) = 0;
  virtual FT_STATUS FT_SetFlowControl(FT_HANDLE handle, std::uint16_t flow, std::uint8_t xon,
                                      std::uint8_t xoff) = 0;
  virtual FT_STATUS FT_ClrRts(FT_HANDLE handle) = 0;
  virtual FT_STATUS FT_Purge(FT_HANDLE handle, std::uint32_t mask) = 0;
  virtual FT_STATUS FT_SetBreakOn(FT_HANDLE handle) = 0;
  virtual FT_STATUS FT_SetBreakOff(FT_HANDLE handle) = 0;
  virtual FT_STATUS FT_Write(FT_HANDLE handle, const std::uint8_t* data, std::uint32_t length,
                             std::uint32_t* written) = 0;
};

}  // namespace lumaris
