#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/rounding.h"
#include "core/desk_context.h"
#include "core/surface_feedback.h"
#include "playback/playback_chases.h"
#include "playback/run_mode.h"

// Run mode's takes: automatic (start, tick, pause, resume), by hand on the
// crossfader, their completion and the delay counter of Auto chains.

namespace lumaris {

namespace {

constexpr const char* kAutotakeStopped = " Autotake Stopped ";
constexpr const char* kAutotakeRunning = " Autotake Running ";
constexpr const char* kAutotakeComplete = " Autotake Complete ";
constexpr const char* kDelayCounter = " Delay Counter ";
constexpr const char* kPauseCaption = "Pause";

constexpr int kAutoComplete = 252;   // an automatic take completes here
constexpr int kHandComplete = 240;   // a take by hand completes above this
constexpr int kDownThreshold = 220;  // moving down from the top takes below this
constexpr int kUpThreshold = 35;     // moving up from the bottom takes above this
constexpr int kResumeLow = 30;
constexpr int kResumeHigh = 230;
constexpr int kDefaultOutputInterval = 70;

// The screen's Next; a screen without one goes on to the following screen.
int next_of(const Screen& screen, int number) {
  if (screen.Next > 0 && screen.Next < RunMode::kLastNext) return screen.Next;
  return std::min(number + 1, RunMode::kLastNext - 1);
}

}  // namespace

void RunMode::Autotake(int target) {
  if (!context_.store().Run_Mode) return;
  const Store& store = context_.store();
  if (store.Autotake_Running) {
    pause();
  } else if (store.Take_Manual && store.Crossfade_Level > kResumeLow && store.Crossfade_Level < kResumeHigh) {
    resume();
  } else {
    new_take(target);
  }
  notify();
}

void RunMode::pause() {
  Store& store = context_.store();
  status(kAutotakeStopped);
  store.Take_Manual = true;
  store.Autotake_Running = false;
  take_timer_->set_enabled(false);
  paint_sides(kRed, kRed);
  autotake_caption_ = kAutoTakeCaption;
  autotake_colour_.reset();
}

void RunMode::resume() {
  Store& store = context_.store();
  last_crossfade_ = crossfader_;
  store.Autotake_Running = true;
  store.Take_Manual = false;
  paint_sides(kYellow, kYellow);
  autotake_caption_ = kPauseCaption;
  autotake_colour_ = kYellow;
  status(kAutotakeRunning);
  start_timer();
  Compute_Run_Output();
}

void RunMode::new_take(int target) {
  Store& store = context_.store();
  delay_timer_->set_enabled(false);
  prev_screen_ = store.Run_Screen;
  if (target >= 1 && target <= store.Screen_Count && target < kScreens) store.Run_Screen = static_cast<std::int16_t>(target);
  store.Crossfade_Level = 0;
  store.Autotake_Running = true;
  store.Take_Manual = false;
  status(kAutotakeRunning + std::to_string(prev_screen_) + " To " + std::to_string(store.Run_Screen));
  paint_sides(kYellow, kYellow);
  autotake_caption_ = kPauseCaption;
  autotake_colour_ = kYellow;
  chases_.Start_Take_Sequences(store.Screens[store.Run_Screen], PlaybackChases::Entry::Take);
  next_on_a_ = !next_on_a_;
  show_sides(prev_screen_, store.Run_Screen);
  show_crossfade();
  last_crossfade_ = crossfader_;
  start_timer();
  Compute_Run_Output();
}

// u = T / 255 s per crossfade unit against the output interval I. Fade time 0
// is a snap; a resumed take keeps the take's own step and interval.
void RunMode::start_timer() {
  const Store& store = context_.store();
  const int t = store.Screens[store.Run_Screen].Time;
  const int i = std::max(1, desk_.output_interval ? desk_.output_interval() : kDefaultOutputInterval);
  const double u = t / 255.0 * 1000.0;
  int interval = i;
  int ticks = 1;
  if (u > i) {
    interval = round_half_even(u);
    ticks = 255;
  } else if (t > 0) {
    ticks = std::max(1, round_half_even(t * 1000.0 / (i + 1)));
  }
  fade_step_ = std::max(1, round_half_even(255.0 / ticks));
  take_timer_->set_interval(interval);
  take_timer_->set_enabled(true);
  take_start_ms_ = context_.scheduler().now_ms();
  take_start_level_ = store.Crossfade_Level;
}

void RunMode::take_tick() {
  Store& store = context_.store();
  if (context_.output_timing().smooth()) {
    move_take_to(context_.scheduler().now_ms());
  } else {
    if (store.Autotake_Running) {
      store.Crossfade_Level = static_cast<std::int16_t>(std::min(255, store.Crossfade_Level + fade_step_));
    }
    show_crossfade();
    if (store.Crossfade_Level >= kAutoComplete) Complete_Take();
  }
  notify();
}

// 255 levels over the screen's fade time, counted from where and when the take
// started or resumed; it ends at the first moment that reaches 255.
void RunMode::move_take_to(double now_ms) {
  Store& store = context_.store();
  if (!store.Autotake_Running) return;
  const int seconds = store.Screens[store.Run_Screen].Time;
  double level = 255;
  if (seconds > 0) {
    const double moved = std::max(0.0, now_ms - take_start_ms_) * 255.0 / (seconds * 1000.0);
    level = std::min(255.0, take_start_level_ + std::floor(moved));
  }
  store.Crossfade_Level = static_cast<std::int16_t>(level);
  show_crossfade();
  if (store.Crossfade_Level >= 255) Complete_Take();
}

void RunMode::sample_output(double now_ms) {
  const int before = context_.store().Crossfade_Level;
  move_take_to(now_ms);
  if (context_.store().Crossfade_Level != before) notify();
}

void RunMode::Run_Crossfade_Change(int value) {
  Store& store = context_.store();
  if (!store.Run_Mode || store.Autotake_Running) return;
  const int v = std::clamp(value, 0, 255);
  if (!store.Take_Manual) {
    if (std::abs(v - last_crossfade_) < 1) return;
    const bool down = v < last_crossfade_;
    // A take starts when the crossfader leaves its end past the threshold;
    // moves near the end it rests at change nothing.
    const bool takes = down ? (v < kDownThreshold && last_crossfade_ >= kDownThreshold)
                            : (v > kUpThreshold && last_crossfade_ <= kUpThreshold);
    if (!takes) {
      crossfader_ = v;
      last_crossfade_ = v;
      notify();
      return;
    }
    next_on_a_ = down;
    store.Take_Manual = true;
    delay_timer_->set_enabled(false);
    prev_screen_ = store.Run_Screen;
    if (next_screen_ <= store.Screen_Count) store.Run_Screen = static_cast<std::int16_t>(next_screen_);
    paint_sides(kRed, kRed);
    show_sides(prev_screen_, store.Run_Screen);
    chases_.Start_Take_Sequences(store.Screens[store.Run_Screen], PlaybackChases::Entry::Take);
    Compute_Run_Output();
    if (!down) Run_screen_sel_Change(next_of(store.Screens[store.Run_Screen], store.Run_Screen));
  }
  crossfader_ = v;
  store.Crossfade_Level = static_cast<std::int16_t>(next_on_a_ ? 255 - v : v);
  if (store.Crossfade_Level > kHandComplete) {
    Complete_Take();
  } else {
    last_crossfade_ = v;
  }
  notify();
}

void RunMode::Complete_Take() {
  Store& store = context_.store();
  store.Autotake_Running = false;
  store.Take_Manual = false;
  take_timer_->set_enabled(false);
  store.Crossfade_Level = 255;
  show_crossfade();
  last_crossfade_ = crossfader_;
  const int run = store.Run_Screen;
  const Screen& screen = store.Screens[run];
  Run_screen_sel_Change(next_of(screen, run));
  if (desk_.show_screen) desk_.show_screen(run);
  autotake_caption_ = kAutoTakeCaption;
  autotake_colour_.reset();
  status(kAutotakeComplete);
  if (next_on_a_) {
    paint_sides(kGreen, kRed);
    show_side(side_a_, next_screen_);
  } else {
    paint_sides(kRed, kGreen);
    show_side(side_b_, next_screen_);
  }
  take_screen_onto_desk();
  hand_over_sequences();
  if (desk_.set_preset_value) desk_.set_preset_value(255 - screen.Preset_l);
  if (desk_.refresh_playback) desk_.refresh_playback();
  if (store.BCF_Mode == kSurfacePlaybackMode) {
    for (int i = 0; i < kSurfaceElements; ++i) {
      context_.surface().BCF_Fader_Update(PlaybackElement(i), store.Playback_Fader_Level[i]);
      context_.surface().BCF_Button_Update(PlaybackElement(i), store.Playback_Button_State[i]);
    }
  } else if (store.BCF_Mode == kSurfaceMainMode) {
    // The surface's faders are the main desk strips of the page on show.
    const int first = store.Fader_Page * kFadersPerPage;
    for (int i = 0; i < kFadersPerPage; ++i) {
      context_.surface().BCF_Fader_Update(SurfaceStrip::of_channel(store.Fader_Page, first + i),
                                          store.Desk_Level[first + i]);
    }
  }
  if (!screen.Auto) return;
  if (screen.Delay < 1) {
    Autotake(next_screen_);
    return;
  }
  delay_count_ = screen.Delay;
  delay_timer_->set_enabled(true);
  status(kDelayCounter + std::to_string(delay_count_));
}

void RunMode::take_screen_onto_desk() {
  Store& store = context_.store();
  const Screen& screen = store.Screens[store.Run_Screen];
  std::copy_n(screen.Preset.begin(), kDeskChannels, store.Desk_Level.begin());
  if (desk_.refresh_main_desk) desk_.refresh_main_desk();
  store.Playback_Fader_Level = screen.Fad_Sel;
  store.Playback_Button_State = screen.But_Sel;
}

// At the end of a take the incoming levels carry on as the chases' levels, so
// Playback_Seq_Out reads the same before and after; what the incoming screen
// does not hold stops.
void RunMode::hand_over_sequences() {
  for (int q = 0; q < kChases; ++q) {
    chases_.set_Seq_Level(q, chases_.Seq_Level_In(q));
    chases_.set_Seq_Level_In(q, 0);
    if (chases_.Seq_Level(q) < 1) chases_.Stop_Sequence(q);
  }
}

void RunMode::Delay_Timer_Tick() {
  const Store& store = context_.store();
  --delay_count_;
  status(kDelayCounter + std::to_string(delay_count_));
  if (delay_count_ < 1) {
    delay_timer_->set_enabled(false);
    if (store.Run_Mode && !store.Autotake_Running) Autotake(next_screen_);
  }
  notify();
}

}  // namespace lumaris
