#pragma once

#include <string>

#include "core/desk_links.h"
#include "core/surface_feedback.h"

namespace lumaris {

class Console;

// The ways up from the desks to the console: the other desks, the program's exit path, and feedback to the control surface, which
// goes nowhere until a surface is attached.
class ConsoleLinks final : public DeskLinks, public SurfaceFeedback {
 public:
  explicit ConsoleLinks(Console& console) : console_(console) {}

  void Main_Change(int value) override;
  void Refresh_Playback_Panel() override;
  void reset_desks() override;
  void shutdown() override;

  void attach_surface(SurfaceFeedback* surface) { surface_ = surface; }
  using SurfaceFeedback::BCF_Fader_Update;
  void BCF_Fader_Update(SurfaceStrip strip, int level) override;
  void BCF_Fader_Update(PlaybackElement fader, int level) override;
  void BCF_Button_Update(PlaybackElement button, bool state) override;

 private:
  Console& console_;
  SurfaceFeedback* surface_ = nullptr;
};

}  // namespace lumaris
