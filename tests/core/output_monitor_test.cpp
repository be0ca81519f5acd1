#include <gtest/gtest.h>

#include <tuple>

#include "core/main_desk.h"
#include "core/output_monitor.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

struct OutputMonitorTest : ::testing::Test {
  TestConsole t;
  OutputMonitor* monitor = nullptr;

  void SetUp() override {
    t.build();
    monitor = &t.console->output_monitor();
  }
  void fader(int strip, int position) { t.console->main_desk().channel_fader_changed(strip, position); }
  void tick() { t.scheduler.advance(70); }
};

TEST_F(OutputMonitorTest, BarsFollowTheFrameOnlyWhileShownAndPagesOverlapByOneSlot) {
  fader(0, 55);  // channel 1 at 200, on slot 1
  tick();
  EXPECT_EQ(std::tuple(t.store().DMX_Out[0], monitor->bar(0).Value()), std::tuple(200, 0));
  monitor->Show();
  EXPECT_EQ(monitor->bar(0).Value(), 200);  // opening shows the current frame
  fader(1, 155);  // channel 2 at 100
  tick();
  EXPECT_EQ(monitor->bar(1).Value(), 100);
  monitor->Hide();
  fader(1, 255);
  tick();
  EXPECT_EQ(std::tuple(t.store().DMX_Out[1], monitor->bar(1).Value()), std::tuple(0, 100));

  monitor->Show();  // pages overlap by one slot; the last hides bars beyond the frame
  EXPECT_EQ(monitor->range_label(), " Real DMX Output  Ch1   -  Ch144");
  monitor->next_page_clicked();
  EXPECT_EQ(std::tuple(t.store().Realout_First, t.store().Realout_Last), std::tuple(143, 286));
  t.store().Patch[143] = 9;
  fader(8, 0);  // channel 9 full
  tick();
  EXPECT_EQ(monitor->bar(0).Value(), 255);
  EXPECT_EQ(monitor->bar_tooltip(0), " Output 144 From Desk Channel 9");

  for (int i = 0; i < 5; ++i) monitor->next_page_clicked();
  EXPECT_EQ(std::tuple(monitor->page(), monitor->next_page_enabled()), std::tuple(3, false));
  EXPECT_TRUE(monitor->bar_visible(82));   // slot 511, DMX channel 512
  EXPECT_FALSE(monitor->bar_visible(83));  // slot 512
  EXPECT_EQ(monitor->bar_tooltip(82), " Output 512 From Desk Channel 0");
  EXPECT_EQ(monitor->range_label(), " Real DMX Output  Ch430   -  Ch512");
  monitor->previous_page_clicked();
  monitor->Show();  // already open: stays
  EXPECT_EQ(monitor->page(), 2);
  monitor->Hide();
  monitor->Show();
  EXPECT_EQ(monitor->page(), 0) << "opening again starts on the first page";
}

}  // namespace
}  // namespace lumaris
