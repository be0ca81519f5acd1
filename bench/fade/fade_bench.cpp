// A 5 s 0 -> 255 fade, run on virtual time and read off the Art-Net wire, for
// smooth output off and on at two refresh rates, across the phases of the
// output, Art-Net and fade timers. Three fades: a chase on the sequence desk, a
// chase played from a playback desk button, and a run-mode take. Prints
// figures only: how the levels on the wire moved and how long the fade took
// from its start until the output first carried 255.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <set>
#include <vector>

#include "console/output_cycle.h"
#include "core/desk_context.h"
#include "net/art_net_setup.h"
#include "net/art_net_node.h"
#include "playback/playback_panel.h"
#include "playback/playback_desk.h"
#include "playback/run_mode.h"
#include "sequence/chase_runtime.h"
#include "sequence/sequence_desk.h"
#include "tests/support/fake_udp.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

struct FadeFigures {
  int distinct = 0;
  int largest_jump = 0;
  int repeated = 0;
  bool final_sent = false;
  bool found = false;
  int lasted_ms = 0;  // from the start until the output carried 255
};

struct FadeRun {
  std::vector<int> levels;
  int lasted_ms = 0;
};

// The levels of DMX slot 1 in the ArtDmx packets, in the order they left.
std::vector<int> slot1_levels(const FakeUdp& udp) {
  constexpr std::size_t kFirstSlot = 18;
  std::vector<int> levels;
  for (const FakeUdp::Sent& packet : udp.sent()) {
    if (packet.bytes.size() > kFirstSlot) levels.push_back(packet.bytes[kFirstSlot]);
  }
  return levels;
}

// The first rise from 0 up to the frame before the level falls again.
FadeFigures measure(const std::vector<int>& levels) {
  FadeFigures f;
  const auto rise = std::find_if(levels.begin(), levels.end(), [](int l) { return l > 0; });
  if (rise == levels.begin() || rise == levels.end()) return f;
  std::size_t begin = static_cast<std::size_t>(rise - levels.begin()) - 1;
  std::size_t end = begin + 1;
  while (end < levels.size() && levels[end] >= levels[end - 1]) ++end;
  f.found = true;
  std::set<int> seen;
  for (std::size_t i = begin; i < end; ++i) {
    seen.insert(levels[i]);
    if (i == begin) continue;
    f.largest_jump = std::max(f.largest_jump, levels[i] - levels[i - 1]);
    if (levels[i] == levels[i - 1] && levels[i] > 0 && levels[i] < 255) ++f.repeated;
  }
  f.distinct = static_cast<int>(seen.size());
  f.final_sent = seen.count(255) != 0;
  return f;
}

enum class Fade { SequenceChase, PlaybackChase, Take };

const char* fade_name(Fade fade) {
  switch (fade) {
    case Fade::SequenceChase: return "sequence chase";
    case Fade::PlaybackChase: return "playback chase";
    case Fade::Take: return "run-mode take";
  }
  return "";
}

// Step 1 dark for 1 s, step 2 fading channel 1 to full over 5 s.
void write_fade_chase(ChaseRec& chase) {
  chase.Steps = 2;
  chase.Speed[1] = chase.Time[1] = 1.0;
  chase.Speed[2] = chase.Time[2] = 5.0;
  chase.Channels[0] = 0;
  chase.Data[1][0] = 0;
  chase.Data[2][0] = 255;
  chase.Fade[2][0] = kChaseFade;
}

// Sets the fade up and returns what starts it.
std::function<void()> prepare(Fade fade, Console& console, Store& store) {
  switch (fade) {
    case Fade::SequenceChase: {
      SequenceDesk& desk = console.sequence_desk();
      desk.Show();
      write_fade_chase(store.Chase_Table[desk.Cur_Chase()]);
      desk.Refresh_Desk();
      return [&desk] { desk.Chase_Go_Button_Click(); };
    }
    case Fade::PlaybackChase: {
      PlaybackDesk& desk = console.playback_desk();
      desk.Show();
      write_fade_chase(store.Chase_Table[3]);
      ButtonFunction& button = store.Button_Functions[4];
      button = ButtonFunction{};
      button.Function = kFunctionSequence;
      button.Value = 3;
      button.Level = 255;
      button.Latch = true;
      return [&desk] {
        desk.panel().Button_Press(4, MouseButton::Left);
        desk.panel().Button_Release(4, MouseButton::Left);
      };
    }
    case Fade::Take: {
      PlaybackDesk& desk = console.playback_desk();
      desk.Show();
      for (int n = 1; n <= 2; ++n) {
        store.Screens[n].Time = 5;
        store.Screens[n].Next = static_cast<std::int16_t>(n + 1);
      }
      store.Screens[2].Preset[0] = 255;
      store.Screen_Count = 3;
      desk.run_mode().Run_Switch_Click();
      return [&desk] { desk.run_mode().Run_Autotake_Click(); };
    }
  }
  return {};
}

FadeRun run_levels(Fade fade, bool smooth, int refresh_ms, int art_phase, int fade_phase) {
  FakeUdp udp;
  TestConsole t;
  t.services.art_socket = &udp;
  Console& console = t.build();
  if (smooth) console.context().output_timing().set_run_smooth(true);
  console.output_cycle().output_timer().set_interval(refresh_ms);
  const std::function<void()> start = prepare(fade, console, t.store());

  t.scheduler.advance(art_phase);
  console.main_desk().Menu_Click("art-net-setup");
  console.art_net_setup().enable_button_clicked(0);
  t.scheduler.advance(fade_phase);
  udp.clear_sent();
  t.scheduler.advance(200);  // dark frames before the fade
  start();
  FadeRun run;
  for (int ms = 1; ms <= 7500; ++ms) {
    t.scheduler.advance(1);
    if (run.lasted_ms == 0 && t.store().DMX_Out[0] == 255) run.lasted_ms = ms;
  }
  run.levels = slot1_levels(udp);
  return run;
}

FadeFigures run_once(Fade fade, bool smooth, int refresh_ms, int art_phase, int fade_phase) {
  const FadeRun run = run_levels(fade, smooth, refresh_ms, art_phase, fade_phase);
  FadeFigures f = measure(run.levels);
  f.lasted_ms = run.lasted_ms;
  return f;
}

struct Row {
  int runs = 0;
  int distinct_min = 1 << 30, distinct_max = 0;
  int jump_max = 0;
  int repeated_min = 1 << 30, repeated_max = 0;
  int final_missed = 0;
  int lasted_min = 1 << 30, lasted_max = 0;
};

void report(Fade fade, bool smooth, int refresh_ms) {
  Row row;
  for (int art_phase = 0; art_phase < 100; art_phase += 10) {
    for (int fade_phase = 0; fade_phase < 100; fade_phase += 9) {
      const FadeFigures f = run_once(fade, smooth, refresh_ms, art_phase, fade_phase);
      if (!f.found) continue;
      ++row.runs;
      row.distinct_min = std::min(row.distinct_min, f.distinct);
      row.distinct_max = std::max(row.distinct_max, f.distinct);
      row.jump_max = std::max(row.jump_max, f.largest_jump);
      row.repeated_min = std::min(row.repeated_min, f.repeated);
      row.repeated_max = std::max(row.repeated_max, f.repeated);
      if (!f.final_sent) ++row.final_missed;
      row.lasted_min = std::min(row.lasted_min, f.lasted_ms);
      row.lasted_max = std::max(row.lasted_max, f.lasted_ms);
    }
  }
  std::printf("| %s | %-3s | %3d ms | %5d | %3d-%-3d | %2d | %2d-%-2d | %3d of %d | %4d-%-4d ms |\n",
              fade_name(fade), smooth ? "on" : "off", refresh_ms, row.runs, row.distinct_min, row.distinct_max,
              row.jump_max, row.repeated_min, row.repeated_max, row.final_missed, row.runs, row.lasted_min,
              row.lasted_max);
}

}  // namespace
}  // namespace lumaris

// With arguments FADE(0-2) SMOOTH(0/1) REFRESH ART_PHASE FADE_PHASE: the levels of one run.
int main(int argc, char** argv) {
  using lumaris::Fade;
  if (argc == 6) {
    const lumaris::FadeRun run = lumaris::run_levels(static_cast<Fade>(std::atoi(argv[1])), std::atoi(argv[2]) != 0,
                                                     std::atoi(argv[3]), std::atoi(argv[4]), std::atoi(argv[5]));
    for (const int level : run.levels) std::printf("%d ", level);
    std::printf("\nfull after %d ms\n", run.lasted_ms);
    return 0;
  }
  std::printf("5 s 0 -> 255 fades, Art-Net slot 1, 120 timer phases each\n\n");
  std::printf("| fade | smooth | refresh | fades | distinct levels | largest jump | repeated frames "
              "| 255 never sent | start to 255 on the output |\n");
  std::printf("| --- | --- | --- | --- | --- | --- | --- | --- | --- |\n");
  for (const Fade fade : {Fade::SequenceChase, Fade::PlaybackChase, Fade::Take}) {
    for (const bool smooth : {false, true}) {
      for (const int refresh : {70, 23}) lumaris::report(fade, smooth, refresh);
    }
  }
  return 0;
}
