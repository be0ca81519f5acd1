#include <benchmark/benchmark.h>

#include "core/main_desk.h"
#include "console/output_cycle.h"
#include "core/output_monitor.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

// One output tick with every source busy: 64 faders, a full submix, chase and
// playback levels, every slot patched, the output monitor shown.
void BM_OutputTick(benchmark::State& state) {
  TestConsole t;
  Console& console = t.build();
  Store& store = console.store();
  for (int i = 0; i < kDeskChannels; ++i) {
    store.Desk_Level[i] = static_cast<std::int16_t>((i * 37) % 256);
    store.Chase_Out[i] = (i * 11) % 256;
    store.Playback_Live_Out[i] = static_cast<std::int16_t>((i * 5) % 256);
    store.Submix[0].Chan[i] = static_cast<std::int16_t>(i + 1);
    store.Submix[0].Level[i] = static_cast<std::int16_t>(255 - i);
  }
  for (int s = 0; s < kDmxSlots; ++s) store.Patch[s] = static_cast<std::int16_t>(s % 64 + 1);
  console.main_desk().Submix_Master_Change(64);
  console.main_desk().Main_Change(32);
  console.output_monitor().Show();
  int wobble = 0;
  for (auto _ : state) {
    store.Desk_Level[wobble % 64] = static_cast<std::int16_t>(wobble % 256);  // monitor bars change
    ++wobble;
    console.output_cycle().output_tick();
    benchmark::DoNotOptimize(store.DMX_Out.data());
  }
}
BENCHMARK(BM_OutputTick);

}  // namespace
}  // namespace lumaris
