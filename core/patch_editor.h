#pragma once

#include "core/window.h"

namespace lumaris {

class Console;

// The patch editor: one box per DMX slot holding the desk channel that feeds it.
class EditPatchList : public Window {
 public:
  explicit EditPatchList(Console& console);
  void Form_Load();

 private:
  Console& console_;
};

}  // namespace lumaris
