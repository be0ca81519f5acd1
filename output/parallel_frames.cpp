#include "output/parallel_frames.h"

#include "platform/port_io.h"

namespace lumaris {

namespace {

constexpr int kControlOffset = 2;
constexpr int kStartWait = 50;
constexpr int kStrobeWait = 20;

void wait(PortIo* port, int rounds) {
  if (port != nullptr) port->Wait_Loop(rounds);
}

bool out(PortIo* port, int address, int value) {
  return port != nullptr &&
         port->Out32(static_cast<std::uint16_t>(address), static_cast<std::uint8_t>(value));
}

}  // namespace

bool Send_Parallel_Frame(PortIo* port, int base, std::span<const std::uint8_t> frame, int slots) {
  const int control = base + kControlOffset;
  bool written = out(port, control, 3);
  wait(port, kStartWait);
  written &= out(port, control, 1);
  for (int i = 0; i < slots && i < static_cast<int>(frame.size()); ++i) {
    written &= out(port, base, frame[i]);
    written &= out(port, control, 0);
    wait(port, kStrobeWait);
    written &= out(port, control, 1);
    wait(port, kStrobeWait);
  }
  written &= out(port, control, 1);
  return written;
}

void Oki_Wake_Up(PortIo* port, int base) {
  out(port, base + kControlOffset, 3);
  wait(port, kStartWait);
  out(port, base + kControlOffset, 1);
  out(port, base, 255);
}

}  // namespace lumaris
