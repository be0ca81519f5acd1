#include "console/console_links.h"

#include "console/console.h"
#include "playback/playback_desk.h"
#include "sequence/sequence_desk.h"

namespace lumaris {

void ConsoleLinks::Main_Change(int value) { console_.playback_desk().Main_Change(value); }

void ConsoleLinks::Refresh_Playback_Panel() { console_.playback_desk().Refresh_Playback_Panel(); }

void ConsoleLinks::reset_desks() {
  PlaybackDesk& playback = console_.playback_desk();
  playback.set_reset_caption();
  playback.Clear_All();
  playback.Refresh_Playback_Panel();
  console_.sequence_desk().Refresh_Desk();
}

void ConsoleLinks::shutdown() { console_.shutdown(); }

void ConsoleLinks::BCF_Fader_Update(SurfaceStrip strip, int level) {
  if (surface_ != nullptr) surface_->BCF_Fader_Update(strip, level);
}

void ConsoleLinks::BCF_Fader_Update(PlaybackElement fader, int level) {
  if (surface_ != nullptr) surface_->BCF_Fader_Update(fader, level);
}

void ConsoleLinks::BCF_Button_Update(PlaybackElement button, bool state) {
  if (surface_ != nullptr) surface_->BCF_Button_Update(button, state);
}

}  // namespace lumaris
