#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "platform/port_io.h"

namespace lumaris {

// A parallel port that records, in order, every byte written to it as
// (address, value) and every counting loop between them as (kWait, rounds).
class FakePortIo final : public PortIo {
 public:
  static constexpr int kWait = -1;

  bool Out32(std::uint16_t port, std::uint8_t value) override {
    events.emplace_back(port, value);
    return true;
  }
  void Wait_Loop(int rounds) override { events.emplace_back(kWait, rounds); }

  std::vector<std::pair<int, int>> events;
};

}  // namespace lumaris
