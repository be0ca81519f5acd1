#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <ostream>
#include <string>

#include "platform/port_io.h"

namespace lumaris {

// The parallel port through Linux ppdev: 0x378 is /dev/parport0, 0x278 is
// /dev/parport1; offset 0 is the data register, offset 2 the control register.
// Each port is opened and claimed once, on its first byte, and kept until exit.
// A port that cannot be opened is reported once and its bytes go nowhere.
class PpdevPortIo final : public PortIo {
 public:
  struct Register {
    int device;  // N of /dev/parportN
    int offset;  // 0 data, 2 control
  };

  // `diagnostics` (may be null) hears once about each port that cannot be used.
  explicit PpdevPortIo(std::ostream* diagnostics, std::string device_prefix = "/dev/parport");
  ~PpdevPortIo() override;
  PpdevPortIo(const PpdevPortIo&) = delete;
  PpdevPortIo& operator=(const PpdevPortIo&) = delete;

  bool Out32(std::uint16_t port, std::uint8_t value) override;

  // Which device and register a PC port address names; nothing for other addresses.
  static std::optional<Register> register_of(std::uint16_t port);

 private:
  struct Device {
    int fd = -1;
    bool tried = false;
  };
  int claimed_fd(int device);

  std::ostream* diagnostics_;
  std::string prefix_;
  std::array<Device, 2> devices_{};
};

}  // namespace lumaris
