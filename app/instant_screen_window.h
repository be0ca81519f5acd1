#pragma once

#include <array>
#include <string>

#include "app/desk_window.h"
#include "app/widgets/tool_window.h"
#include "playback/instant_cues.h"

class QPushButton;

namespace lumaris {

class DeskApp;

// The instant cue window `instant_screen` ("Instant Cues"): 14 large buttons in
// two rows of seven, each in its screen's colour; a left click takes to the
// screen, a right click opens the cue editor on it; Exit closes the panel.
class InstantScreenWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit InstantScreenWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "instant_screen"; }
  void sync() override;
  void prepare_screenshot() override;

  // Widgets by control name, for the wiring tests.
  QPushButton* Screen_sel(int slot) const { return slots_[static_cast<std::size_t>(slot)]; }
  QPushButton* Exit() const { return exit_; }

 private:
  instant_screen& panel();

  DeskApp& app_;
  std::array<QPushButton*, instant_screen::kSlots> slots_{};
  QPushButton* exit_ = nullptr;
};

}  // namespace lumaris
