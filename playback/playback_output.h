#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/store.h"

namespace lumaris {

using ButtonStates = std::array<bool, kPlaybackButtons>;
using FaderLevels = std::array<std::int16_t, kPlaybackFaders>;
using ChannelLevels = std::array<std::int16_t, kDeskChannels>;

// Names of the functions as the set-up lists show them ("Submix" .. "Cue"), and
// the short names of the panel's companion buttons ("Seq" for Sequence).
// Empty for a code outside 0..5.
std::string function_name(int function);
std::string function_short_name(int function);

// The channel levels a set of button states and fader levels produce: buttons
// first, then faders, so a fader can raise a channel that a button wrote. The
// live desk passes its own states; a recorded screen passes its But_Sel and Fad_Sel.
void compute_playback_output(const Store& store, const ButtonStates& buttons, const FaderLevels& faders,
                             ChannelLevels& out);

// Playback_Live_Out from the live buttons and faders.
void Compute_Live_Output(Store& store);

}  // namespace lumaris
