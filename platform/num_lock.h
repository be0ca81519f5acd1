#pragma once

#include <optional>

namespace lumaris {

// The keyboard's Num Lock, which the command line keeps on so that the keypad
// types digits. Where the program cannot reach the keyboard (no X11 display,
// Wayland, offscreen, headless) there is no implementation and nothing happens.
class NumLock {
 public:
  virtual ~NumLock() = default;
  // On or off; nothing when the keyboard cannot be asked.
  virtual std::optional<bool> state() const = 0;
  virtual void set(bool on) = 0;
};

}  // namespace lumaris
