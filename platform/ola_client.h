#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace lumaris {

// A connection to the local OLA daemon (olad), as the OLA output needs it.
// Every call returns quickly: connecting is one attempt, never a wait.
class OlaClient {
 public:
  virtual ~OlaClient() = default;
  // One attempt to reach olad. Returns why it failed, nothing when connected.
  virtual std::optional<std::string> connect() = 0;
  virtual void disconnect() = 0;
  // Sends up to 512 slots to a universe of olad. Returns why it failed (olad went
  // away: the connection is then closed), nothing when sent.
  virtual std::optional<std::string> send_dmx(std::uint32_t universe,
                                              std::span<const std::uint8_t> slots) = 0;
};

}  // namespace lumaris
