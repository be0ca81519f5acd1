#include <gtest/gtest.h>

#include <array>
#include <tuple>

#include "console/output_cycle.h"
#include "tests/sequence/sequence_test_desk.h"

namespace lumaris {

// Step timer 1001 ms (Speed 1 s), level timer every 100 ms from Go at 0 ms. A fresh
// desk has Fade_Elapsed 0.1, so the first step gets four level ticks; every later
// step gets the five of its half second.
TEST(ChaseRuntime, EachStepIsLitForTheFirstHalfOfItsSecondOnly) {
  SequenceTestDesk s;
  s.program(4, 1.0, 0.5);
  for (int step = 1; step <= 4; ++step) s.chase().Data[step][0] = static_cast<std::int16_t>(50 * step);
  s.desk->Chase_Go_Button_Click();
  EXPECT_EQ(s.runtime().step_timer().interval(), 1001);
  // Each level shows from the first ms given up to the second.
  const std::array<std::array<int, 3>, 5> lit = {
      {{100, 500, 50}, {1100, 1600, 100}, {2100, 2600, 150}, {3100, 3600, 200}, {4100, 4600, 50}}};
  for (int ms = 1; ms <= 5000; ++ms) {
    s.t.scheduler.advance(1);
    int expected = 0;
    for (const auto& [from, to, level] : lit) expected = ms >= from && ms < to ? level : expected;
    ASSERT_EQ(s.out(0), expected) << "at " << ms << " ms";
  }
  EXPECT_TRUE(s.runtime().Chase_Running());
}

TEST(ChaseRuntime, RepeatCountTwoPlaysThreePassesThenStopsAndASecondGoCountsAfresh) {
  SequenceTestDesk s;
  s.program(2, 1.0, 1.0);
  s.chase().Data[2][0] = 77;
  s.desk->Loop_Box_Click(false);
  s.desk->Loop_Times_Change(2);
  s.desk->Chase_Go_Button_Click();

  s.t.scheduler.advance(2002);  // end of pass 1
  EXPECT_EQ(s.desk->Loop_Times_txt(), "1");
  s.t.scheduler.advance(2002);  // end of pass 2
  EXPECT_EQ(s.desk->Loop_Times_txt(), "0");
  s.t.scheduler.advance(2001);  // 1 ms before the end of pass 3: step 2 still lit
  EXPECT_EQ(std::tuple(s.runtime().Chase_Running(), s.desk->Cur_Step(), s.out(0)), std::tuple(true, 2, 77));
  s.t.scheduler.advance(1);  // the counter reaches -1 and the chase stops; the display stays on step 2
  EXPECT_EQ(std::tuple(s.runtime().Chase_Running(), s.runtime().Loop_Count(), s.desk->Loop_Times_txt(),
                       s.out(0), s.desk->Cur_Step()),
            std::tuple(false, 3, "2", 0, 2));

  s.desk->Chase_Go_Button_Click();  // from step 2, still shown: three more ends of a pass
  s.t.scheduler.advance(5004);
  EXPECT_TRUE(s.runtime().Chase_Running()) << "a second Go counts its repeats afresh";
  s.t.scheduler.advance(1);
  EXPECT_FALSE(s.runtime().Chase_Running());
}

TEST(ChaseRuntime, MixesChaseChannelsByHighestAndScalesByTheMainLevel) {
  SequenceTestDesk s;
  s.program(1, 1.0, 1.0);
  s.chase().Channels[3] = 9;
  s.chase().Channels[7] = 9;
  s.chase().Data[1][3] = 100;
  s.chase().Data[1][7] = 200;
  s.desk->master_fader_changed(128);  // (255 - 128) / 255 of each level
  s.desk->Chase_Go_Button_Click();
  s.t.scheduler.advance(100);
  EXPECT_EQ(s.out(9), 100);  // the higher, 200: round(127 x 200 / 255) = round(99.6)
  s.desk->master_fader_changed(255);
  s.t.scheduler.advance(100);
  EXPECT_EQ(s.out(9), 0);
}

TEST(ChaseRuntime, AChannelSwitchedOffHoldsTheLevelItHadEvenAfterAFadeWithNoTime) {
  SequenceTestDesk s;
  s.program(4, 1.0, 0.5);
  s.chase().Data[1][0] = 120;
  s.chase().Fade[2][0] = kChaseOff;
  s.chase().Data[2][0] = 7;  // not shown: the channel is off
  for (int step = 1; step <= 4; ++step) s.chase().Fade[step][1] = kChaseOff;
  s.chase().Data[2][1] = 99;
  s.chase().Fade[3][0] = kChaseFade;  // a fade with no time jumps and lights nothing
  s.chase().Data[3][0] = 90;
  s.chase().Time[3] = 0;
  s.chase().Fade[4][0] = kChaseOff;
  s.desk->Chase_Go_Button_Click();
  s.t.scheduler.advance(1100);  // first level tick of step 2
  ASSERT_EQ(s.desk->Cur_Step(), 2);
  EXPECT_EQ(std::tuple(s.out(0), s.out(1)), std::tuple(120, 0)) << "channel 1 never had a level";
  EXPECT_EQ(s.desk->channels()[0].Ch_Function, "off");
  s.t.scheduler.advance(1400);
  ASSERT_EQ(s.desk->Cur_Step(), 3);
  EXPECT_EQ(std::tuple(s.out(0), s.runtime().Fade_Level(0)), std::tuple(0, 90.0));
  s.t.scheduler.advance(600);  // step 4 from 3003 ms: the off channel holds 90
  ASSERT_EQ(s.desk->Cur_Step(), 4);
  EXPECT_EQ(s.out(0), 90);
}

TEST(ChaseRuntime, AFadeReachesItsLevelAtTheEndOfItsWindow) {
  SequenceTestDesk s;
  s.program(2, 1.0, 0.5);
  s.chase().Data[1][0] = 0;
  s.chase().Data[2][0] = 200;
  s.chase().Fade[2][0] = kChaseFade;
  s.desk->Chase_Go_Button_Click();
  s.t.scheduler.advance(1001);
  ASSERT_EQ(s.desk->Cur_Step(), 2);
  EXPECT_EQ(s.desk->channels()[0].Ch_Function, "F");
  const int expected[] = {40, 80, 120, 160, 200, 0};
  for (int tick = 0; tick < 6; ++tick) {
    s.t.scheduler.advance(tick == 0 ? 99 : 100);
    EXPECT_EQ(s.out(0), expected[tick]) << "tick " << tick;
  }
  // Bars after the fifth tick of the window: round(0.5 x 100 / 0.6 + 1), round(0.6 x 100 / 1.1 + 1).
  EXPECT_EQ(std::tuple(s.runtime().Fade_Bar().Value(), s.runtime().Step_Bar().Value()), std::tuple(84, 56));
}

// Go starts at step 1 only when the chase loops for ever; Stop shows the step
// after the one that played. The step timer runs round(Speed x 1000 + 1) ms for
// the step being played (1.0625 s is 1063.5 ms: the even 1064), renewed at every
// step change, a manual one too, which never stops the chase.
TEST(ChaseRuntime, GoStopAndManualStepsPickTheStepAndRenewTheStepTimer) {
  SequenceTestDesk s;
  s.program(4, 1.0, 1.0);
  s.chase().Data[3][2] = 40;
  s.desk->Chase_Plus_Click();
  s.desk->Chase_Plus_Click();  // step 3 shown
  s.desk->Chase_Go_Button_Click();
  EXPECT_EQ(s.desk->Cur_Step(), 1);
  EXPECT_EQ(s.desk->channels()[2].fader, 255) << "faders show zero while running";
  s.t.scheduler.advance(1500);
  ASSERT_EQ(s.desk->Cur_Step(), 2);
  s.desk->Chase_Go_Button_Click();
  EXPECT_EQ(std::tuple(s.runtime().Chase_Running(), s.desk->Step_Display(), s.desk->channels()[2].fader,
                       s.runtime().Chase_Go_Button()),
            std::tuple(false, "3", 255 - 40, "Go"));
  s.t.scheduler.advance(5000);
  EXPECT_EQ(s.desk->Cur_Step(), 3);

  s.desk->Loop_Box_Click(false);  // repeat count 1
  s.chase().Speed[3] = 1.0625;
  s.chase().Speed[4] = 0.5;
  s.desk->Chase_Go_Button_Click();
  EXPECT_EQ(std::tuple(s.desk->Cur_Step(), s.desk->Prev_Step()), std::tuple(3, 2));
  EXPECT_EQ(s.runtime().step_timer().interval(), 1064);
  s.t.scheduler.advance(1064);
  EXPECT_EQ(std::tuple(s.desk->Cur_Step(), s.runtime().step_timer().interval()), std::tuple(4, 501));
  s.desk->Chase_Minus_Click();
  EXPECT_EQ(s.runtime().step_timer().interval(), 1064);
  s.t.scheduler.advance(500);
  s.chase().Data[4][0] = 33;
  s.desk->Chase_Plus_Click();  // onto the last step
  s.t.scheduler.advance(100);
  EXPECT_EQ(s.out(0), 33);
  s.t.scheduler.advance(400);  // the new step has 501 ms from the click
  EXPECT_EQ(s.desk->Cur_Step(), 4);
  s.t.scheduler.advance(1);
  EXPECT_EQ(std::tuple(s.desk->Cur_Step(), s.runtime().Chase_Running(), s.runtime().Loop_Count()),
            std::tuple(1, true, 1));
}

// While a chase runs, edits that would fight it are ignored, and both global
// boxes are checked and disabled so that the time sliders act on every step;
// Stop gives the boxes back as they were.
TEST(ChaseRuntime, WhileRunningEditsAreIgnoredAndBothTimeSlidersActOnEveryStep) {
  SequenceTestDesk s;
  s.program(3, 1.0, 1.0);
  s.chase().Data[1][4] = 10;
  const ChaseRec before = s.chase();
  s.desk->Global_Speed_Click(true);
  s.desk->Chase_Go_Button_Click();
  s.desk->fader_changed(4, 0);
  s.desk->Shift_Pos_Click();
  s.desk->Insert_Click();
  s.desk->Remove_Step_Click();
  s.desk->Command_Copy_Click();
  s.desk->Command_Paste_Click();
  EXPECT_EQ(std::tuple(s.chase().Data, s.chase().Fade, s.chase().Steps, s.t.store().Project_Changed),
            std::tuple(before.Data, before.Fade, 3, false));

  EXPECT_EQ(std::tuple(s.desk->Global_fade(), s.desk->Global_fade_enabled(), s.desk->Global_Speed_enabled()),
            std::tuple(true, false, false));
  s.desk->speed_slider().Set_From_Position(s.desk->speed_slider().axis_top());
  EXPECT_EQ(std::tuple(s.chase().Speed[0], s.chase().Speed[2]), std::tuple(240.0, 240.0));
  LogSlider& fade = s.desk->fade_slider();
  fade.Set_From_Position(fade.axis_top());
  for (int step = 0; step <= 3; ++step) EXPECT_EQ(s.chase().Time[step], 240.0) << step;
  s.desk->Speed_Fade_Lock_Click(true);
  s.desk->Speed_Fade_Lock_Click(false);  // unlocking enables the box, running or not
  EXPECT_TRUE(s.desk->Global_fade_enabled());
  fade.Set_From_Position(fade.axis_top() + fade.axis_height());
  for (int step = 0; step <= 3; ++step) EXPECT_EQ(s.chase().Time[step], 0.1) << step;
  s.desk->Chase_Go_Button_Click();
  EXPECT_EQ(std::tuple(s.desk->Global_Speed(), s.desk->Global_fade(), s.desk->Global_Speed_enabled(),
                       s.desk->Global_fade_enabled()),
            std::tuple(true, false, true, true));
}

TEST(ChaseRuntime, LiveModeShowsEditsWhileStoppedAndPausesWhileAChaseRuns) {
  SequenceTestDesk s;
  s.program(1, 1.0, 1.0);
  s.chase().Channels[2] = 40;
  s.desk->Refresh_Desk();
  s.desk->Live_Mode_Sel_Click(true);
  s.desk->master_fader_changed(51);  // factor 204 / 255
  s.desk->fader_changed(2, 255 - 100);
  EXPECT_EQ(s.out(40), 80);
  s.desk->fader_changed(0, 0);
  EXPECT_EQ(s.out(0), 204);
  // A new routing clears the old desk channel first.
  s.desk->channel_box_changed(2, "12");
  EXPECT_EQ(s.out(40), 0);
  s.desk->fader_changed(2, 255 - 100);
  EXPECT_EQ(s.out(11), 80);

  s.desk->Chase_Go_Button_Click();
  EXPECT_EQ(std::tuple(s.runtime().Live_Output(), s.runtime().Live_Mode_Sel_enabled()),
            std::tuple(false, false));
  s.desk->Chase_Go_Button_Click();
  EXPECT_EQ(std::tuple(s.runtime().Live_Output(), s.runtime().Live_Mode_Sel_enabled(),
                       s.desk->channels()[0].level_enabled),
            std::tuple(true, true, true));
  s.desk->master_fader_changed(128);  // 127 / 255 of 200 is 99.6: rounded, not cut
  s.desk->fader_changed(0, 255 - 200);
  EXPECT_EQ(s.out(0), 100);

  // Switching live mode off clears desk channels 1..32 only.
  s.chase().Channels[5] = 50;
  s.desk->fader_changed(5, 0);
  s.desk->Live_Mode_Sel_Click(false);
  EXPECT_EQ(std::tuple(s.out(0), s.out(11), s.out(50)), std::tuple(0, 0, 127));
}

// The output cycle ticks every 70 ms from start-up (0 ms); the chase's
// level timer every 100 ms from Go. "Same tick" here means: every output tick
// puts into DMX_Out exactly the Chase_Out that stands when it runs, so a level the
// chase writes is on the wire at the first output tick after it, never later.
TEST(ChaseOutput, ARunningChaseReachesThePatchedSlotAtTheNextOutputTick) {
  SequenceTestDesk s;
  Store& store = s.t.store();
  store.Patch[100] = 5;  // slot 101 also carries desk channel 5 (slot 4 does already)
  s.program(2, 1.0, 0.5);
  s.chase().Channels[0] = 4;
  s.chase().Data[1][0] = 180;
  s.chase().Data[2][0] = 90;
  s.t.scheduler.advance(35);  // Go at 35 ms: level ticks at 135, 235, ... never on an output tick
  s.desk->Chase_Go_Button_Click();

  s.t.scheduler.advance(100);  // 135 ms: the chase has written its level
  EXPECT_EQ(std::tuple(store.Chase_Out[4], store.DMX_Out[4]), std::tuple(180, 0));
  s.t.scheduler.advance(5);  // 140 ms: the output tick
  EXPECT_EQ(std::tuple(store.DMX_Out[4], store.DMX_Out[100]), std::tuple(180, 180));

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
