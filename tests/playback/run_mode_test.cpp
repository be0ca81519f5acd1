#include <gtest/gtest.h>

#include "console/output_cycle.h"
#include "playback/run_mode.h"
#include "tests/playback/playback_desk.h"

namespace lumaris {
namespace {

// A show of screens for run mode, the output cycle at a chosen interval, and
// the wire (DMX_Out) read at chosen moments. Channel c reaches DMX slot c.
class RunModeTest : public ::testing::Test {
 protected:
  RunModeTest() {
    output_interval(20);
    for (int n = 1; n <= 4; ++n) screen(n, "Look " + std::to_string(n), 10);
    store().Screen_Count = 5;
  }

  Store& store() { return d.store(); }
  RunMode& run() { return d.desk->run_mode(); }
  FakeScheduler& clock() { return d.t.scheduler; }
  void output_interval(int ms) { d.t.console->output_cycle().Timer1().set_interval(ms); }
  Screen& screen(int n, const std::string& name, int time) {
    Screen& s = store().Screens[n];
    s.Name = name;
    s.Time = static_cast<std::int16_t>(time);
    s.Next = static_cast<std::int16_t>(n + 1);
    return s;
  }
  void enter() { run().Run_Switch_Click(); }
  void leave() {
    d.t.dialogs.answer_message(MessageResult::Ok);
    run().Run_Switch_Click();
  }
  int wire(int channel) { return store().DMX_Out[channel - 1]; }
  // Advances to the end of the take and returns how long it took.
  std::int64_t run_until_complete(std::int64_t limit = 120000) {
    const std::int64_t start = clock().now();
    while (store().Autotake_Running && clock().now() - start < limit) clock().advance(1);
    return clock().now() - start;
  }

  PlaybackDesk d;
};

TEST_F(RunModeTest, EnteringLoadsScreenOneAndShowsTheNextOnSideB) {
  store().Screens[1].Preset[0] = 120;
  store().Screens[1].Time = 7;
  enter();
  EXPECT_TRUE(store().Run_Mode);
  EXPECT_EQ(store().Run_Screen, 1);
  EXPECT_EQ(store().Desk_Level[0], 120) << "screen 1 becomes the desk";
  EXPECT_EQ(run().Run_Switch_caption(), "STOP");
  EXPECT_EQ(run().Run_Switch_colour(), kRed);
  EXPECT_EQ(run().Run_A(), "Look 1");
  EXPECT_EQ(run().Run_A_Num(), "1");
  EXPECT_EQ(run().Run_B(), "Look 2");
  EXPECT_EQ(run().Run_B_Num(), "2");
  EXPECT_EQ(run().side_a_colour(), kRed) << "live side";
  EXPECT_EQ(run().side_b_colour(), kGreen) << "next side";
  EXPECT_EQ(run().Run_Crossfade(), 255);
  EXPECT_EQ(run().Next_Screen(), 2);
  EXPECT_EQ(run().Run_Fade_Time(), "10 s") << "the next screen's fade time";
  EXPECT_EQ(d.t.console->status().playback(), " Run Mode Selected");
  EXPECT_EQ(d.t.console->status().main(), " Run Mode Selected");
  EXPECT_FALSE(d.screens().Screen_Prog_enabled());
  EXPECT_FALSE(d.screens().Screen_Num_sel_enabled());
  clock().advance(40);
  EXPECT_EQ(wire(1), 120);
}

TEST_F(RunModeTest, LeavingAsksAndKeepsTheLiveLook) {
  store().Screens[1].Preset[0] = 120;
  enter();
  d.t.dialogs.answer_message(MessageResult::Cancel);
  run().Run_Switch_Click();
  ASSERT_FALSE(d.t.dialogs.messages().empty());
  const MessageBoxSpec& box = d.t.dialogs.messages().back();
  EXPECT_EQ(box.title, " Run Mode");
  EXPECT_EQ(box.text, "Do You wish to Exit Run Mode ");
  EXPECT_EQ(box.icon, MessageIcon::Question);
  EXPECT_EQ(box.default_button, MessageResult::Cancel);
  EXPECT_TRUE(store().Run_Mode) << "Cancel stays in run mode";

  leave();
  EXPECT_FALSE(store().Run_Mode);
  EXPECT_EQ(d.t.console->status().playback(), " Run Mode Stopped");
  EXPECT_EQ(d.t.console->status().main(), " Run Mode Stoped");
  EXPECT_EQ(run().Run_Switch_caption(), "Run");
  EXPECT_FALSE(run().Run_Switch_colour().has_value());
  EXPECT_EQ(run().Run_A(), "");
  EXPECT_FALSE(run().side_b_colour().has_value());
  EXPECT_TRUE(d.screens().Screen_Prog_enabled());
  clock().advance(40);
  EXPECT_EQ(wire(1), 120);
}

TEST_F(RunModeTest, LeavingMidTakeStopsTheTakeAndKeepsTheOutgoingDesk) {
  store().Screens[1].Preset[0] = 100;
  store().Screens[2].Preset[0] = 200;
  enter();
  run().Run_Autotake_Click();
  clock().advance(2000);
  ASSERT_TRUE(store().Autotake_Running);
  leave();
  EXPECT_FALSE(store().Autotake_Running);
  EXPECT_FALSE(run().Timer2().enabled());
  const int level = store().Crossfade_Level;
  clock().advance(5000);
  EXPECT_EQ(store().Crossfade_Level, level) << "the take timer stopped";
  EXPECT_EQ(wire(1), 100);
}

TEST_F(RunModeTest, ThirtySecondTakeRunsOnItsOwnTimerAndEndsOnTime) {
  screen(2, "Slow", 30).Preset[0] = 255;
  enter();
  run().Autotake(2);
  EXPECT_EQ(d.t.console->status().main(), " Autotake Running 1 To 2");
  EXPECT_EQ(run().Timer2().interval(), 118);  // u = 117.6 ms > 20
  EXPECT_EQ(run().Fade_Ticks(), 255);
  EXPECT_EQ(run().Fade_Step(), 1);
  EXPECT_EQ(run().Run_Autotake_caption(), "Pause");
  EXPECT_EQ(run().Run_Autotake_colour(), kYellow);
  EXPECT_EQ(run().side_a_colour(), kYellow);
  EXPECT_EQ(run().Run_A(), "Look 1") << "the outgoing screen on the side the crossfader leaves";
  EXPECT_EQ(run().Run_B(), "Slow");

  clock().advance(118 * 100);  // 100 ticks: X = 100
  EXPECT_EQ(store().Crossfade_Level, 100);
  EXPECT_EQ(run().Run_Crossfade(), 155) << "Next on A: the crossfader shows 255 - X";
  clock().advance(20);
  EXPECT_EQ(wire(1), 100) << "255 * 100 / 255 on the wire";

  clock().advance(118 * 152 - 21);  // one millisecond before tick 252
  EXPECT_TRUE(store().Autotake_Running);
  clock().advance(1);
  EXPECT_FALSE(store().Autotake_Running);
  EXPECT_EQ(store().Crossfade_Level, 255);
  EXPECT_EQ(d.t.console->status().playback(), " Autotake Complete ");
  EXPECT_EQ(store().Desk_Level[0], 255);
  EXPECT_EQ(run().side_a_colour(), kGreen);
  EXPECT_EQ(run().side_b_colour(), kRed);
  EXPECT_EQ(run().Run_A(), "Look 3") << "the next screen waits on side A";
}

TEST_F(RunModeTest, FiveSecondTakeIsQuantisedToTheOutputTick) {
  screen(2, "Quick", 5);
  enter();
  run().Autotake(2);
  EXPECT_EQ(run().Timer2().interval(), 20);  // u = 19.6 ms <= 20
  EXPECT_EQ(run().Fade_Ticks(), 238);        // 5000 / 21
  EXPECT_EQ(run().Fade_Step(), 1);
  EXPECT_EQ(run_until_complete(), 252 * 20);
}

TEST_F(RunModeTest, LargeStepsAtTheDefaultRate) {
  output_interval(70);
  screen(2, "Short", 1);
  enter();
  run().Autotake(2);
  EXPECT_EQ(run().Fade_Ticks(), 14);  // 1000 / 71
  EXPECT_EQ(run().Fade_Step(), 18);   // 255 / 14 = 18.2
  EXPECT_EQ(run_until_complete(), 14 * 70);
}

TEST_F(RunModeTest, FadeTimeZeroIsASnapOnTheFirstTick) {
  screen(2, "Snap", 0).Preset[0] = 200;
  enter();
  run().Autotake(2);
  EXPECT_TRUE(store().Autotake_Running);
  clock().advance(20);
  EXPECT_FALSE(store().Autotake_Running);
  EXPECT_EQ(store().Desk_Level[0], 200);
}

TEST_F(RunModeTest, PausedTakeResumesAtTheScreensPace) {
  screen(2, "Ten", 10).Preset[0] = 255;
  enter();
  run().Autotake(2);
  ASSERT_EQ(run().Timer2().interval(), 39);  // u = 39.2 ms
  clock().advance(39 * 102);                 // 40 %
  ASSERT_EQ(store().Crossfade_Level, 102);

  run().Run_Autotake_Click();
  EXPECT_EQ(d.t.console->status().playback(), " Autotake Stopped ");
  EXPECT_TRUE(store().Take_Manual);
  EXPECT_FALSE(store().Autotake_Running);
  EXPECT_EQ(run().side_a_colour(), kRed);
  EXPECT_EQ(run().side_b_colour(), kRed);
  EXPECT_EQ(run().Run_Autotake_caption(), "Auto Take");
  clock().advance(10000);
  EXPECT_EQ(store().Crossfade_Level, 102) << "a paused take holds its level";
  clock().advance(20);
  EXPECT_EQ(wire(1), 102);

  run().Run_Autotake_Click();
  EXPECT_EQ(d.t.console->status().playback(), " Autotake Running ");
  EXPECT_EQ(store().Run_Screen, 2) << "resumed, not a new take";
  const std::int64_t rest = run_until_complete();
  EXPECT_EQ(rest, 150 * 39);
  EXPECT_NEAR(static_cast<double>(rest), 6000.0, 300.0) << "60 % of 10 s";
}

TEST_F(RunModeTest, PauseNearTheEndsStartsANewTakeInsteadOfResuming) {
  screen(2, "Ten", 10);
  enter();
  run().Autotake(2);
  clock().advance(39 * 20);  // X = 20
  run().Run_Autotake_Click();
  run().Run_Autotake_Click();
  EXPECT_EQ(store().Crossfade_Level, 0) << "X = 20 is too near the start to resume: the take starts over";
  EXPECT_TRUE(store().Autotake_Running);
  EXPECT_EQ(store().Run_Screen, 2) << "onto the next screen, still screen 2 during the take";
  EXPECT_EQ(run().Prev_Screen(), 2);
}

TEST_F(RunModeTest, TargetBeyondTheShowRetakesTheLiveScreen) {
  enter();
  run().Autotake(150);
  EXPECT_EQ(store().Run_Screen, 1);
  EXPECT_TRUE(store().Autotake_Running);
  d.t.dialogs.answer_message(MessageResult::Ok);
  run().Run_Switch_Click();
  run().Autotake(2);
  EXPECT_FALSE(store().Autotake_Running) << "nothing happens outside run mode";
}

TEST_F(RunModeTest, DelayChainOfThreeScreensPlaysByItself) {
  Screen& one = screen(1, "One", 1);
  one.Auto = true;
  one.Delay = 2;
  Screen& two = screen(2, "Two", 1);
  two.Auto = true;
  two.Delay = 3;
  screen(3, "Three", 1).Preset[4] = 77;
  enter();
  EXPECT_TRUE(run().Delay_Timer().enabled());
  EXPECT_EQ(run().Delay_Count(), 2);
  clock().advance(1000);
  EXPECT_EQ(d.t.console->status().main(), " Delay Counter 1");
  clock().advance(1000);
  EXPECT_TRUE(store().Autotake_Running);
  EXPECT_EQ(store().Run_Screen, 2);
  EXPECT_FALSE(run().Delay_Timer().enabled());

  std::int64_t take = run_until_complete();
  EXPECT_EQ(take, 51 * 20);  // 1000 / 21 = 48 ticks, step 5: 252 after 51 ticks
  EXPECT_EQ(run().Delay_Count(), 3);
  clock().advance(3000);
  EXPECT_EQ(store().Run_Screen, 3);
  take = run_until_complete();
  EXPECT_FALSE(run().Delay_Timer().enabled()) << "screen 3 is not Auto: the chain stops";
  clock().advance(5000);
  EXPECT_EQ(store().Run_Screen, 3);
  EXPECT_EQ(wire(5), 77);
}

TEST_F(RunModeTest, AutoScreenWithoutDelayTakesAtOnceOnEntering) {
  Screen& one = screen(1, "One", 1);
  one.Auto = true;
  one.Delay = 0;
  enter();
  EXPECT_TRUE(store().Autotake_Running);
  EXPECT_EQ(store().Run_Screen, 2);
}

TEST_F(RunModeTest, HandTakeMovedBackAndForthCompletesOnlyPast240) {
  store().Screens[1].Preset[0] = 40;
  store().Screens[2].Preset[0] = 240;
  enter();
  run().Run_Crossfade_Change(230);
  EXPECT_FALSE(store().Take_Manual) << "not yet past 220";
  run().Run_Crossfade_Change(200);
  EXPECT_TRUE(store().Take_Manual);
  EXPECT_EQ(store().Run_Screen, 2);
  EXPECT_EQ(store().Crossfade_Level, 55);
  EXPECT_EQ(run().side_a_colour(), kRed);
  EXPECT_EQ(run().Run_B(), "Look 2") << "moving towards B";
  for (int v : {120, 180, 60, 250, 20}) {
    run().Run_Crossfade_Change(v);
    EXPECT_TRUE(store().Take_Manual) << "at " << v;
    EXPECT_EQ(store().Crossfade_Level, 255 - v);
  }
  run().Run_Crossfade_Change(128);
  clock().advance(20);
  EXPECT_EQ(wire(1), 140);  // 40*128/255 + 240*127/255 = 20.1 + 119.5
  run().Run_Crossfade_Change(15);  // X = 240: not yet
  EXPECT_TRUE(store().Take_Manual);
  run().Run_Crossfade_Change(14);
  EXPECT_FALSE(store().Take_Manual);
  EXPECT_EQ(store().Crossfade_Level, 255);
  EXPECT_EQ(store().Desk_Level[0], 240);
  EXPECT_EQ(run().Run_Crossfade(), 0) << "the crossfader rests at B";

  run().Run_Crossfade_Change(5);
  EXPECT_FALSE(store().Take_Manual) << "moving on towards the end starts nothing";
  run().Run_Crossfade_Change(36);
  EXPECT_TRUE(store().Take_Manual) << "up past 35 takes";
  EXPECT_EQ(store().Run_Screen, 3);
  EXPECT_EQ(run().Next_Screen(), 4) << "a take started upward chooses the next screen at once";
}

TEST_F(RunModeTest, PausedTakeCarriesOnByHand) {
  screen(2, "Ten", 10);
  enter();
  run().Autotake(2);
  clock().advance(39 * 100);
  run().Run_Autotake_Click();
  ASSERT_EQ(run().Run_Crossfade(), 155);
  run().Run_Crossfade_Change(100);
  EXPECT_EQ(store().Crossfade_Level, 155);
  run().Run_Crossfade_Change(0);
  EXPECT_FALSE(store().Take_Manual);
  EXPECT_EQ(store().Crossfade_Level, 255);
}

TEST_F(RunModeTest, CueButtonInRunModeTakesToItsScreen) {
  d.button(0).Function = kFunctionCue;
  d.button(0).Value = 3;
  enter();
  d.click(0);
  EXPECT_TRUE(store().Autotake_Running);
  EXPECT_EQ(store().Run_Screen, 3);
}

// Channel 1 is at 150 in both looks, channel 2 goes up, channel 3 goes down:
// the steady channel never leaves 150 by more than 1 and the others move one way.
class CrossfadeSweep : public RunModeTest {
 protected:
  CrossfadeSweep() {
    Screen& one = store().Screens[1];
    Screen& two = store().Screens[2];
    one.Preset[0] = two.Preset[0] = 150;
    one.Preset[1] = 10;
    two.Preset[1] = 250;
    one.Preset[2] = 230;
    two.Preset[2] = 0;
    enter();
  }
  void sample() {
    clock().advance(20);
    EXPECT_NEAR(wire(1), 150, 1) << "X = " << store().Crossfade_Level;
    EXPECT_GE(wire(2), last_up) << "X = " << store().Crossfade_Level;
    EXPECT_LE(wire(3), last_down) << "X = " << store().Crossfade_Level;
    last_up = wire(2);
    last_down = wire(3);
  }
  int last_up = 0;
  int last_down = 255;
};

TEST_F(CrossfadeSweep, ByHandOverEveryPosition) {
  for (int v = 255; v >= 0; --v) {
    run().Run_Crossfade_Change(v);
    sample();
  }
  EXPECT_EQ(wire(2), 250);
  EXPECT_EQ(wire(3), 0);
}

TEST_F(CrossfadeSweep, AutomaticOverEveryOutputTick) {
  screen(2, "Two", 5).Preset[0] = 150;
  run().Autotake(2);
  while (store().Autotake_Running) sample();
  sample();
  EXPECT_EQ(wire(2), 250);
  EXPECT_EQ(wire(3), 0);
}

TEST_F(CrossfadeSweep, EveryCrossfadeLevelOfATake) {
  run().Run_Crossfade_Change(200);
  for (int v = 255; v >= 15; --v) {
    run().Run_Crossfade_Change(v);
    clock().advance(20);
    EXPECT_NEAR(wire(1), 150, 1) << "X = " << store().Crossfade_Level;
  }
}

// The incoming screen's chases come in on Seq_Level_In and become the chases'
// levels when the take completes; the outgoing screen's chases stop.
TEST_F(RunModeTest, TakeHandsChaseLevelsOverToTheIncomingScreen) {
  for (int q : {0, 1}) {
    ChaseRec& chase = store().Chase_Table[q];
    chase.Channels[0] = static_cast<std::int16_t>(10 + q);  // desk channels 11 and 12
    chase.Fade[1][0] = kChaseStep;
    chase.Data[1][0] = 255;
    chase.Speed[1] = 1;
  }
  for (int b : {0, 1}) {
    d.button(b).Function = kFunctionSequence;
    d.button(b).Value = static_cast<std::int16_t>(b);
    d.button(b).Level = 200;
  }
  store().Screens[1].But_Sel[0] = true;
  store().Screens[2].But_Sel[1] = true;
  enter();
  EXPECT_EQ(d.chases().Seq_Level(0), 200) << "screen 1's chase plays on entering";
  EXPECT_TRUE(d.chases().running(0));

  run().Autotake(2);
  EXPECT_EQ(d.chases().Seq_Level_In(1), 200);
  EXPECT_EQ(d.chases().Seq_Level(1), 0);
  clock().advance(2000);
  const int x = store().Crossfade_Level;
  ASSERT_GT(x, 30);
  ASSERT_LT(x, 230);
  clock().advance(100);
  EXPECT_NEAR(d.seq(12), 200 * store().Crossfade_Level / 255, 1) << "incoming chase rises with X";
  EXPECT_NEAR(d.seq(11), 200 * (255 - store().Crossfade_Level) / 255, 1) << "outgoing chase falls";

  run_until_complete();
  EXPECT_EQ(d.chases().Seq_Level(1), 200);
  EXPECT_EQ(d.chases().Seq_Level_In(1), 0);
  EXPECT_EQ(d.chases().Seq_Level(0), 0);
  EXPECT_FALSE(d.chases().running(0));
  clock().advance(200);
  EXPECT_EQ(d.seq(12), 200);
  EXPECT_EQ(d.seq(11), 0);
}

TEST_F(RunModeTest, RunOutputIsTheRunScreensRecordedButtons) {
  d.button(5).Function = kFunctionPreset;
  d.button(5).Channel1 = 9;
  d.button(5).Level = 90;
  store().Screens[2].But_Sel[5] = true;
  enter();
  EXPECT_EQ(store().Playback_Run_Out[8], 0);
  run().Autotake(2);
  EXPECT_EQ(store().Playback_Run_Out[8], 90);
  EXPECT_EQ(store().Playback_Live_Out[8], 0) << "not on the live desk before the take completes";
  run_until_complete();
  EXPECT_TRUE(store().Playback_Button_State[5]);
  EXPECT_EQ(store().Playback_Live_Out[8], 90);
  clock().advance(20);
  EXPECT_EQ(wire(9), 90);
}

}  // namespace
}  // namespace lumaris
