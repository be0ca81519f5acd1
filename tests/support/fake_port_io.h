#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "platform/port_io.h"

namespace lumaris {

// A parallel port that records every byte written to it as (address, value).
class FakePortIo final : public PortIo {
 public:
  bool Out32(std::uint16_t port, std::uint8_t value) override {
    writes.emplace_back(port, value);
    return true;
  }
  std::vector<std::pair<int, int>> writes;
};

}  // namespace lumaris
