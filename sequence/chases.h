#pragma once

#include "core/window.h"

namespace lumaris {

class Console;

// The sequence desk: programming and running chases.
class Chases : public Window {
 public:
  explicit Chases(Console& console);
  bool available() const { return false; }
  void Refresh_Desk() {}

 private:
  Console& console_;
};

}  // namespace lumaris
