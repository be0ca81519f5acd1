#pragma once

#include "core/window.h"

namespace lumaris {

class Console;

// The Art-Net set-up window.
class Art_Config : public Window {
 public:
  explicit Art_Config(Console& console);
  bool available() const { return false; }
  void Form_Load() {}

 private:
  Console& console_;
};

}  // namespace lumaris
