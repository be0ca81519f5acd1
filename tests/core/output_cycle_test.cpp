#include <gtest/gtest.h>

#include <tuple>

#include "core/main_desk.h"
#include "console/output_cycle.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

// A started console; `tick()` runs exactly one output tick on virtual time.
class OutputCycleTest : public ::testing::Test {
 protected:
  OutputCycleTest() { t.build(); }
  MainDesk& desk() { return t.console->main_desk(); }
  Store& store() { return t.store(); }
  void tick() { t.scheduler.advance(OutputCycle::kDefaultInterval); }
  int slot(int dmx_channel) { return store().DMX_Out[dmx_channel - 1]; }
  bool failed() { return t.console->output_cycle().last_tick_failed(); }

  TestConsole t;
};

TEST_F(OutputCycleTest, TheHighestSourceWinsIsClampedAt255AndThePatchMapsChannelsToSlots) {
  store().Desk_Level[0] = 255;
  desk().Submix_Prog_Click();  // submix 1 holds channel 1 at 255
  store().Desk_Level[0] = 200;
  store().Desk_Level[2] = 10;
  store().Chase_Out[2] = 90;
  store().Playback_Seq_Out[2] = 60;
  store().Playback_Live_Out[3] = 400;  // out of range from a source: clamped, not rejected
  desk().Submix_Master_Change(0);  // submix master at full
  tick();
  EXPECT_EQ(std::tuple(slot(1), slot(3), slot(4)), std::tuple(255, 90, 255));

  desk().Submix_Master_Change(255);  // submix master down: the fader alone
  tick();
  EXPECT_EQ(slot(1), 200);
  desk().Submix_Master_Change(0);
  store().Submix[0].Chan[0] = 0;  // an entry with no channel contributes nothing
  tick();
  EXPECT_EQ(slot(1), 200);

  store().Desk_Level[4] = 77;
  store().Desk_Level[63] = 99;
  store().Patch[100] = 5;
  store().Patch[200] = 5;
  store().Patch[300] = 64;
  store().Patch[4] = 0;
  tick();
  // One channel feeds any number of slots; channel 64 reaches its slot; unpatched
  // slots (5, and 64 from the start) carry nothing.
  EXPECT_EQ(std::tuple(slot(101), slot(201), slot(301), slot(5), slot(64)), std::tuple(77, 77, 99, 0, 0));
}

// Slider 128 is the factor 127/255: 255 -> 127, 200 -> 99.6 -> 100.
TEST_F(OutputCycleTest, MastersScaleAndRoundToTheNearestLevelExceptMainFreeChannels) {
  desk().channel_fader_changed(0, 0);          // channel 1 at 255
  desk().channel_fader_changed(1, 255 - 200);  // channel 2 at 200
  store().Desk_Level[2] = 200;
  store().Fader_Names[2].Main_F = true;
  desk().channels_Change(128);
  tick();
  EXPECT_EQ(std::tuple(slot(1), slot(2)), std::tuple(127, 100));

  desk().channels_Change(0);
  desk().Main_Change(128);
  tick();
  EXPECT_EQ(std::tuple(slot(1), slot(2), slot(3)), std::tuple(127, 100, 200))
      << "the grand master rounds as well; channel 3 is exempt from Main";

  desk().Main_Change(0);
  store().Desk_Level.fill(0);
  store().Desk_Level[1] = 200;
  desk().Submix_Prog_Click();  // submix 1: channel 2 at 200
  store().Desk_Level[1] = 0;
  desk().Submix_Master_Change(128);
  tick();
  EXPECT_EQ(slot(2), 100) << "a submix under a half-way master rounds";
}

// The run-mode mix, take and crossfade, is tested in tests/console.
TEST_F(OutputCycleTest, OnlyLevelsTheFrameCannotHoldFailTheTickAndTheNextStartsAfresh) {
  store().Desk_Level[0] = 100;
  store().Patch[3] = 65;  // the always-dark entry: a valid patch
  tick();
  EXPECT_EQ(std::tuple(failed(), desk().dmx_lamp(), slot(4)), std::tuple(false, kGreen, 0));

  store().Patch[3] = 66;  // no such desk channel: the tick cannot build the frame
  store().Desk_Level[0] = 120;
  tick();
  EXPECT_EQ(std::tuple(failed(), desk().dmx_lamp()), std::tuple(true, kBlack));

  store().Patch[3] = 1;
  tick();
  EXPECT_EQ(std::tuple(desk().dmx_lamp(), slot(1)), std::tuple(kGreen, 120));

  // Every source of channel 1 below zero: nothing can be sent for it.
  store().Desk_Level[0] = -5;
  store().Chase_Out[0] = -5;
  store().Playback_Seq_Out[0] = -5;
  store().Playback_Live_Out[0] = -5;
  t.console->output_cycle().output_tick();  // before the playback desk's timer rebuilds its levels
  EXPECT_EQ(std::tuple(failed(), desk().dmx_lamp()), std::tuple(true, kBlack));
}

}  // namespace
}  // namespace lumaris
