#include <gtest/gtest.h>

#include <optional>
#include <tuple>
#include <utility>

#include "console/output_cycle.h"
#include "playback/run_mode.h"
#include "tests/playback/playback_test_desk.h"

namespace lumaris {
namespace {

using Lamp = std::optional<Rgb>;

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
  EXPECT_EQ(std::tuple(run().Run_Switch_caption(), run().Run_Switch_colour()), std::tuple("STOP", Lamp(kRed)));
  EXPECT_EQ(run().Run_A_Num() + " " + run().Run_A() + "|" + run().Run_B_Num() + " " + run().Run_B(),
            "1 Look 1|2 Look 2");
  EXPECT_EQ(std::tuple(run().side_a_colour(), run().side_b_colour()), std::tuple(Lamp(kRed), Lamp(kGreen)));
  EXPECT_EQ(std::tuple(run().Run_Crossfade(), run().Next_Screen(), run().Run_Fade_Time()),
            std::tuple(255, 2, "10 s")) << "the next screen's fade time";
  EXPECT_EQ(d.status() + "|" + main_status(), " Autotake Complete | Autotake Complete ") << "said after Run Mode Selected";
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
  EXPECT_EQ(std::tuple(box.icon, box.default_button), std::tuple(MessageIcon::Question, MessageResult::Cancel));
  EXPECT_TRUE(store().Run_Mode) << "Cancel stays in run mode";
  ASSERT_TRUE(store().Autotake_Running);

  leave();
  EXPECT_EQ(std::tuple(store().Run_Mode, store().Autotake_Running, run().take_timer().enabled()),
            std::tuple(false, false, false));
  const int level = store().Crossfade_Level;
  clock().advance(5000);
  EXPECT_EQ(std::tuple(store().Crossfade_Level, wire(1)), std::tuple(level, 120)) << "the take timer stopped";
  EXPECT_EQ(d.status() + "|" + main_status(), " Run Mode Stopped| Run Mode Stoped");
  EXPECT_EQ(run().Run_Switch_caption() + "|" + run().Run_Autotake_caption() + "|" + run().Run_A(), "Run|Auto Take|");
  EXPECT_FALSE(run().Run_Switch_colour().has_value() || run().side_b_colour().has_value());
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
    EXPECT_EQ(std::tuple(run().take_timer().interval(), run().Fade_Step()), std::tuple(c.interval, c.step));
    EXPECT_EQ(run_until_complete(), c.duration);
    EXPECT_EQ(std::tuple(store().Crossfade_Level, store().Desk_Level[0]), std::tuple(255, 200));
    leave();
  }
}

TEST_F(RunModeTest, ATakeShowsItsProgressCanBePausedCarriedOnByHandAndResumedOrStartedOver) {
  screen(2, "Ten", 10).Preset[0] = 255;
  enter();
  run().Autotake(2);
  EXPECT_EQ(main_status(), " Autotake Running 1 To 2");
  EXPECT_EQ(std::tuple(run().Run_Autotake_caption(), run().Run_Autotake_colour(), run().side_a_colour()),
            std::tuple("Pause", Lamp(kYellow), Lamp(kYellow)));
  EXPECT_EQ(run().Run_A() + "|" + run().Run_B(), "Look 1|Ten") << "outgoing on the side the crossfader leaves";
  run().Run_screen_sel_Change(4);
  EXPECT_EQ(run().Run_A(), "Look 1") << "choosing the next screen repaints no side during a take";
  ASSERT_EQ(run().take_timer().interval(), 39);  // u = 39.2 ms
  clock().advance(39 * 102);                 // 40 %
  ASSERT_EQ(store().Crossfade_Level, 102);
  EXPECT_EQ(wire(1), 101) << "255 * 101 / 255: X at the last output tick";

  run().Run_Autotake_Click();
  EXPECT_EQ(d.status() + "|" + run().Run_Autotake_caption(), " Autotake Stopped |Auto Take");
  EXPECT_EQ(std::tuple(store().Take_Manual, store().Autotake_Running), std::tuple(true, false));
  EXPECT_EQ(std::tuple(run().side_a_colour(), run().side_b_colour()), std::tuple(Lamp(kRed), Lamp(kRed)));
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
  EXPECT_EQ(std::tuple(d.status(), store().Desk_Level[0]), std::tuple(" Autotake Complete ", 255));
  EXPECT_EQ(std::tuple(run().side_a_colour(), run().side_b_colour(), run().Run_A()),
            std::tuple(Lamp(kGreen), Lamp(kRed), "Look 3")) << "the next screen waits on side A";

  run().Autotake(150);
  EXPECT_EQ(store().Run_Screen, 2) << "a target past the show retakes the live screen";
  clock().advance(39 * 20);  // X = 20
  run().Run_Autotake_Click();
  run().Run_Autotake_Click();
  EXPECT_EQ(std::tuple(store().Crossfade_Level, store().Autotake_Running, store().Run_Screen, run().Prev_Screen()),
            std::tuple(0, true, 3, 2)) << "X = 20 is too near the start to resume: the take starts over onto the next";
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
  EXPECT_EQ(std::tuple(run().Delay_Timer().enabled(), run().Delay_Count()), std::tuple(true, 2));
  clock().advance(1000);
  EXPECT_EQ(main_status(), " Delay Counter 1");
  clock().advance(1000);
  EXPECT_EQ(std::tuple(store().Autotake_Running, store().Run_Screen, run().Delay_Timer().enabled()),
            std::tuple(true, 2, false));

  clock().advance(51 * 20 - 1);  // 1000 / 21 = 48 ticks, step 5: 252 after 51 ticks
  EXPECT_EQ(store().Run_Screen, 2);
  clock().advance(1);
  EXPECT_EQ(std::tuple(store().Autotake_Running, store().Run_Screen), std::tuple(true, 3))
      << "screen 2 has no delay: on to screen 3 at once";
  run_until_complete();
  EXPECT_FALSE(run().Delay_Timer().enabled()) << "screen 3 is not Auto: the chain stops";
  clock().advance(5000);
  EXPECT_EQ(std::tuple(store().Run_Screen, wire(5)), std::tuple(3, 77));
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
  EXPECT_EQ(std::tuple(store().Take_Manual, store().Run_Screen, store().Crossfade_Level), std::tuple(true, 2, 55));
  EXPECT_EQ(std::tuple(run().side_a_colour(), run().Run_B()), std::tuple(Lamp(kRed), "Look 2")) << "moving towards B";
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
  EXPECT_EQ(std::tuple(store().Take_Manual, store().Crossfade_Level, store().Desk_Level[3], run().Run_Crossfade()),
            std::tuple(false, 255, 240, 0)) << "the crossfader rests at B";
  clock().advance(20);
  EXPECT_EQ(std::tuple(wire(2), wire(3)), std::tuple(250, 0));

  run().Run_Crossfade_Change(5);
  EXPECT_FALSE(store().Take_Manual) << "moving on towards the end starts nothing";
  run().Run_Crossfade_Change(36);
  EXPECT_EQ(std::tuple(store().Take_Manual, store().Run_Screen, run().Next_Screen()), std::tuple(true, 3, 4))
      << "up past 35 takes; a take started upward chooses the next screen at once";

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
  EXPECT_EQ(std::tuple(d.chases().Seq_Level(0), d.chases().running(0), store().Playback_Run_Out[8]),
            std::tuple(200, true, 0)) << "screen 1's chase plays on entering";

  run().Autotake(2);
  EXPECT_EQ(std::tuple(d.chases().Seq_Level_In(1), d.chases().Seq_Level(1), d.chases().Seq_Level_In(2),
                       d.chases().Seq_Level_In(3)),
            std::tuple(200, 0, 0, 11)) << "Sequence faders start their chase above 10";
  EXPECT_EQ(std::tuple(store().Playback_Run_Out[8], store().Playback_Live_Out[8]), std::tuple(90, 0))
      << "not on the live desk before the take completes";
  clock().advance(2100);
  const int x = store().Crossfade_Level;
  ASSERT_GT(x, 30);
  ASSERT_LT(x, 230);
  EXPECT_NEAR(d.seq(12), 200 * x / 255, 1) << "incoming chase rises with X";
  EXPECT_NEAR(d.seq(11), 200 * (255 - x) / 255, 1) << "outgoing chase falls";

  run_until_complete();
  EXPECT_EQ(std::tuple(d.chases().Seq_Level(1), d.chases().Seq_Level_In(1), d.chases().Seq_Level(0),
                       d.chases().running(0)),
            std::tuple(200, 0, 0, false));
  EXPECT_EQ(std::tuple(store().Playback_Button_State[5], store().Playback_Live_Out[8]), std::tuple(true, 90));
  EXPECT_EQ(d.desk->preset_value(), 75) << "the Preset master follows the incoming screen";
  clock().advance(200);
  EXPECT_EQ(std::tuple(d.seq(12), d.seq(11), wire(9)), std::tuple(200, 0, 90));
}

}  // namespace
}  // namespace lumaris
