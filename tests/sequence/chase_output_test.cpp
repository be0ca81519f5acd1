#include <gtest/gtest.h>

#include "console/output_cycle.h"
#include "tests/sequence/sequence_desk.h"

namespace lumaris {

// The output cycle's Timer1 ticks every 70 ms from start-up (0 ms); the chase's
// level timer every 100 ms from Go. "Same tick" here means: every output tick
// puts into DMX_Out exactly the Chase_Out that stands when it runs, so a level the
// chase writes is on the wire at the first output tick after it, never later.
TEST(ChaseOutput, ARunningChaseReachesThePatchedSlotAtTheNextOutputTick) {
  SequenceDesk s;
  Store& store = s.t.store();
  store.Patch[100] = 5;  // slot 101 also carries desk channel 5 (slot 4 does already)
  s.program(2, 1.0, 0.5);
  s.chase().Channels[0] = 4;
  s.chase().Data[1][0] = 180;
  s.chase().Data[2][0] = 90;
  s.t.scheduler.advance(35);  // Go at 35 ms: level ticks at 135, 235, ... never on an output tick
  s.desk->Chase_Go_Button_Click();

  s.t.scheduler.advance(100);  // 135 ms: the chase has written its level
  EXPECT_EQ(store.Chase_Out[4], 180);
  EXPECT_EQ(store.DMX_Out[4], 0);
  s.t.scheduler.advance(5);  // 140 ms: the output tick
  EXPECT_EQ(store.DMX_Out[4], 180);
  EXPECT_EQ(store.DMX_Out[100], 180);

  for (int ms = 141; ms <= 3000; ++ms) {
    s.t.scheduler.advance(1);
    if (ms % OutputCycle::kDefaultInterval == 0) {
      ASSERT_EQ(store.DMX_Out[100], store.Chase_Out[4]) << "at " << ms << " ms";
    }
  }
  EXPECT_EQ(store.DMX_Out[3], 0);  // slot 4's neighbours stay dark
  EXPECT_EQ(store.DMX_Out[5], 0);
}

}  // namespace lumaris
