#pragma once

#include "core/window.h"

namespace lumaris {

class DeskContext;

// The playback desk. Until its window exists it holds the two faders the output
// cycle reads (Main and Preset) and the operations other desks call on it.
class Playdesk : public Window {
 public:
  explicit Playdesk(DeskContext& context);

  bool available() const { return false; }

  // Slider values, 0 at the top = full.
  int main_value() const { return main_; }
  int preset_value() const { return preset_; }
  void Main_Change(int value);
  void Preset_Change(int value);

  void Refresh_Playback_Panel() {}
  void Clear_All();
  void set_reset_caption();

 private:
  DeskContext& context_;
  int main_ = 0;
  int preset_ = 0;
};

}  // namespace lumaris
