#pragma once

#include "core/window.h"

namespace lumaris {

class Console;

// Project information: name, text, date and version of the show.
class ProjectText : public Window {
 public:
  explicit ProjectText(Console& console);
  void Form_Load();

 private:
  Console& console_;
};

}  // namespace lumaris
