#pragma once

#include <cstdint>

namespace lumaris {

// Byte writes to the I/O registers of a parallel port, addressed the PC way
// (0x378 data, 0x37A control for LPT1; 0x278, 0x27A for LPT2).
class PortIo {
 public:
  virtual ~PortIo() = default;
  // False when the port is missing or not accessible; the byte then goes nowhere.
  virtual bool Out32(std::uint16_t port, std::uint8_t value) = 0;

  // The adapters were timed against the processor, not the clock: between some
  // writes the sender runs an empty counting loop of `rounds`, which the
  // compiler must not remove.
  virtual void Wait_Loop(int rounds) {
    volatile int n = 0;
    while (n < rounds) n = n + 1;
  }
};

}  // namespace lumaris
