// The submix controls of the main desk.
#include <algorithm>

#include "core/colour_dialog.h"
#include "core/desk_context.h"
#include "core/main_desk.h"
#include "base/number_text.h"
#include "platform/dialogs.h"
#include "core/desk_links.h"
#include "core/surface_feedback.h"

namespace lumaris {

void MainDesk::show_submix() {
  const SubmixRec& submix = context_.store().Submix[current_submix_];
  submix_number_ = std::to_string(current_submix_ + 1);
  submix_text_ = submix.Name;
  sub_colour_ = submix.Colour.empty() ? Paint{} : colour_from_text(submix.Colour);
}

void MainDesk::Submix_Plus_Click() {
  current_submix_ = current_submix_ == kSubmixes - 1 ? 0 : current_submix_ + 1;
  show_submix();
}

void MainDesk::Submix_Minus_Click() {
  current_submix_ = current_submix_ == 0 ? kSubmixes - 1 : current_submix_ - 1;
  show_submix();
}

void MainDesk::Submix_Text_Change(const std::string& text) { submix_text_ = text; }

void MainDesk::Submix_Prog_Click() {
  Store& store = context_.store();
  SubmixRec& submix = store.Submix[current_submix_];
  int k = 0;
  for (int i = 0; i < kDeskChannels; ++i) {
    // k never passes i, so entry i is always cleared before it is reused.
    submix.Chan[i] = 0;
    submix.Level[i] = 0;
    if (store.Desk_Level[i] > 0) {
      submix.Level[k] = store.Desk_Level[i];
      submix.Chan[k] = static_cast<std::int16_t>(i + 1);
      ++k;
    }
  }
  submix.Name = submix_text_;
  submix.Colour = sub_colour_ ? colour_to_text(*sub_colour_) : std::string();
  context_.desks().Refresh_Playback_Panel();
  context_.status().show_main(" Submix " + str_number(current_submix_) + " Programmed");
  store.Project_Changed = true;
}

void MainDesk::Submix_Recal_Click() {
  Store& store = context_.store();
  const SubmixRec& submix = store.Submix[current_submix_];
  std::fill(store.Desk_Level.begin(), store.Desk_Level.begin() + kDeskChannels, 0);
  for (int k = 0; k < kDeskChannels && submix.Chan[k] > 0; ++k) {
    const int channel = submix.Chan[k];
    if (channel <= kDeskChannels) store.Desk_Level[channel - 1] = submix.Level[k];
  }
  for (int i = 0; i < kStrips; ++i) {
    const int level = store.Desk_Level[channel_of(i)];
    strips_[i].fader = 255 - level;
    strips_[i].level_box = std::to_string(level);
    if (store.BCF_Mode == kSurfaceMainMode) {
      context_.surface().BCF_Fader_Update(SurfaceStrip::of_channel(store.Fader_Page, channel_of(i)), level);
    }
  }
  show_submix();  // the label shows the recalled submix's name, whatever was typed
  context_.status().show_main(" Submix" + str_number(current_submix_) + " Recalled");
}

void MainDesk::Sub_colour_Click() {
  const std::optional<Rgb> chosen = context_.dialogs().choose_colour(kColourTitle, sub_colour_);
  if (!chosen) return;
  sub_colour_ = *chosen;
  context_.store().Submix[current_submix_].Colour = colour_to_text(*chosen);
  context_.desks().Refresh_Playback_Panel();
}

}  // namespace lumaris
