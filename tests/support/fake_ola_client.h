#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/ola_client.h"

namespace lumaris {

// An olad the test starts, stops or hangs: records every frame it is sent.
class FakeOlaClient final : public OlaClient {
 public:
  std::optional<std::string> connect() override {
    ++connect_attempts;
    if (!olad_running) return "olad is not running";
    connected = true;
    frames_waiting = 0;
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
    if (olad_hung && ++frames_waiting > kSocketFrames) {
      connected = false;
      return "olad takes no frames (its socket is full)";
    }
    frames.push_back({universe, std::vector<std::uint8_t>(slots.begin(), slots.end())});
    return std::nullopt;
  }

  struct Frame {
    std::uint32_t universe;
    std::vector<std::uint8_t> slots;
  };
  bool olad_running = true;
  // Hung: takes the connection and reads nothing, so the socket fills after a few frames.
  bool olad_hung = false;
  static constexpr int kSocketFrames = 40;
  int frames_waiting = 0;
  bool connected = false;
  int connect_attempts = 0;
  std::vector<Frame> frames;
};

}  // namespace lumaris
