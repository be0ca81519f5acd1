#pragma once

#include <string>

namespace lumaris {

// How a desk opens what it cannot see: another window, or a menu action of a
// window above it (the File menu's dialogs). Names are the control names of the
// menu entries ("patch-editor", "sequence-desk", "load", ...). The console
// implements it; a name it does not know can neither be opened nor is enabled.
class WindowOpener {
 public:
  virtual ~WindowOpener() = default;
  virtual bool can_open(const std::string& name) const = 0;
  virtual void open(const std::string& name) = 0;
};

}  // namespace lumaris
