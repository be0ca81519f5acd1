#include <gtest/gtest.h>

#include <malloc.h>

#include <algorithm>
#include <vector>

#include "console/output_cycle.h"
#include "playback/playback_chases.h"
#include "playback/playback_desk.h"
#include "playback/run_mode.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

// Bytes the heap holds for the program. Under AddressSanitizer the allocator is
// its own and this reads 0; LeakSanitizer then guards what is left at exit.
std::size_t heap_in_use() { return mallinfo2().uordblks; }

// A looping chain of three Auto screens with a playback chase running, left
// alone for a virtual day: every loop takes exactly as long as the first, the
// wire keeps showing the looks, and the heap holds no more after the day than
// after the first hour.
TEST(UnattendedLoop, TwentyFourHoursWithoutDrift) {
  TestConsole t;
  t.build();
  Store& store = t.store();
  PlaybackDesk& desk = t.console->playback_desk();
  ChaseRec& chase = store.Chase_Table[0];
  chase.Steps = 2;
  chase.Loop = 0;
  chase.Channels[0] = 9;
  for (int step : {1, 2}) {
    chase.Fade[step][0] = kChaseFade;
    chase.Data[step][0] = static_cast<std::int16_t>(step == 1 ? 255 : 0);
    chase.Speed[step] = 0.7;
    chase.Time[step] = 0.5;
  }
  store.Button_Functions[0].Function = kFunctionSequence;
  store.Button_Functions[0].Value = 0;
  store.Button_Functions[0].Level = 255;
  for (int n = 1; n <= 3; ++n) {
    Screen& s = store.Screens[n];
    s.Auto = true;
    s.Next = static_cast<std::int16_t>(n == 3 ? 1 : n + 1);
    s.Time = static_cast<std::int16_t>(n + 1);
    s.Delay = 2;
    s.Preset[0] = static_cast<std::int16_t>(n * 60);
    s.But_Sel[0] = true;
  }
  store.Screen_Count = 4;

  // Reserved up front: the test's own records must not count as the desk's growth.
  std::vector<std::int64_t> loop_starts;
  loop_starts.reserve(24 * 3600);
  std::vector<int> looks_seen;
  looks_seen.reserve(24 * 60);
  t.console->status().on_main_change([&](const std::string& text) {
    if (text == " Autotake Running 3 To 1") loop_starts.push_back(t.scheduler.now());
  });
  desk.run_mode().Run_Switch_Click();
  const std::int64_t hour = 3600LL * 1000;
  t.scheduler.advance(hour);
  const std::size_t heap_after_an_hour = heap_in_use();
  const int output_interval = t.console->output_cycle().output_timer().interval();
  while (t.scheduler.now() < 24 * hour) {
    t.scheduler.advance(60000);
    if (store.Autotake_Running) continue;
    // Between takes: once the output cycle has ticked, the wire shows a look.
    t.scheduler.advance(output_interval);
    if (!store.Autotake_Running) looks_seen.push_back(store.DMX_Out[0]);
  }
  EXPECT_LE(heap_in_use(), heap_after_an_hour + 4096) << "the heap grew over the day";
  for (int look : {60, 120, 180}) {
    EXPECT_NE(std::find(looks_seen.begin(), looks_seen.end(), look), looks_seen.end()) << look;
  }
  for (int level : looks_seen) EXPECT_TRUE(level == 60 || level == 120 || level == 180) << level;

  ASSERT_GT(loop_starts.size(), 1000u);
  const std::int64_t period = loop_starts[1] - loop_starts[0];
  for (std::size_t k = 1; k < loop_starts.size(); ++k) {
    ASSERT_EQ(loop_starts[k] - loop_starts[k - 1], period) << "loop " << k;
  }
  EXPECT_TRUE(store.Run_Mode);
  EXPECT_TRUE(desk.chases().running(0)) << "the chase every screen holds never stops";
  EXPECT_EQ(desk.chases().Seq_Level_In(0), store.Autotake_Running ? 255 : 0);
}

}  // namespace
}  // namespace lumaris
