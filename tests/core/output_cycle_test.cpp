#include <gtest/gtest.h>

#include "core/main_desk.h"
#include "console/output_cycle.h"
#include "playback/playdesk.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

// A started console; `tick()` runs exactly one output tick on virtual time.
class OutputCycleTest : public ::testing::Test {
 protected:
  OutputCycleTest() { t.build(); }
  Hoofdblad& desk() { return t.console->main_desk(); }
  Store& store() { return t.store(); }
  void tick() { t.scheduler.advance(OutputCycle::kDefaultInterval); }
  int slot(int dmx_channel) { return store().DMX_Out[dmx_channel - 1]; }

  TestConsole t;
};

TEST_F(OutputCycleTest, HighestLevelOfFaderAndSubmixWins) {
  store().Desk_Level[0] = 255;
  desk().Submix_Prog_Click();  // submix 1 holds channel 1 at 255
  store().Desk_Level[0] = 200;
  desk().Submix_Master_Change(0);  // submix master at full
  tick();
  EXPECT_EQ(slot(1), 255);

  desk().Submix_Master_Change(255);  // submix master down: the fader alone
  tick();
  EXPECT_EQ(slot(1), 200);
}

TEST_F(OutputCycleTest, MastersScaleWithHalvesToEven) {
  desk().Slider1_Change(0, 0);  // channel 1 at full
  desk().channels_Change(128);  // 255 * 127 / 255
  tick();
  EXPECT_EQ(slot(1), 127);

  desk().channels_Change(0);
  desk().Main_Change(128);
  tick();
  EXPECT_EQ(slot(1), 127);
  EXPECT_EQ(t.console->playback_desk().main_value(), 128) << "Main is kept equal on both desks";
}

TEST_F(OutputCycleTest, ChannelExemptFromMainKeepsItsLevel) {
  store().Desk_Level[0] = 200;
  store().Desk_Level[1] = 200;
  store().Fader_Names[1].Main_F = true;
  desk().Main_Change(255);  // grand master at zero
  tick();
  EXPECT_EQ(slot(1), 0);
  EXPECT_EQ(slot(2), 200);
}

TEST_F(OutputCycleTest, SourcesMergeByHighestAndClampAt255) {
  store().Desk_Level[2] = 10;
  store().Chase_Out[2] = 90;
  store().Playback_Seq_Out[2] = 60;
  store().Playback_Live_Out[3] = 400;  // out of range from a source: clamped, not rejected
  store().Submix[0].Chan[0] = 0;  // an entry with no channel contributes nothing
  store().Submix[0].Level[0] = 255;
  desk().Submix_Master_Change(0);
  tick();
  EXPECT_EQ(slot(1), 0);
  EXPECT_EQ(slot(3), 90);
  EXPECT_EQ(slot(4), 255);
}

TEST_F(OutputCycleTest, PatchMapsChannelsToSlots) {
  store().Desk_Level[4] = 77;
  store().Desk_Level[63] = 99;
  store().Patch[100] = 5;
  store().Patch[200] = 5;
  store().Patch[300] = 64;
  store().Patch[4] = 0;
  tick();
  EXPECT_EQ(slot(101), 77);
  EXPECT_EQ(slot(201), 77) << "one channel feeds any number of slots";
  EXPECT_EQ(slot(301), 99) << "channel 64 reaches its slot";
  EXPECT_EQ(slot(5), 0) << "an unpatched slot carries nothing";
  EXPECT_EQ(slot(64), 0) << "slot 64 starts unpatched";
}

TEST_F(OutputCycleTest, RunModeScalesFadersByPresetAndDropsSubmixesAndChases) {
  store().Desk_Level[0] = 200;
  store().Chase_Out[1] = 150;
  store().Submix[0].Chan[0] = 3;
  store().Submix[0].Level[0] = 255;
  desk().Submix_Master_Change(0);
  store().Run_Mode = true;
  t.console->playback_desk().Preset_Change(128);  // P = 127
  tick();
  EXPECT_EQ(slot(1), 100);  // round(127 * 200 / 255) = round(99.6)
  EXPECT_EQ(slot(2), 0);
  EXPECT_EQ(slot(3), 0);
}

TEST_F(OutputCycleTest, CrossfadeEndsShowOneSideEach) {
  store().Run_Mode = true;
  store().Take_Manual = true;
  store().Run_Screen = 2;
  store().Screens[2].Preset[0] = 180;
  store().Screens[2].Preset_l = 255;
  store().Desk_Level[0] = 90;

  store().Crossfade_Level = 0;
  tick();
  EXPECT_EQ(slot(1), 90) << "outgoing look fully present at X = 0";

  store().Crossfade_Level = 255;
  tick();
  EXPECT_EQ(slot(1), 180) << "incoming screen alone at X = 255";

  store().Fader_Names[0].Cross_F = true;
  store().Crossfade_Level = 0;
  tick();
  EXPECT_EQ(slot(1), 180) << "a channel exempt from the crossfade jumps to the incoming screen";
}

TEST_F(OutputCycleTest, FailedTickPaintsIndicatorBlackAndNextTickStartsAfresh) {
  store().Desk_Level[0] = 100;
  tick();
  EXPECT_EQ(desk().Picture2(), kGreen);

  store().Patch[10] = 70;  // no such desk channel: the tick cannot build the frame
  store().Desk_Level[0] = 120;
  tick();
  EXPECT_EQ(desk().Picture2(), kBlack);
  EXPECT_TRUE(t.console->output_cycle().last_tick_failed());

  store().Patch[10] = 0;
  tick();
  EXPECT_EQ(desk().Picture2(), kGreen);
  EXPECT_EQ(slot(1), 120);
}

TEST_F(OutputCycleTest, MastersAndTheSubmixRoundToTheNearestLevel) {
  desk().Slider1_Change(0, 255 - 200);  // channel 1 at 200
  desk().channels_Change(128);          // 200 * 127 / 255 = 99.6
  tick();
  EXPECT_EQ(slot(1), 100);

  desk().channels_Change(0);
  desk().Main_Change(128);
  tick();
  EXPECT_EQ(slot(1), 100) << "the grand master rounds as well";

  desk().Main_Change(0);
  store().Desk_Level[0] = 0;
  store().Desk_Level[1] = 200;
  desk().Submix_Prog_Click();  // submix 1: channel 2 at 200
  store().Desk_Level[1] = 0;
  desk().Submix_Master_Change(128);
  tick();
  EXPECT_EQ(slot(2), 100) << "a submix under a half-way master rounds";
}

TEST_F(OutputCycleTest, OnlyLevelsTheFrameCannotHoldFailTheTick) {
  store().Patch[3] = 65;  // the always-dark entry: a valid patch
  tick();
  EXPECT_FALSE(t.console->output_cycle().last_tick_failed());
  EXPECT_EQ(slot(4), 0);

  store().Patch[3] = 66;
  tick();
  EXPECT_TRUE(t.console->output_cycle().last_tick_failed()) << "no channel 66";
  store().Patch[3] = 1;

  // Every source of channel 1 below zero: nothing can be sent for it.
  store().Desk_Level[0] = -5;
  store().Chase_Out[0] = -5;
  store().Playback_Seq_Out[0] = -5;
  store().Playback_Live_Out[0] = -5;
  t.console->output_cycle().Timer1_Tick();  // before the playback desk's timer rebuilds its levels
  EXPECT_TRUE(t.console->output_cycle().last_tick_failed());
  EXPECT_EQ(desk().Picture2(), kBlack);
}

}  // namespace
}  // namespace lumaris
