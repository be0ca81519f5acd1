#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "base/colour.h"
#include "core/window.h"
#include "playback/playback_panel.h"

namespace lumaris {

class DeskContext;

// The instant cue window `InstantCues` ("Instant Cues"): one large button
// for each screen flagged Instant, up to 14, in screen order. A left click takes
// to the screen in run mode; a right click opens the cue editor on it.
class InstantCues : public Window {
 public:
  static constexpr int kSlots = 14;

  struct Slot {
    std::string caption;
    std::string tooltip;
    Paint colour;
    bool visible = false;
  };

  struct Desk {
    std::function<void(int)> autotake;         // Autotake(screen): nothing outside run mode
    std::function<void(int)> open_cue_editor;  // the cue editor on a screen
  };

  InstantCues(DeskContext& context, Desk desk);

  // Every opening is a fresh load, as the window is unloaded on Exit.
  void Show() override;
  void Refresh_Instant_Panel();
  void Screen_sel_Click(int slot, MouseButton button);
  void Exit_Click() { Hide(); }

  const Slot& Screen_sel(int slot) const { return slots_[static_cast<std::size_t>(slot)]; }
  int Instant_Map(int slot) const { return instant_map_[static_cast<std::size_t>(slot)]; }

 private:
  DeskContext& context_;
  Desk desk_;
  std::array<Slot, kSlots> slots_{};
  std::array<std::int16_t, kSlots + 1> instant_map_{};
};

}  // namespace lumaris
