#pragma once

#include <cstdint>
#include <span>

namespace lumaris {

class PortIo;

inline constexpr int kParlexSlots = 65;
inline constexpr int kManolatorSlots = 255;
inline constexpr int kLpt1Address = 888;  // 0x378
inline constexpr int kLpt2Address = 632;  // 0x278

// Clocks the first `slots` bytes of the frame out of the parallel port at `base`
// (data register base, control register base + 2), with counting loops as the
// only delays. A null port writes nothing. False when the port took not every
// byte: it is missing or not accessible.
bool Send_Parallel_Frame(PortIo* port, int base, std::span<const std::uint8_t> frame, int slots);

// The pulse that wakes an OKI DMX 3-1 adapter on the port at `base`.
void Oki_Wake_Up(PortIo* port, int base);

}  // namespace lumaris
