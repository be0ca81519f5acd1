#include "playback/playback_output.h"

#include <algorithm>
#include <array>

#include "base/rounding.h"

namespace lumaris {

namespace {

constexpr std::array<const char*, 6> kFunctionNames = {"Submix", "Preset", "Sequence", "Colour", "Off", "Cue"};
constexpr std::array<const char*, 6> kShortNames = {"Submix", "Preset", "Seq", "Colour", "Off", "Cue"};

bool desk_channel(int channel) { return channel >= 1 && channel <= kDeskChannels; }

void raise(ChannelLevels& out, int channel, int level) {
  std::int16_t& slot = out[channel - 1];
  slot = std::max<std::int16_t>(slot, static_cast<std::int16_t>(std::clamp(level, 0, 255)));
}

void write(ChannelLevels& out, int channel, int level) {
  out[channel - 1] = static_cast<std::int16_t>(std::clamp(level, 0, 255));
}

// Every channel of submix `number` at its stored level scaled by `master`.
void apply_submix(const Store& store, int number, int master, ChannelLevels& out) {
  if (number < 0 || number > kSubmixes) return;
  const SubmixRec& submix = store.Submix[number];
  for (std::size_t k = 0; k < submix.Chan.size(); ++k) {
    const int channel = submix.Chan[k];
    if (!desk_channel(channel)) continue;
    raise(out, channel, Level_Scale(submix.Level[k], master, 0, 0, 2));
  }
}

void apply_button(const Store& store, const ButtonFunction& button, ChannelLevels& out) {
  const std::array<int, 3> channels = {button.Channel1, button.Channel2, button.Channel3};
  const std::array<int, 3> data = {button.Data1, button.Data2, button.Data3};
  switch (button.Function) {
    case kFunctionSubmix:
      apply_submix(store, button.Value, button.Level, out);
      break;
    case kFunctionPreset:
      for (int channel : channels) {
        if (desk_channel(channel)) write(out, channel, button.Level);
      }
      break;
    case kFunctionColour:
      for (int k = 0; k < 3; ++k) {
        if (data[k] > 0 && desk_channel(channels[k])) write(out, channels[k], data[k]);
      }
      break;
    default:
      break;
  }
}

void apply_fader(const Store& store, const FaderFunction& fader, int level, ChannelLevels& out) {
  const std::array<int, 3> channels = {fader.Channel1, fader.Channel2, fader.Channel3};
  const std::array<int, 3> data = {fader.Data1, fader.Data2, fader.Data3};
  switch (fader.Function) {
    case kFunctionSubmix:
      apply_submix(store, fader.Value, level, out);
      break;
    case kFunctionPreset: {
      const int v = Level_Scale(fader.Level, level, 0, 0, 2);
      for (int channel : channels) {
        if (desk_channel(channel)) raise(out, channel, v);
      }
      break;
    }
    case kFunctionColour:
      for (int k = 0; k < 3; ++k) {
        if (data[k] > 0 && desk_channel(channels[k])) raise(out, channels[k], Level_Scale(data[k], level, 0, 0, 2));
      }
      break;
    default:
      break;
  }
}

}  // namespace

std::string function_name(int function) {
  return function >= 0 && function < static_cast<int>(kFunctionNames.size()) ? kFunctionNames[function] : "";
}

std::string function_short_name(int function) {
  return function >= 0 && function < static_cast<int>(kShortNames.size()) ? kShortNames[function] : "";
}

void compute_playback_output(const Store& store, const ButtonStates& buttons, const FaderLevels& faders,
                             ChannelLevels& out) {
  out.fill(0);
  for (int b = 0; b < kPlaybackButtons; ++b) {
    if (buttons[b]) apply_button(store, store.Button_Functions[b], out);
  }
  for (int f = 0; f < kPlaybackFaders; ++f) {
    if (faders[f] > 0) apply_fader(store, store.Fader_Functions[f], faders[f], out);
  }
}

void Compute_Live_Output(Store& store) {
  compute_playback_output(store, store.Playback_Button_State, store.Playback_Fader_Level, store.Playback_Live_Out);
}

}  // namespace lumaris
