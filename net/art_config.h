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
  // A loaded show that enables rows starts the node the same way opening the window does.
  void Start_From_Show() {}

 private:
  Console& console_;
};

}  // namespace lumaris
