#include <gtest/gtest.h>

#include <tuple>

#include "tests/playback/playback_test_desk.h"

namespace lumaris {

namespace {

// Chase 3 has two stepped steps of 1 s on chase channel 0, routed to desk
// channel 10 (stored as 9); button 4 plays it, latched, at full.
struct ChaseDesk : PlaybackTestDesk {
  ChaseDesk() {
    ChaseRec& c = chase();
    c.Steps = 2;
    c.Channels[0] = 9;
    c.Data[1][0] = 200;
    c.Data[2][0] = 100;
    set_button(4, kFunctionSequence, 3, 255, true);
  }
  ChaseRec& chase() { return store().Chase_Table[3]; }
  void advance(int ms) { t.scheduler.advance(ms); }
};

}  // namespace

TEST(PlaybackChases, ASequenceButtonStepsItsChaseIntoTheDeskChannelItIsRoutedTo) {
  ChaseDesk p;
  p.click(4);
  EXPECT_EQ(std::tuple(p.chases().running(3), p.chases().chase_step_timer(3).interval()), std::tuple(true, 1001));
  p.advance(100);
  EXPECT_EQ(p.seq(10), 200);
  p.advance(1000);  // 1100 ms: step 2
  EXPECT_EQ(std::tuple(p.chases().step(3), p.seq(10)), std::tuple(2, 100));
  p.advance(1001);  // back to step 1: Loop 0 plays on
  EXPECT_EQ(p.seq(10), 200);
  p.advance(20000);
  EXPECT_TRUE(p.chases().running(3));

  p.click(4);  // latched off: the chase stops and goes dark
  p.advance(100);
  EXPECT_EQ(std::tuple(p.chases().running(3), p.seq(10)), std::tuple(false, 0));

  p.button(4).Latch = false;  // a flash button plays it while held
  p.press(4);
  p.advance(100);
  EXPECT_EQ(std::tuple(p.seq(10), p.panel().buttons()[4].lamp), std::tuple(200, kRed));
  p.release(4);
  EXPECT_EQ(p.chases().Seq_Level(3), 0);
  p.advance(100);
  EXPECT_EQ(p.seq(10), 0);
}

TEST(PlaybackChases, LevelsScaleByTheButtonLevelFadesRiseEachTickAndARepeatCountPlaysOneMorePass) {
  ChaseDesk p;
  p.button(4).Level = 128;
  p.chase().Fade[1][0] = kChaseFade;
  p.chase().Time[1] = 0.5;
  p.chase().Loop = 1;
  p.click(4);
  // 200 over five 100 ms ticks: 40, 80, ... then held for the rest of the step.
  const int expected[] = {20, 40, 60, 80, 100, 100};
  for (int tick = 0; tick < 6; ++tick) {
    p.advance(100);
    EXPECT_EQ(p.seq(10), expected[tick]) << "tick " << tick;
  }
  p.advance(4003 - 600);  // two passes of two 1001 ms steps, 1 ms short of the end
  EXPECT_EQ(std::tuple(p.chases().running(3), p.chases().passes(3)), std::tuple(true, 1));
  p.advance(1);
  EXPECT_FALSE(p.chases().running(3));
  p.advance(100);
  EXPECT_EQ(p.seq(10), 0);
}

// Fader 5 plays chase 3 at its level; fader 6 sets its step time instead.
TEST(PlaybackChases, ALevelFaderPlaysItsChaseAndAStepTimeFaderSetsItsSpeed) {
  ChaseDesk p;
  p.set_fader(5, kFunctionSequence, 3);
  p.set_fader(6, kFunctionSequence, 3).Data1 = 1;
  p.desk->Refresh_Playback_Panel();
  p.fader_to(5, 51);
  p.advance(100);
  EXPECT_EQ(std::tuple(p.chases().Seq_Level(3), p.seq(10)), std::tuple(51, 40));
  p.fader_to(5, 2);
  EXPECT_FALSE(p.chases().running(3)) << "stopped near the bottom";
  EXPECT_EQ(p.chases().Seq_Level(3), 0);

  p.fader_to(6, 50);  // 50 % of the chase's own timing
  EXPECT_EQ(p.chases().Seq_Speed(3), 50);
  EXPECT_EQ(p.chases().Seq_Level(3), 255) << "a chase at rest takes the fader's Level";
  EXPECT_EQ(p.chases().chase_step_timer(3).interval(), 501);
  EXPECT_EQ(p.panel().faders()[6].step_time_note, "Seq  *");
}

TEST(PlaybackChases, RecallStopsEveryChaseAndRestartsTheScreensOwn) {
  ChaseDesk p;
  p.store().Chase_Table[6].Steps = 1;
  p.chases().Set_Sequence_Level(6, 255);
  p.click(4);
  p.record(2, "With chase", 1, 0);
  p.click(4);  // off
  p.chases().Set_Sequence_Level(6, 255);

  p.screens().Recall_Screen(2);
  EXPECT_FALSE(p.chases().running(6)) << "chases not in the screen stop";
  EXPECT_EQ(std::tuple(p.chases().running(3), p.chases().Seq_Level(3)), std::tuple(true, 255));
  p.advance(100);
  EXPECT_EQ(p.seq(10), 200);
}

}  // namespace lumaris
