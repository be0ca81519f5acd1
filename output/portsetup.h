#pragma once

#include "core/window.h"

namespace lumaris {

class Console;

// The output device set-up window.
class Portsetup : public Window {
 public:
  explicit Portsetup(Console& console);
  bool available() const { return false; }
  void Form_Load() {}

 private:
  Console& console_;
};

}  // namespace lumaris
