#pragma once

namespace lumaris {

// Feedback to the control surface: motor faders and button LEDs follow the
// desks. The main desk, the playback desk and the command line call it, each
// guarded by the surface mode it concerns. Does nothing until a surface is there.
class SurfaceFeedback {
 public:
  virtual ~SurfaceFeedback() = default;
  // A main desk strip of the page on show, index 0..31 (main desk mode), or a
  // playback fader (playback mode) took a level. A channel off the page on show
  // has no fader on the surface.
  virtual void BCF_Fader_Update(int /*index*/, int /*level*/) {}
  // A playback button went on or off.
  virtual void BCF_Button_Update(int /*index*/, bool /*state*/) {}
};

}  // namespace lumaris
