// A 5 s 0 -> 255 fade on the sequence desk, run on virtual time and read off
// the Art-Net wire, for smooth output off and on at two refresh rates, across
// the phases of the output, Art-Net and chase timers. Prints figures only.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <set>
#include <vector>

#include "console/output_cycle.h"
#include "core/desk_context.h"
#include "net/art_config.h"
#include "net/art_net_node.h"
#include "sequence/chase_runtime.h"
#include "sequence/chases.h"
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

FadeFigures run_once(bool smooth, int refresh_ms, int art_phase, int chase_phase) {
  FakeUdp udp;
  TestConsole t;
  t.services.art_socket = &udp;
  Console& console = t.build();
  if (smooth) console.context().output_timing().set_run_smooth(true);
  console.output_cycle().Timer1().set_interval(refresh_ms);

  Chases& desk = console.sequence_desk();
  desk.Show();
  ChaseRec& chase = t.store().Chase_Table[desk.Cur_Chase()];
  chase.Steps = 2;
  chase.Speed[1] = chase.Time[1] = 1.0;
  chase.Speed[2] = chase.Time[2] = 5.0;
  chase.Data[1][0] = 0;
  chase.Data[2][0] = 255;
  chase.Fade[2][0] = kChaseFade;
  desk.Refresh_Desk();

  t.scheduler.advance(art_phase);
  console.main_desk().Menu_Click("Art_setup");
  console.art_config().Button1_Click(0);
  t.scheduler.advance(chase_phase);
  udp.clear_sent();
  desk.Chase_Go_Button_Click();
  t.scheduler.advance(7500);
  return measure(slot1_levels(udp));
}

struct Row {
  int runs = 0;
  int distinct_min = 1 << 30, distinct_max = 0;
  int jump_max = 0;
  int repeated_min = 1 << 30, repeated_max = 0;
  int final_missed = 0;
};

void report(bool smooth, int refresh_ms) {
  Row row;
  for (int art_phase = 0; art_phase < 100; art_phase += 10) {
    for (int chase_phase = 0; chase_phase < 100; chase_phase += 9) {
      const FadeFigures f = run_once(smooth, refresh_ms, art_phase, chase_phase);
      if (!f.found) continue;
      ++row.runs;
      row.distinct_min = std::min(row.distinct_min, f.distinct);
      row.distinct_max = std::max(row.distinct_max, f.distinct);
      row.jump_max = std::max(row.jump_max, f.largest_jump);
      row.repeated_min = std::min(row.repeated_min, f.repeated);
      row.repeated_max = std::max(row.repeated_max, f.repeated);
      if (!f.final_sent) ++row.final_missed;
    }
  }
  std::printf("| %-3s | %3d ms | %5d | %3d-%-3d | %2d | %2d-%-2d | %3d of %d |\n",
              smooth ? "on" : "off", refresh_ms, row.runs, row.distinct_min, row.distinct_max,
              row.jump_max, row.repeated_min, row.repeated_max, row.final_missed, row.runs);
}

}  // namespace
}  // namespace lumaris

int main() {
  std::printf("5 s 0 -> 255 fade on the sequence desk, Art-Net slot 1, 120 timer phases each\n\n");
  std::printf("| smooth | refresh | fades | distinct levels | largest jump | repeated frames "
              "| 255 never sent |\n");
  std::printf("| --- | --- | --- | --- | --- | --- | --- |\n");
  for (const bool smooth : {false, true}) {
    for (const int refresh : {70, 23}) lumaris::report(smooth, refresh);
  }
  return 0;
}
