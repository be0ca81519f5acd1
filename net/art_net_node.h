#pragma once

#include <array>
#include <cstdint>

#include "core/store.h"

namespace lumaris {

class Console;

// The Art-Net node.
class D_ArtNet {
 public:
  explicit D_ArtNet(Console& console);
  void Art_Send_Dmx(int /*universe*/, const std::array<std::uint8_t, kDmxSlots + 1>& /*frame*/) {}

 private:
  Console& console_;
};

}  // namespace lumaris
