// The sequence desk's chase channels: faders, full and zero, the desk channel
// boxes, the channel functions and the indicators.
#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "base/rounding.h"
#include "core/desk_context.h"
#include "platform/dialogs.h"
#include "sequence/chase_runtime.h"
#include "sequence/sequence_desk.h"

namespace lumaris {

namespace {

constexpr const char* kChannelErrorTitle = " Channel Error";
constexpr const char* kChannelErrorText = " Channel Values must be between 1 - 63";
constexpr const char* kChannelReset = "63";
constexpr int kHighestDeskChannel = 63;

std::string number_text(double value) {
  if (value == std::floor(value) && std::fabs(value) < 1e9) {
    return std::to_string(static_cast<long>(value));
  }
  return significant_text(value, 6);
}

}  // namespace

Rgb level_colour(int level) {
  const auto fade = static_cast<std::uint8_t>(255 - std::clamp(level, 0, 255));
  return Rgb{255, fade, fade};
}

// The desk channel's description, its number and a blank.
std::string SequenceDesk::channel_tooltip(int i) {
  const int desk_channel = chase().Channels[i];
  const std::string desc =
      desk_channel >= 0 && desk_channel < kDeskChannels ? store().Fader_Names[desk_channel].Desc : "";
  return desc + str_number(desk_channel + 1) + " ";
}

void SequenceDesk::show_channel_box(int i) {
  channels_[i].channel_box = std::to_string(chase().Channels[i] + 1);
  channels_[i].channel_box_tooltip = channel_tooltip(i);
}

void SequenceDesk::show_function(int i) {
  ChaseChannelControls& ch = channels_[i];
  switch (chase().Fade[cur_step_][i]) {
    case kChaseOff:
      ch.Ch_Function = "off";
      ch.Ch_Function_colour.reset();
      break;
    case kChaseFade:
      ch.Ch_Function = "F";
      ch.Ch_Function_colour = kGreen;
      break;
    default:
      ch.Ch_Function = "S";
      ch.Ch_Function_colour = kYellow;
      break;
  }
}

void SequenceDesk::write_live(int i) {
  const int d = chase().Channels[i];
  if (!runtime_->Live_Output() || d < 0 || d >= kDeskChannels) return;
  store().Chase_Out[d] = round_half_even(runtime_->scaled(chase().Data[cur_step_][i]));
}

void SequenceDesk::Show_Indicator(int i) {
  if (i < 0 || i >= kChaseChannels) return;
  const bool on = chase().Fade[cur_step_][i] != kChaseOff;
  channels_[i].indicator = on ? level_colour(chase().Data[cur_step_][i]) : kWhite;
}

void SequenceDesk::set_level(int i, int slider_value) {
  if (running()) return;  // the faders do not edit a running chase
  const int level = 255 - std::clamp(slider_value, 0, 255);
  channels_[i].fader = 255 - level;
  channels_[i].indicator = level_colour(level);
  chase().Data[cur_step_][i] = static_cast<std::int16_t>(level);
  write_live(i);
}

void SequenceDesk::fader_changed(int i, int value) {
  if (i >= 0 && i < kLevelChannels) set_level(i, value);
}

void SequenceDesk::full_clicked(int i) { fader_changed(i, 0); }
void SequenceDesk::zero_clicked(int i) { fader_changed(i, 255); }

void SequenceDesk::clear_faders_clicked() {
  for (int i = 0; i < kLevelChannels; ++i) {
    set_level(i, 255);
    channels_[i].fader = 255;
    channels_[i].indicator = kWhite;
  }
  if (Moving_Shown() && !running()) {
    for (int i = kLevelChannels; i < kChaseChannels; ++i) {
      chase().Data[cur_step_][i] = 0;
      Show_Indicator(i);
      write_live(i);
    }
    redraw_moving();
  }
}

void SequenceDesk::channel_box_changed(int i, const std::string& text) {
  if (i < 0 || i >= kChaseChannels) return;
  channels_[i].channel_box = text;
  const std::optional<double> v = parse_number(text);
  if (!v) {
    if (!text.empty()) {
      context_.dialogs().message({kChannelErrorTitle, kChannelErrorText, MessageIcon::Exclamation});
    }
    return;
  }
  if (*v < 1 || *v > kHighestDeskChannel) {
    context_.dialogs().message({kChannelErrorTitle, kChannelErrorText, MessageIcon::Exclamation});
    channel_box_changed(i, kChannelReset);
    return;
  }
  if (runtime_->Live_Output()) {
    const int old = chase().Channels[i];
    if (old >= 0 && old < kDeskChannels) store().Chase_Out[old] = 0;
  }
  chase().Channels[i] = static_cast<std::int16_t>(round_half_even(*v - 1));
  if (auto_increment_ && i < kChaseChannels - 1 && *v + 1 <= kHighestDeskChannel) {
    channel_box_changed(i + 1, number_text(*v + 1));
  }
  channels_[i].channel_box_tooltip = channel_tooltip(i);
  store().Project_Changed = true;
}

void SequenceDesk::Ch_Function_Click(int i) {
  if (i < 0 || i >= kChaseChannels) return;
  const std::int16_t f = next_function(chase().Fade[cur_step_][i]);
  set_function(chase(), cur_step_, i, f, global_fade_sw_);
  show_function(i);
  const bool on = f != kChaseOff;
  channels_[i].channel_box_enabled = on;
  if (i < kLevelChannels) channels_[i].level_enabled = on;
  if (i >= kLevelChannels) {
    Show_Indicator(i);
    redraw_moving();
  }
}

void SequenceDesk::Ch_Function_All_Click() {
  function_all_ = (function_all_ + 1) % 3;
  const auto f = static_cast<std::int16_t>(function_all_);
  // The moving desk's channels 18..23 follow only while that panel is shown.
  const int last = Moving_Shown() ? kChaseChannels : kLevelChannels;
  for (int i = 0; i < last; ++i) {
    set_function(chase(), cur_step_, i, f, global_fade_sw_);
    show_function(i);
    channels_[i].channel_box_enabled = channels_[i].level_enabled = f != kChaseOff;
    if (i >= kLevelChannels) Show_Indicator(i);
  }
  if (Moving_Shown()) redraw_moving();
  static constexpr const char* kCaptions[] = {"off", "F", "S"};
  ch_function_all_ = kCaptions[function_all_];
}

}  // namespace lumaris
