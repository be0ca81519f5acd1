#include <gtest/gtest.h>

#include <tuple>

#include "console/output_cycle.h"
#include "core/desk_context.h"
#include "core/main_desk.h"
#include "playback/playback_desk.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

// The output cycle's run-mode mix at an intermediate crossfade, every source
// present on every channel. Each channel is set up so that a different term
// decides it; the arithmetic is written next to each expectation.
//
// X = 100, P = 200 (Preset slider at 55), screen 2 at Preset_l 180.
class RunModeMix : public ::testing::Test {
 protected:
  struct Sources {
    int desk, preset, live, run, seq;
  };

  RunModeMix() {
    t.build();
    Store& s = t.store();
    s.Run_Mode = true;
    s.Run_Screen = 2;
    s.Crossfade_Level = 100;
    s.Screens[2].Preset_l = 180;
    t.console->playback_desk().Preset_Change(55);
    set(1, {150, 80, 40, 20, 30});   // the looks decide
    set(2, {50, 30, 200, 60, 30});   // the playback buttons decide
    set(3, {50, 30, 40, 20, 170});   // the playback chases decide
    set(4, {150, 80, 200, 60, 30});  // Cross_F: the incoming buttons decide
    set(5, {150, 200, 40, 60, 30});  // Cross_F: the incoming screen decides
    s.Fader_Names[3].Cross_F = true;
    s.Fader_Names[4].Cross_F = true;
  }

  void set(int channel, Sources v) {
    Store& s = t.store();
    const int i = channel - 1;
    s.Desk_Level[i] = static_cast<std::int16_t>(v.desk);
    s.Screens[2].Preset[i] = static_cast<std::int16_t>(v.preset);
    s.Playback_Live_Out[i] = static_cast<std::int16_t>(v.live);
    s.Playback_Run_Out[i] = static_cast<std::int16_t>(v.run);
    s.Playback_Seq_Out[i] = static_cast<std::int16_t>(v.seq);
  }

  // One output tick, before the playback chases' 100 ms mix rewrites Playback_Seq_Out.
  void tick() { t.scheduler.advance(OutputCycle::kDefaultInterval); }
  int slot(int channel) { return t.store().DMX_Out[channel - 1]; }
  void expect_take_mix();

  TestConsole t;
};

void RunModeMix::expect_take_mix() {
  // 150*155/255*200/255 = 71.5 -> 72, plus 80*100/255*180/255 = 22.1 -> 22
  EXPECT_EQ(slot(1), 94);
  // live 200*155/255 = 121.6 -> 122, plus run 60*100/255 = 23.5 -> 24
  EXPECT_EQ(std::tuple(slot(2), slot(3)), std::tuple(146, 170));
  // Cross_F: max(80*180/255 = 56.5 -> 56, run 60); the live buttons do not count
  EXPECT_EQ(slot(4), 60);
  // Cross_F: 200*180/255 = 141.2 -> 141
  EXPECT_EQ(slot(5), 141);
}

TEST_F(RunModeMix, HandAndAutomaticTakeMixBothLooksAtIntermediateCrossfade) {
  for (bool* take : {&t.store().Take_Manual, &t.store().Autotake_Running}) {
    t.store().Take_Manual = t.store().Autotake_Running = false;
    *take = true;
    t.console->output_cycle().output_tick();  // the output tick alone: no other timer runs
    expect_take_mix();
  }
}

// Smooth output mixes each channel's two levels in one rounded step: channel 6
// rises from 37 to 211 and channel 8's buttons from 37 to 211 without a step
// back, channel 9's buttons fall from 211 to 37 without a step up, and
// channel 7, at 100 in both looks, never moves.
TEST_F(RunModeMix, WithSmoothOutputATakeNeverStepsBack) {
  t.console->context().output_timing().set_run_smooth(true);
  t.console->playback_desk().Preset_Change(0);
  t.store().Screens[2].Preset_l = 255;
  t.store().Take_Manual = true;
  set(6, {37, 211, 0, 0, 0});
  set(7, {100, 100, 0, 0, 0});
  set(8, {0, 0, 37, 211, 0});
  set(9, {0, 0, 211, 37, 0});
  int rising = 37;
  int buttons = 37;
  int falling = 211;
  for (int x = 0; x <= 255; ++x) {
    t.store().Crossfade_Level = static_cast<std::int16_t>(x);
    t.console->output_cycle().output_tick();
    ASSERT_GE(slot(6), rising) << "X = " << x;
    ASSERT_GE(slot(8), buttons) << "X = " << x;
    ASSERT_LE(slot(9), falling) << "X = " << x;
    ASSERT_EQ(slot(7), 100) << "X = " << x;
    rising = slot(6);
    buttons = slot(8);
    falling = slot(9);
  }
  EXPECT_EQ(std::tuple(rising, buttons, falling), std::tuple(211, 211, 37));
}

// The sequence desk's chases and the submixes have no part in run mode.
TEST_F(RunModeMix, WithoutTakeTheDeskIsScaledByPresetAndTheCrossfadeIgnored) {
  t.store().Chase_Out[0] = 250;
  t.store().Submix[0].Chan[0] = 2;
  t.store().Submix[0].Level[0] = 255;
  t.console->main_desk().Submix_Master_Change(0);
  tick();
  EXPECT_EQ(slot(1), 118);  // 200*150/255 = 117.6
  EXPECT_EQ(slot(2), 200);  // the live buttons
  EXPECT_EQ(slot(3), 170);  // the chases
  EXPECT_EQ(slot(4), 200) << "Cross_F matters only during a take";
  EXPECT_EQ(slot(5), 118);
}

TEST_F(RunModeMix, GrandMasterScalesTheTakeExceptMainFreeChannels) {
  t.store().Take_Manual = true;
  t.console->playback_desk().Main_Change(128);  // 127/255
  t.store().Fader_Names[1].Main_F = true;
  tick();
  EXPECT_EQ(slot(1), 47);   // 94*127/255 = 46.8
  EXPECT_EQ(slot(2), 146);  // Main_F
}

}  // namespace
}  // namespace lumaris
