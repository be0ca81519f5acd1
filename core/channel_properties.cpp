#include "core/channel_properties.h"

#include <algorithm>

#include "core/colour_dialog.h"
#include "core/desk_context.h"
#include "core/main_desk.h"
#include "platform/dialogs.h"

namespace lumaris {

namespace {
constexpr const char* kCaption = "Channel Properties";
constexpr const char* kTooLongTitle = " Text too long";
constexpr const char* kTooLongText = " Text must be 4 Chars max";

bool continuation_byte(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }
}  // namespace

std::size_t char_count(const std::string& text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return !continuation_byte(c); }));
}

std::string first_chars(const std::string& text, std::size_t count) {
  std::size_t chars = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (continuation_byte(text[at])) continue;
    if (chars == count) return text.substr(0, at);
    ++chars;
  }
  return text;
}

ChannelProperties::ChannelProperties(DeskContext& context, MainDesk& main_desk) : Window(kCaption), context_(context), main_desk_(main_desk) {}

void ChannelProperties::Refresh() {
  const Store& store = context_.store();
  const int channel = store.Edit_Channel;
  const FaderName& fader = store.Fader_Names[channel];
  show_channel_ = std::to_string(channel + 1);
  show_name_ = fader.Name;
  description_ = fader.Desc;
  main_f_checked_ = !fader.Main_F;
  cross_f_checked_ = !fader.Cross_F;
  colour_box_ = colour_from_text(fader.Colour);
  previous_channel_enabled_ = channel > 0;
  next_channel_enabled_ = channel < kDeskChannels - 1;
  show_dmx_.fill({});
  int shown = 0;
  for (int s = 0; s < kDmxSlots && shown < kShownSlots; ++s) {
    if (store.Patch[s] == channel + 1) show_dmx_[shown++] = std::to_string(s + 1);
  }
}

void ChannelProperties::step_channel(int step) {
  Store& store = context_.store();
  const int channel = std::clamp(store.Edit_Channel + step, 0, kDeskChannels - 1);
  store.Edit_Channel = static_cast<std::int16_t>(channel);
  Refresh();
  store.Project_Changed = true;
}

void ChannelProperties::previous_channel_clicked() { step_channel(-1); }
void ChannelProperties::next_channel_clicked() { step_channel(+1); }

void ChannelProperties::Show_Name_Change(const std::string& text) {
  Store& store = context_.store();
  show_name_ = text;
  if (char_count(text) > kNameChars) {
    context_.dialogs().message(
        {kTooLongTitle, kTooLongText, MessageIcon::Exclamation, MessageButtons::Ok});
    show_name_ = first_chars(text, kNameChars);
  }
  store.Fader_Names[store.Edit_Channel].Name = show_name_;
  store.Project_Changed = true;
  main_desk_.Refresh_Desk_Panel();
}

void ChannelProperties::Channel_Description_Change(const std::string& text) {
  Store& store = context_.store();
  description_ = text;
  store.Fader_Names[store.Edit_Channel].Desc = text;
  store.Project_Changed = true;
}

void ChannelProperties::Channel_Description_Validate() { main_desk_.Refresh_Desk_Panel(); }

void ChannelProperties::Colour_button_Click() {
  const std::optional<Rgb> chosen = context_.dialogs().choose_colour(kColourTitle, colour_box_);
  if (!chosen) return;
  Store& store = context_.store();
  colour_box_ = *chosen;
  store.Fader_Names[store.Edit_Channel].Colour = colour_to_text(*chosen);
  store.Project_Changed = true;
  main_desk_.Refresh_Desk_Panel();
}

void ChannelProperties::Main_F_Click(bool checked) {
  Store& store = context_.store();
  main_f_checked_ = checked;
  store.Fader_Names[store.Edit_Channel].Main_F = !checked;
  store.Project_Changed = true;
}

void ChannelProperties::Cross_F_Click(bool checked) {
  Store& store = context_.store();
  cross_f_checked_ = checked;
  store.Fader_Names[store.Edit_Channel].Cross_F = !checked;
  store.Project_Changed = true;
}

void ChannelProperties::OK_Click() { Hide(); }

int ChannelProperties::level_fader() const {
  const Store& store = context_.store();
  return 255 - store.Desk_Level[store.Edit_Channel];
}

// The fader sets the channel's level. The main desk's fader moves with it (and
// with it the control surface) only when the channel is on the page the main desk
// shows; otherwise only the level changes and the main desk shows it on paging.
void ChannelProperties::level_fader_changed(int value) {
  Store& store = context_.store();
  const int channel = store.Edit_Channel;
  value = std::clamp(value, 0, 255);
  if (channel / kFadersPerPage == store.Fader_Page) {
    main_desk_.channel_fader_changed(channel % kFadersPerPage, value);
  } else {
    store.Desk_Level[channel] = static_cast<std::int16_t>(255 - value);
  }
}

}  // namespace lumaris
