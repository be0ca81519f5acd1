#include <gtest/gtest.h>

#include <vector>

#include "console/output_cycle.h"
#include "playback/playback_chases.h"
#include "playback/playdesk.h"
#include "playback/run_mode.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

// A looping chain of three Auto screens with a playback chase running, left
// alone for a virtual day: every loop takes exactly as long as the first.
TEST(UnattendedLoop, TwentyFourHoursWithoutDrift) {
  TestConsole t;
  t.build();
  Store& store = t.store();
  Playdesk& desk = t.console->playback_desk();
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

  std::vector<std::int64_t> loop_starts;
  t.console->status().on_main_change([&](const std::string& text) {
    if (text == " Autotake Running 3 To 1") loop_starts.push_back(t.scheduler.now());
  });
  desk.run_mode().Run_Switch_Click();
  const std::int64_t day = 24LL * 3600 * 1000;
  for (std::int64_t done = 0; done < day; done += 60000) t.scheduler.advance(60000);

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
