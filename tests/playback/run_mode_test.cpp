#include <gtest/gtest.h>

#include "console/output_cycle.h"
#include "playback/run_mode.h"
#include "tests/playback/playback_test_desk.h"

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
  const std::string& main_status() { return d.t.console->status().main(); }
  void output_interval(int ms) { d.t.console->output_cycle().output_timer().set_interval(ms); }
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

  PlaybackTestDesk d;
};

TEST_F(RunModeTest, EnteringLoadsScreenOneAndLeavingMidTakeAsksAndKeepsTheOutgoingLook) {
  store().Screens[1].Preset[0] = 120;
  store().Screens[1].Time = 7;
  store().Screens[2].Preset[0] = 200;
  enter();
  EXPECT_EQ(run().Run_Switch_caption(), "STOP");
  EXPECT_EQ(run().Run_Switch_colour(), kRed);
  EXPECT_EQ(run().Run_A_Num() + " " + run().Run_A(), "1 Look 1");
  EXPECT_EQ(run().Run_B_Num() + " " + run().Run_B(), "2 Look 2");
  EXPECT_EQ(run().side_a_colour(), kRed) << "live side";
  EXPECT_EQ(run().side_b_colour(), kGreen) << "next side";
  EXPECT_EQ(run().Run_Crossfade(), 255);
  EXPECT_EQ(run().Next_Screen(), 2);
  EXPECT_EQ(run().Run_Fade_Time(), "10 s") << "the next screen's fade time";
  EXPECT_EQ(d.status(), " Autotake Complete ") << "said after Run Mode Selected";
  EXPECT_EQ(main_status(), " Autotake Complete ");
  EXPECT_FALSE(d.screens().Screen_Prog_enabled());
  d.screens().Screen_Prog_Click();
  d.screens().Screen_Num_sel_Change(4);
  EXPECT_EQ(store().Screen_Count, 5) << "no recording in run mode";
  EXPECT_EQ(d.screens().Current_Screen(), 1) << "the selector follows the live screen only";
  clock().advance(40);
  EXPECT_EQ(wire(1), 120);

  run().Run_Autotake_Click();
  clock().advance(2000);
  d.t.dialogs.answer_message(MessageResult::Cancel);
  run().Run_Switch_Click();
  ASSERT_FALSE(d.t.dialogs.messages().empty());
  const MessageBoxSpec& box = d.t.dialogs.messages().back();
  EXPECT_EQ(box.title + "|" + box.text, " Run Mode|Do You wish to Exit Run Mode ");
  EXPECT_EQ(box.icon, MessageIcon::Question);
  EXPECT_EQ(box.default_button, MessageResult::Cancel);
  EXPECT_TRUE(store().Run_Mode) << "Cancel stays in run mode";
  ASSERT_TRUE(store().Autotake_Running);

  leave();
  EXPECT_FALSE(store().Run_Mode);
  EXPECT_FALSE(store().Autotake_Running);
  EXPECT_FALSE(run().take_timer().enabled());
  const int level = store().Crossfade_Level;
  clock().advance(5000);
  EXPECT_EQ(store().Crossfade_Level, level) << "the take timer stopped";
  EXPECT_EQ(wire(1), 120);
  EXPECT_EQ(d.status(), " Run Mode Stopped");
  EXPECT_EQ(main_status(), " Run Mode Stoped");
  EXPECT_EQ(run().Run_Switch_caption(), "Run");
  EXPECT_FALSE(run().Run_Switch_colour().has_value());
  EXPECT_EQ(run().Run_Autotake_caption(), "Auto Take");
  EXPECT_EQ(run().Run_A(), "");
  EXPECT_FALSE(run().side_b_colour().has_value());
  EXPECT_TRUE(d.screens().Screen_Prog_enabled());
}

// Slow fades get a timer of their own, quick ones ride the output tick with
// bigger steps, and fade time 0 is a snap on the first tick.
TEST_F(RunModeTest, AutotakeTimingFollowsTheFadeTimeAndTheOutputTick) {
  struct Case {
    int seconds, output_ms, interval, step;
    std::int64_t duration;
  };
  for (const Case& c : {Case{30, 20, 118, 1, 252 * 118},  // u = 117.6 ms > 20
                        Case{5, 20, 20, 1, 252 * 20},     // u = 19.6 ms: 5000 / 21 = 238 ticks
                        Case{1, 70, 70, 18, 14 * 70},     // 1000 / 71 = 14 ticks, 255 / 14 = 18.2
                        Case{0, 20, 20, 255, 20}}) {
    SCOPED_TRACE(c.seconds);
    output_interval(c.output_ms);
    screen(2, "Two", c.seconds).Preset[0] = 200;
    enter();
    run().Autotake(2);
    EXPECT_EQ(run().take_timer().interval(), c.interval);
    EXPECT_EQ(run().Fade_Step(), c.step);
    EXPECT_EQ(run_until_complete(), c.duration);
    EXPECT_EQ(store().Crossfade_Level, 255);
    EXPECT_EQ(store().Desk_Level[0], 200);
    leave();
  }
}

TEST_F(RunModeTest, ATakeShowsItsProgressCanBePausedCarriedOnByHandAndResumedOrStartedOver) {
  screen(2, "Ten", 10).Preset[0] = 255;
  enter();
  run().Autotake(2);
  EXPECT_EQ(main_status(), " Autotake Running 1 To 2");
  EXPECT_EQ(run().Run_Autotake_caption(), "Pause");
  EXPECT_EQ(run().Run_Autotake_colour(), kYellow);
  EXPECT_EQ(run().side_a_colour(), kYellow);
  EXPECT_EQ(run().Run_A(), "Look 1") << "the outgoing screen on the side the crossfader leaves";
  EXPECT_EQ(run().Run_B(), "Ten");
  run().Run_screen_sel_Change(4);
  EXPECT_EQ(run().Run_A(), "Look 1") << "choosing the next screen repaints no side during a take";
  ASSERT_EQ(run().take_timer().interval(), 39);  // u = 39.2 ms
  clock().advance(39 * 102);                 // 40 %
  ASSERT_EQ(store().Crossfade_Level, 102);
  EXPECT_EQ(wire(1), 101) << "255 * 101 / 255: X at the last output tick";

  run().Run_Autotake_Click();
  EXPECT_EQ(d.status(), " Autotake Stopped ");
  EXPECT_TRUE(store().Take_Manual);
  EXPECT_FALSE(store().Autotake_Running);
  EXPECT_EQ(run().side_a_colour(), kRed);
  EXPECT_EQ(run().side_b_colour(), kRed);
  EXPECT_EQ(run().Run_Autotake_caption(), "Auto Take");
  clock().advance(10000);
  EXPECT_EQ(store().Crossfade_Level, 102) << "a paused take holds its level";
  EXPECT_EQ(wire(1), 102) << "255 * 102 / 255 on the wire";
  EXPECT_EQ(run().Run_Crossfade(), 153) << "Next on A: the crossfader shows 255 - X";
  run().Run_Crossfade_Change(100);
  EXPECT_EQ(store().Crossfade_Level, 155) << "the crossfader carries the paused take on";

  run().Run_Autotake_Click();
  EXPECT_EQ(d.status(), " Autotake Running ");
  EXPECT_EQ(store().Run_Screen, 2) << "resumed, not a new take";
  EXPECT_EQ(run_until_complete(), 97 * 39) << "the rest of the way at the take's own pace";
  EXPECT_EQ(d.status(), " Autotake Complete ");
  EXPECT_EQ(store().Desk_Level[0], 255);
  EXPECT_EQ(run().side_a_colour(), kGreen);
  EXPECT_EQ(run().side_b_colour(), kRed);
  EXPECT_EQ(run().Run_A(), "Look 3") << "the next screen waits on side A";

  run().Autotake(150);
  EXPECT_EQ(store().Run_Screen, 2) << "a target past the show retakes the live screen";
  clock().advance(39 * 20);  // X = 20
  run().Run_Autotake_Click();
  run().Run_Autotake_Click();
  EXPECT_EQ(store().Crossfade_Level, 0) << "X = 20 is too near the start to resume: the take starts over";
  EXPECT_TRUE(store().Autotake_Running);
  EXPECT_EQ(store().Run_Screen, 3) << "onto the next screen";
  EXPECT_EQ(run().Prev_Screen(), 2);
  leave();
  run().Autotake(3);
  EXPECT_FALSE(store().Autotake_Running) << "nothing happens outside run mode";
}

TEST_F(RunModeTest, AutoScreensChainAfterTheirDelayOrAtOnce) {
  Screen& one = screen(1, "One", 1);
  one.Auto = true;
  one.Delay = 2;
  Screen& two = screen(2, "Two", 1);
  two.Auto = true;
  two.Delay = 0;
  screen(3, "Three", 1).Preset[4] = 77;
  enter();
  EXPECT_TRUE(run().Delay_Timer().enabled());
  EXPECT_EQ(run().Delay_Count(), 2);
  clock().advance(1000);
  EXPECT_EQ(main_status(), " Delay Counter 1");
  clock().advance(1000);
  EXPECT_TRUE(store().Autotake_Running);
  EXPECT_EQ(store().Run_Screen, 2);
  EXPECT_FALSE(run().Delay_Timer().enabled());

  clock().advance(51 * 20 - 1);  // 1000 / 21 = 48 ticks, step 5: 252 after 51 ticks
  EXPECT_EQ(store().Run_Screen, 2);
  clock().advance(1);
  EXPECT_TRUE(store().Autotake_Running) << "screen 2 has no delay: on to screen 3 at once";
  EXPECT_EQ(store().Run_Screen, 3);
  run_until_complete();
  EXPECT_FALSE(run().Delay_Timer().enabled()) << "screen 3 is not Auto: the chain stops";
  clock().advance(5000);
  EXPECT_EQ(store().Run_Screen, 3);
  EXPECT_EQ(wire(5), 77);
}

// Channel 1 is at 150 in both looks, channel 2 goes up, channel 3 goes down and
// channel 4 goes from 40 to 240.
TEST_F(RunModeTest, AHandTakeFollowsTheCrossfaderBothWaysAndCompletesOnlyPast240) {
  Screen& one = store().Screens[1];
  Screen& two = store().Screens[2];
  one.Preset[0] = two.Preset[0] = 150;
  one.Preset[1] = 10;
  two.Preset[1] = 250;
  one.Preset[2] = 230;
  two.Preset[2] = 0;
  one.Preset[3] = 40;
  two.Preset[3] = 240;
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
    EXPECT_EQ(store().Crossfade_Level, 255 - v) << "at " << v;
  }
  // Every position up to X = 240: the steady channel never leaves 150 by more
  // than 1 and the others move one way.
  int last_up = 0;
  int last_down = 255;
  for (int v = 255; v >= 15; --v) {
    run().Run_Crossfade_Change(v);
    clock().advance(20);
    const int x = store().Crossfade_Level;
    ASSERT_TRUE(store().Take_Manual) << "X = " << x;
    EXPECT_NEAR(wire(1), 150, 1) << "X = " << x;
    EXPECT_GE(wire(2), last_up) << "X = " << x;
    EXPECT_LE(wire(3), last_down) << "X = " << x;
    if (v == 128) { EXPECT_EQ(wire(4), 140); }  // 40*128/255 + 240*127/255 = 20.1 + 119.5
    last_up = wire(2);
    last_down = wire(3);
  }
  run().Run_Crossfade_Change(14);
  EXPECT_FALSE(store().Take_Manual);
  EXPECT_EQ(store().Crossfade_Level, 255);
  EXPECT_EQ(store().Desk_Level[3], 240);
  EXPECT_EQ(run().Run_Crossfade(), 0) << "the crossfader rests at B";
  clock().advance(20);
  EXPECT_EQ(wire(2), 250);
  EXPECT_EQ(wire(3), 0);

  run().Run_Crossfade_Change(5);
  EXPECT_FALSE(store().Take_Manual) << "moving on towards the end starts nothing";
  run().Run_Crossfade_Change(36);
  EXPECT_TRUE(store().Take_Manual) << "up past 35 takes";
  EXPECT_EQ(store().Run_Screen, 3);
  EXPECT_EQ(run().Next_Screen(), 4) << "a take started upward chooses the next screen at once";

  run().Run_Crossfade_Change(250);
  run().Run_screen_sel_Change(6);
  run().Run_Crossfade_Change(200);
  ASSERT_TRUE(store().Take_Manual);
  EXPECT_EQ(store().Run_Screen, 3) << "a next screen past the show retakes the live one";
}

// The incoming screen's buttons reach the run output at once and the live desk
// when the take completes. Its chases come in on Seq_Level_In and become the
// chases' levels when the take completes; the outgoing screen's chases stop.
TEST_F(RunModeTest, ATakeBringsInTheIncomingScreensButtonsAndHandsItsChasesOver) {
  for (int q : {0, 1}) {
    ChaseRec& chase = store().Chase_Table[q];
    chase.Channels[0] = static_cast<std::int16_t>(10 + q);  // desk channels 11 and 12
    chase.Fade[1][0] = kChaseStep;
    chase.Data[1][0] = 255;
    chase.Speed[1] = 1;
    d.set_button(q, kFunctionSequence, q, 200);
  }
  PlaybackTestDesk::on_channels(d.set_button(5, kFunctionPreset, 0, 90), 9);
  store().Screens[1].But_Sel[0] = true;
  store().Screens[2].But_Sel[1] = store().Screens[2].But_Sel[5] = true;
  store().Screens[2].Preset_l = 180;
  d.set_fader(0, kFunctionSequence, 2);
  d.set_fader(1, kFunctionSequence, 3);
  store().Screens[2].Fad_Sel[0] = 10;  // Sequence faders start their chase above 10
  store().Screens[2].Fad_Sel[1] = 11;
  enter();
  EXPECT_EQ(d.chases().Seq_Level(0), 200) << "screen 1's chase plays on entering";
  EXPECT_TRUE(d.chases().running(0));
  EXPECT_EQ(store().Playback_Run_Out[8], 0);

  run().Autotake(2);
  EXPECT_EQ(d.chases().Seq_Level_In(1), 200);
  EXPECT_EQ(d.chases().Seq_Level(1), 0);
  EXPECT_EQ(d.chases().Seq_Level_In(2), 0);
  EXPECT_EQ(d.chases().Seq_Level_In(3), 11);
  EXPECT_EQ(store().Playback_Run_Out[8], 90);
  EXPECT_EQ(store().Playback_Live_Out[8], 0) << "not on the live desk before the take completes";
  clock().advance(2100);
  const int x = store().Crossfade_Level;
  ASSERT_GT(x, 30);
  ASSERT_LT(x, 230);
  EXPECT_NEAR(d.seq(12), 200 * x / 255, 1) << "incoming chase rises with X";
  EXPECT_NEAR(d.seq(11), 200 * (255 - x) / 255, 1) << "outgoing chase falls";

  run_until_complete();
  EXPECT_EQ(d.chases().Seq_Level(1), 200);
  EXPECT_EQ(d.chases().Seq_Level_In(1), 0);
  EXPECT_EQ(d.chases().Seq_Level(0), 0);
  EXPECT_FALSE(d.chases().running(0));
  EXPECT_TRUE(store().Playback_Button_State[5]);
  EXPECT_EQ(store().Playback_Live_Out[8], 90);
  EXPECT_EQ(d.desk->preset_value(), 75) << "the Preset master follows the incoming screen";
  clock().advance(200);
  EXPECT_EQ(d.seq(12), 200);
  EXPECT_EQ(d.seq(11), 0);
  EXPECT_EQ(wire(9), 90);
}

}  // namespace
}  // namespace lumaris
