#include <gtest/gtest.h>

#include <QCoreApplication>

#include "platform/qt/qt_scheduler.h"

namespace lumaris {
namespace {

// A dialog waiting for the operator runs an event loop inside an engine event:
// other timers and posted work run in it, but a timer never ticks inside itself.
TEST(QtScheduler, OnlyATimersOwnTickNeverNests) {
  QtScheduler scheduler;
  int after_events = 0;
  scheduler.set_after_event([&] { ++after_events; });
  const int timer_a = 0;
  const int timer_b = 0;
  bool other_ran = false;
  bool self_accepted = true;
  const bool outer_ran = scheduler.run_event(
      [&] {
        other_ran = scheduler.run_event([] {}, &timer_b);
        self_accepted = scheduler.run_event([] {}, &timer_a);
      },
      &timer_a);
  EXPECT_TRUE(outer_ran);
  EXPECT_TRUE(other_ran) << "another timer ticks inside a waiting dialog";
  EXPECT_FALSE(self_accepted) << "a timer's tick never starts inside its own";
  EXPECT_EQ(after_events, 2) << "the windows re-sync after every event that ran";
  EXPECT_TRUE(scheduler.run_event([] {}, &timer_a)) << "once finished, the timer ticks again";

  int runs = 0;
  scheduler.post([&] { ++runs; });
  EXPECT_EQ(runs, 0) << "posted work waits for the event loop";
  QCoreApplication::processEvents();
  EXPECT_EQ(runs, 1);
}

}  // namespace
}  // namespace lumaris
