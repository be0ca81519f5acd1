#include <gtest/gtest.h>

#include <tuple>
#include <utility>

#include "console/output_cycle.h"
#include "core/desk_context.h"
#include "playback/run_mode.h"
#include "tests/playback/playback_test_desk.h"

namespace lumaris {
namespace {

// Chase 3 fades chase channel 0 (desk channel 10) from 0 to 200 over 0.5 s in
// step 1 and holds it for the rest of a 1 s step; step 2 is dark. Button 4
// plays it at full. The output runs every 10 ms unless a test says otherwise.
struct SmoothPlayback : PlaybackTestDesk {
  explicit SmoothPlayback(bool smooth) {
    t.console->context().output_timing().set_run_smooth(smooth);
    output_interval(10);
    ChaseRec& c = store().Chase_Table[3];
    c.Steps = 2;
    c.Channels[0] = 9;
    c.Data[1][0] = 200;
    c.Fade[1][0] = kChaseFade;
    c.Time[1] = 0.5;
    set_button(4, kFunctionSequence, 3, 255, true);
  }
  ChaseRec& chase() { return store().Chase_Table[3]; }
  void output_interval(int ms) { t.console->output_cycle().output_timer().set_interval(ms); }
  void advance(int ms) { t.scheduler.advance(ms); }
  int mixed(int channel) { return t.console->output_cycle().Channel_Mix()[channel - 1]; }
};

// The output timer ticks before the chase mix at the same moment, so without
// smooth output a mixing tick's level reaches the frame one frame later.
TEST(SmoothPlaybackChase, FramesFollowTheFadeBetweenMixingTicksAndMeetThemAtEachTick) {
  SmoothPlayback off(false);
  SmoothPlayback on(true);
  off.click(4);
  on.click(4);
  on.advance(100);  // the first mixing tick: 40
  off.advance(110);
  EXPECT_EQ(std::tuple(on.mixed(10), off.mixed(10)), std::tuple(40, 40));
  on.advance(50);
  off.advance(40);
  EXPECT_EQ(std::tuple(on.mixed(10), off.mixed(10)), std::tuple(60, 40)) << "halfway to the next tick's 80";
  on.advance(50);
  off.advance(60);
  EXPECT_EQ(std::tuple(on.mixed(10), off.mixed(10)), std::tuple(80, 80));
  on.advance(350);  // 550: the fade ended at 500 and holds
  EXPECT_EQ(on.mixed(10), 200);
}

TEST(SmoothPlaybackChase, AStepBeginningBetweenMixingTicksFadesFromItsStartToTheNextTick) {
  SmoothPlayback on(true);
  on.advance(50);
  on.click(4);  // the mix ticks at 100: 40
  on.advance(20);
  EXPECT_EQ(on.mixed(10), 16) << "at 70: 20 of the 50 ms to the tick";
  on.advance(30);
  EXPECT_EQ(on.mixed(10), 40);
}

// The fade fills step 1: its last level (200) is mixed at 500, the step moves
// on at 501 and the output runs only every 700 ms, so no frame carried it.
struct FadeEndBetweenFrames : SmoothPlayback {
  FadeEndBetweenFrames() : SmoothPlayback(true) {
    output_interval(700);
    chase().Speed[1] = 0.5;
  }
};

TEST(SmoothPlaybackChase, AFadesLastLevelIsHeldForAFrameWhenTheStepMovesOnFirst) {
  FadeEndBetweenFrames on;
  on.chase().Speed[2] = 1.0;
  on.click(4);
  on.advance(700);
  EXPECT_EQ(on.chases().step(3), 2);
  EXPECT_EQ(on.mixed(10), 200) << "the end of the fade reaches the wire once";
  on.advance(700);
  EXPECT_EQ(on.mixed(10), 0);
}

TEST(SmoothPlaybackChase, AChaseEndingOnItsLastPassHoldsItsLastLevelForOneFrame) {
  FadeEndBetweenFrames on;
  // Two passes of two 501 ms steps: up to 200, down to 100. The last fade ends
  // at 2000, the chase at 2004; the next frame is at 2100.
  on.chase().Speed[2] = 0.5;
  on.chase().Data[2][0] = 100;
  on.chase().Fade[2][0] = kChaseFade;
  on.chase().Time[2] = 0.5;
  on.chase().Loop = 1;
  on.click(4);
  on.advance(2100);
  EXPECT_EQ(std::tuple(on.chases().running(3), on.mixed(10)), std::tuple(false, 100));
  on.advance(700);
  EXPECT_EQ(on.mixed(10), 0);
}

TEST(SmoothPlaybackChase, AChaseTheOperatorStopsGoesDarkAtTheNextFrameThoughAFadeEndWasHeld) {
  FadeEndBetweenFrames on;
  on.click(4);
  on.advance(600);  // held for the frame at 700
  on.click(4);
  on.advance(100);
  EXPECT_EQ(on.mixed(10), 0);
}

// Screen 2 brings channel 1 to full over 5 s (a level every 19.6 ms); the
// output runs every 23 ms and the take starts at 35, between two frames.
struct SmoothTake : SmoothPlayback {
  SmoothTake() : SmoothPlayback(true) {
    output_interval(23);
    for (int n = 1; n <= 2; ++n) {
      store().Screens[n].Name = "Look " + std::to_string(n);
      store().Screens[n].Time = 5;
      store().Screens[n].Next = static_cast<std::int16_t>(n + 1);
    }
    store().Screens[2].Preset[0] = 255;
    store().Screen_Count = 3;
    desk->run_mode().Run_Switch_Click();
    advance(35);
    desk->run_mode().Run_Autotake_Click();
  }
  std::int64_t now() { return t.scheduler.now(); }
  int crossfade() { return store().Crossfade_Level; }
  // Frame by frame until channel 1 is full: the time that took and how many
  // frames repeated the level before them.
  std::pair<std::int64_t, int> frames_to_full() {
    const std::int64_t start = now();
    int repeats = 0;
    for (int last = mixed(1); mixed(1) < 255 && now() - start < 10000; last = mixed(1)) {
      advance(23);
      if (mixed(1) <= last) ++repeats;
    }
    return {now() - start, repeats};
  }
};

TEST(SmoothRunModeTake, TheTakeLastsItsFadeTimeAndEveryFrameCarriesANewLevel) {
  SmoothTake on;
  on.advance(11);  // the first frame, at 46
  const auto [lasted, repeats] = on.frames_to_full();
  EXPECT_GE(lasted + 11, 5000);
  EXPECT_LT(lasted + 11, 5000 + 23) << "at most one frame late";
  EXPECT_EQ(std::tuple(repeats, on.store().Autotake_Running, on.crossfade()), std::tuple(0, false, 255));
}

TEST(SmoothRunModeTake, APauseHoldsTheLastFrameAndTheResumedTakeKeepsThePace) {
  SmoothTake on;
  on.advance(977);  // the frame at 1012
  on.desk->run_mode().Run_Autotake_Click();
  const int paused = on.crossfade();
  EXPECT_EQ(paused, on.mixed(1));
  on.advance(2001);  // the frame at 3013
  EXPECT_EQ(on.crossfade(), paused);
  on.desk->run_mode().Run_Autotake_Click();
  const auto [lasted, repeats] = on.frames_to_full();
  const double rest_ms = (255 - paused) * 5000.0 / 255;
  EXPECT_GE(lasted, rest_ms);
  EXPECT_LT(lasted, rest_ms + 23);
  EXPECT_EQ(repeats, 0);
}

}  // namespace
}  // namespace lumaris
