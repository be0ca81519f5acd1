#pragma once

#include <array>
#include <functional>
#include <string>

#include "base/colour.h"
#include "core/store.h"

namespace lumaris {

class DeskContext;
class PlaybackChases;

inline constexpr Rgb kLampOff{200, 200, 200};

// One of the 16 buttons of the page on show: the button with its caption, its
// companion button with the function's short name, and its lamp.
struct PlaybackButtonControls {
  std::string caption;
  Paint caption_colour;
  std::string function_caption;
  Rgb lamp = kLampOff;
};

// One of the 12 faders of the page on show: its caption (the same names as the
// buttons), the function's short name, and the Step Time note of a Sequence
// fader that sets its chase's speed ("Name Step Timing", and the first four
// characters of the name with " *" once it has been moved).
struct PlaybackFaderControls {
  int fader = 255;  // 0 at the top: level = 255 - value
  std::string function_caption;
  std::string caption;
  Paint caption_colour;
  std::string step_time_note;
};

enum class MouseButton { Left, Right };

// The programmable buttons and faders of the playback desk: press, release and
// move by function, the live output, the panel redraw, Clear All and Clear.
class PlaybackPanel {
 public:
  // What the panel reaches outside itself.
  struct Desk {
    std::function<void(int)> cue;                // a Cue button went down: its screen number
    std::function<void(int)> open_button_setup;  // button number 0..80
    std::function<void(int)> open_fader_setup;   // fader number 0..60
    std::function<void()> refresh_main_desk;
  };

  PlaybackPanel(DeskContext& context, PlaybackChases& chases, Desk desk);

  void Button_Press(int i, MouseButton mouse);
  void Button_Release(int i, MouseButton mouse);
  void Fader_Move(int i, int value);
  // Right button on a fader, or a double click on its labels.
  void Fader_Setup_Click(int i);

  void Refresh_Playback_Panel();
  void Compute_Live_Output();
  void Clear_All();
  void Submix_Clear();

  int button_number(int i) const;
  int fader_number(int i) const;
  const std::array<PlaybackButtonControls, kButtonsPerPage>& buttons() const { return buttons_; }
  const std::array<PlaybackFaderControls, kFadersPerPlaybackPage>& faders() const { return faders_; }

 private:
  struct Caption {
    std::string text;
    Paint colour;
  };
  Caption caption(int function, int value, const std::string& name, const std::string& colour) const;
  void press(int i, int b);
  void release(int i, int b);
  void reset_surface();
  bool surface_in_playback() const;

  DeskContext& context_;
  PlaybackChases& chases_;
  Desk desk_;
  std::array<PlaybackButtonControls, kButtonsPerPage> buttons_{};
  std::array<PlaybackFaderControls, kFadersPerPlaybackPage> faders_{};
};

}  // namespace lumaris
