#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/num_lock.h"

namespace lumaris {

class SharedLibrary;

// Num Lock through the X11 keyboard extension of an X display. libX11 is loaded
// at run time (Qt's X11 platform plugin brings it along), so the program needs
// no X11 at build time and runs where there is none. Without the library or the
// display the keyboard cannot be asked and nothing is changed.
class X11NumLock final : public NumLock {
 public:
  // `display`: an X display name such as ":0"; empty: the DISPLAY variable's.
  explicit X11NumLock(const std::string& display = {});
  ~X11NumLock() override;
  X11NumLock(const X11NumLock&) = delete;
  X11NumLock& operator=(const X11NumLock&) = delete;

  bool connected() const { return display_ != nullptr; }
  std::optional<bool> state() const override;
  void set(bool on) override;

 private:
  struct Api;
  std::unique_ptr<SharedLibrary> library_;
  std::unique_ptr<Api> api_;
  void* display_ = nullptr;
  unsigned int mask_ = 0;
};

}  // namespace lumaris
