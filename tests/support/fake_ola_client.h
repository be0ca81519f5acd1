#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/ola_client.h"

namespace lumaris {

// An olad the test starts and stops: records every frame it is sent.
class FakeOlaClient final : public OlaClient {
 public:
  std::optional<std::string> connect() override {
    ++connect_attempts;
    if (!olad_running) return "olad is not running";
    connected = true;
    return std::nullopt;
  }
  void disconnect() override { connected = false; }
  std::optional<std::string> send_dmx(std::uint32_t universe,
                                      std::span<const std::uint8_t> slots) override {
    if (!connected) return "not connected";
    if (!olad_running) {
      connected = false;
      return "olad went away";
    }
    frames.push_back({universe, std::vector<std::uint8_t>(slots.begin(), slots.end())});
    return std::nullopt;
  }

  struct Frame {
    std::uint32_t universe;
    std::vector<std::uint8_t> slots;
  };
  bool olad_running = true;
  bool connected = false;
  int connect_attempts = 0;
  std::vector<Frame> frames;
};

}  // namespace lumaris
