#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/store.h"

namespace lumaris {

using DmxFrame = std::array<std::uint8_t, kDmxSlots + 1>;

// One way the frame leaves the console: a DMX adapter, a network protocol. The
// output cycle hands every frame a tick built to each sink in the list the
// console gives it, and knows none of them by name.
class OutputSink {
 public:
  virtual ~OutputSink() = default;
  // The frame one output tick built; called only when the whole frame was built.
  virtual void take_frame(const DmxFrame& frame) = 0;
  // The output cycle starts and stops its sinks with itself.
  virtual void start() = 0;
  virtual void stop() = 0;
  // What the sink is doing, in the operator's words.
  virtual std::string status() const = 0;
  // Why the frames this sink takes do not reach the light, in the operator's
  // words; empty while they do, or while the sink cannot tell.
  virtual std::string fault() const { return {}; }
};

}  // namespace lumaris
