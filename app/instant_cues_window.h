#pragma once

#include <array>
#include <string>

#include "app/desk_window.h"
#include "app/widgets/tool_window.h"
#include "playback/instant_cues.h"

class QPushButton;

namespace lumaris {

class DeskApp;

// The instant cue window `InstantCues` ("Instant Cues"): 14 large buttons in
// two rows of seven, each in its screen's colour; a left click takes to the
// screen, a right click opens the cue editor on it; Exit closes the panel.
class InstantCuesWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit InstantCuesWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "instant-cues"; }
  void sync() override;
  void prepare_screenshot() override;

  // Widgets by control name, for the wiring tests.
  QPushButton* Screen_sel(int slot) const { return slots_[static_cast<std::size_t>(slot)]; }
  QPushButton* Exit() const { return exit_; }

 private:
  InstantCues& panel();

  DeskApp& app_;
  std::array<QPushButton*, InstantCues::kSlots> slots_{};
  QPushButton* exit_ = nullptr;
};

}  // namespace lumaris
