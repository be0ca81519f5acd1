#include <gtest/gtest.h>

#include <tuple>

#include "console/output_cycle.h"
#include "core/desk_context.h"
#include "tests/sequence/sequence_test_desk.h"

namespace lumaris {
namespace {

// Step 2 fades channel 1 from 0 to 200 over 0.5 s; the output runs every 10 ms.
SequenceTestDesk& fade_desk(SequenceTestDesk& s, bool smooth) {
  if (smooth) s.t.console->context().output_timing().set_run_smooth(true);
  s.t.console->output_cycle().output_timer().set_interval(10);
  s.program(2, 1.0, 0.5);
  s.chase().Data[1][0] = 0;
  s.chase().Data[2][0] = 200;
  s.chase().Fade[2][0] = kChaseFade;
  return s;
}

int mixed(SequenceTestDesk& s) { return s.t.console->output_cycle().Channel_Mix()[0]; }

// The output timer ticks before the chase's level timer at the same moment, so
// the desk without smooth output shows a level tick's value one frame later.
TEST(SmoothChase, TheFrameFollowsTheFadeBetweenLevelTicksAndMeetsThemAtEachTick) {
  SequenceTestDesk off;
  SequenceTestDesk on;
  fade_desk(off, false).desk->Chase_Go_Button_Click();
  fade_desk(on, true).desk->Chase_Go_Button_Click();
  on.t.scheduler.advance(1100);  // step 2 from 1001; its first level tick at 1100 is 40
  EXPECT_EQ(mixed(on), 40);
  off.t.scheduler.advance(1110);
  EXPECT_EQ(mixed(off), 40);
  on.t.scheduler.advance(50);
  off.t.scheduler.advance(40);
  EXPECT_EQ(mixed(on), 60);  // halfway to the next tick's 80
  EXPECT_EQ(mixed(off), 40);
  on.t.scheduler.advance(50);
  off.t.scheduler.advance(60);
  EXPECT_EQ(std::tuple(mixed(on), mixed(off)), std::tuple(80, 80));
}

TEST(SmoothChase, TheFirstFrameOfAStepStartsFromThePreviousLevel) {
  SequenceTestDesk on;
  fade_desk(on, true).desk->Chase_Go_Button_Click();
  on.t.scheduler.advance(1001);  // step 2 begins; the next level tick is at 1100
  EXPECT_EQ(mixed(on), 0);
  on.t.scheduler.advance(49);  // 1050: half of 99 ms towards 40
  EXPECT_EQ(mixed(on), 20);
}

TEST(SmoothChase, AFadesLastLevelNoFrameCarriedIsHeldForTheNextFrame) {
  SequenceTestDesk on;
  fade_desk(on, true);
  // Started at 50 ms: step 2 runs 1051-2052, its last level tick (200) is at
  // 2050, and the output runs only every 700 ms (1400, 2100), so no frame took it.
  on.t.console->output_cycle().output_timer().set_interval(700);
  on.chase().Time[2] = 1.0;
  on.chase().Speed[2] = 1.0;
  on.t.scheduler.advance(50);
  on.desk->Chase_Go_Button_Click();
  on.t.scheduler.advance(2050);  // 2100: step 1 began at 2052, yet the frame holds 200
  EXPECT_EQ(std::tuple(on.desk->Cur_Step(), mixed(on)), std::tuple(1, 200));
  on.t.scheduler.advance(700);
  EXPECT_EQ(mixed(on), 0);
}

TEST(SmoothChase, AChaseEndingOnItsLastPassHoldsItsLastLevelForOneFrame) {
  SequenceTestDesk on;
  fade_desk(on, true);
  // Two passes from 50 ms; the second pass's fade ends at 4050 on 200, the
  // chase at 4054, and the output runs every 700 ms (4200 is next).
  on.t.console->output_cycle().output_timer().set_interval(700);
  on.chase().Time[2] = 1.0;
  on.chase().Loop = 1;
  on.t.scheduler.advance(50);
  on.desk->Chase_Go_Button_Click();
  on.t.scheduler.advance(4150);
  EXPECT_EQ(std::tuple(on.desk->runtime().Chase_Running(), mixed(on)), std::tuple(false, 200));
  on.t.scheduler.advance(700);
  EXPECT_EQ(mixed(on), 0);
}

}  // namespace
}  // namespace lumaris
