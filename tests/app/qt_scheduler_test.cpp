#include <gtest/gtest.h>

#include <QCoreApplication>

#include "platform/qt/qt_scheduler.h"

namespace lumaris {
namespace {

// A modal dialog inside a tick runs an event loop; timer ticks and posted work
// arriving meanwhile must not start a second engine event inside the first.
TEST(QtScheduler, EngineEventsNeverNest) {
  QtScheduler scheduler;
  int after_events = 0;
  scheduler.set_after_event([&] { ++after_events; });
  bool inner_ran = false;
  bool nested_accepted = true;
  const bool outer_ran = scheduler.run_event([&] {
    nested_accepted = scheduler.run_event([&] { inner_ran = true; });
  });
  EXPECT_TRUE(outer_ran);
  EXPECT_FALSE(nested_accepted);
  EXPECT_FALSE(inner_ran);
  EXPECT_EQ(after_events, 1) << "the windows re-sync once, after the outer event";

  int runs = 0;
  scheduler.post([&] { ++runs; });
  EXPECT_EQ(runs, 0) << "posted work waits for the event loop";
  QCoreApplication::processEvents();
  EXPECT_EQ(runs, 1);
}

}  // namespace
}  // namespace lumaris
