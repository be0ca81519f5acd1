#pragma once

#include <string>
#include <vector>

#include "core/main_desk.h"

namespace lumaris {

// The moving desk panel of the sequence desk, which drives chase channels 18..23
// through a fixture's description. The fixtures build it above the sequence desk;
// without one the sequence desk has no "Show Moving".
class MovingPanel {
 public:
  virtual ~MovingPanel() = default;
  virtual bool Moving_Shown() const = 0;
  // "Show Moving" / "Hide Moving".
  virtual void Show_Moving_Click() = 0;
  // A chase was selected or the desk rebuilt: the panel takes the chase's fixture.
  virtual void chase_selected() = 0;
  // The current step changed or was edited: indicators, enabling, sliders.
  virtual void step_shown() = 0;
  // The "&Fixture" menu.
  virtual std::vector<MenuEntry> menu_entries() const = 0;
  virtual void Menu_Click(const std::string& name) = 0;
};

}  // namespace lumaris
