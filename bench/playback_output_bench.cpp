#include <benchmark/benchmark.h>

#include <memory>

#include "core/store.h"
#include "playback/playback_output.h"

namespace lumaris {
namespace {

// The worst case of the live playback output: all 80 reachable buttons held on
// and all 60 reachable faders up, on all five pages. Buttons cycle through
// Submix (a full 64-channel submix each), Preset and Colour; faders through
// Submix, Preset and Colour too, so every branch of the computation runs.
void fill_playback_desk(Store& store) {
  for (int s = 0; s < kSubmixes; ++s) {
    for (int k = 0; k < kDeskChannels; ++k) {
      store.Submix[s].Chan[k] = static_cast<std::int16_t>((k + s) % kDeskChannels + 1);
      store.Submix[s].Level[k] = static_cast<std::int16_t>((k * 7 + s) % 256);
    }
  }
  const std::int16_t functions[] = {kFunctionSubmix, kFunctionPreset, kFunctionColour};
  const int reachable_buttons = kPlaybackPages * kButtonsPerPage;
  for (int b = 0; b < reachable_buttons; ++b) {
    ButtonFunction& button = store.Button_Functions[b];
    button.Function = functions[b % 3];
    button.Value = static_cast<std::int16_t>(b % 32);
    button.Level = static_cast<std::int16_t>(100 + b);
    button.Channel1 = static_cast<std::int16_t>(b % 64 + 1);
    button.Channel2 = static_cast<std::int16_t>((b + 21) % 64 + 1);
    button.Channel3 = static_cast<std::int16_t>((b + 42) % 64 + 1);
    button.Data1 = 255, button.Data2 = 128, button.Data3 = 1;
    store.Playback_Button_State[b] = true;
  }
  const int reachable_faders = kPlaybackPages * kFadersPerPlaybackPage;
  for (int f = 0; f < reachable_faders; ++f) {
    FaderFunction& fader = store.Fader_Functions[f];
    fader.Function = functions[f % 3];
    fader.Value = static_cast<std::int16_t>(f % 32);
    fader.Level = 200;
    fader.Channel1 = static_cast<std::int16_t>(f % 64 + 1);
    fader.Channel2 = static_cast<std::int16_t>((f + 13) % 64 + 1);
    fader.Channel3 = static_cast<std::int16_t>((f + 26) % 64 + 1);
    fader.Data1 = 17, fader.Data2 = 200, fader.Data3 = 255;
    store.Playback_Fader_Level[f] = static_cast<std::int16_t>(4 * f + 10);
  }
}

void BM_ComputeLiveOutput(benchmark::State& state) {
  const auto store = std::make_unique<Store>();
  fill_playback_desk(*store);
  for (auto _ : state) {
    Compute_Live_Output(*store);
    benchmark::DoNotOptimize(store->Playback_Live_Out.data());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(BM_ComputeLiveOutput);

}  // namespace
}  // namespace lumaris
