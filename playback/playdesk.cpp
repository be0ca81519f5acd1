#include "playback/playdesk.h"

#include <algorithm>

#include "core/desk_context.h"

namespace lumaris {

Playdesk::Playdesk(DeskContext& context) : Window("Playback desk  "), context_(context) {}

void Playdesk::Main_Change(int value) { main_ = std::clamp(value, 0, 255); }
void Playdesk::Preset_Change(int value) { preset_ = std::clamp(value, 0, 255); }

void Playdesk::set_reset_caption() { set_caption("Playback desk  "); }

// Clear all buttons on the desk: faders down, buttons off, desk channels cleared.
void Playdesk::Clear_All() {
  Store& store = context_.store();
  store.Playback_Fader_Level.fill(0);
  store.Playback_Button_State.fill(false);
  std::fill(store.Desk_Level.begin(), store.Desk_Level.begin() + kDeskChannels, 0);
  store.Playback_Live_Out.fill(0);
  store.Playback_Seq_Out.fill(0);
  context_.status().show_playback(" Desk Cleared ");
}

}  // namespace lumaris
