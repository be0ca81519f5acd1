#pragma once

#include <string>

namespace lumaris {

// Whether the desktop console can open its windows. Qt aborts the program when
// the display it is given cannot be opened (an SSH session with a stale
// DISPLAY, `su`, an X server that has gone), so the display is tried first.
struct DisplayProbe {
  bool usable = false;
  // Why not, in words for one line: empty when usable.
  std::string reason;
};

DisplayProbe probe_display();

}  // namespace lumaris
