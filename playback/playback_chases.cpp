#include "playback/playback_chases.h"

#include <algorithm>

#include "base/rounding.h"
#include "core/desk_context.h"
#include "sequence/chase_edit.h"

namespace lumaris {

PlaybackChases::PlaybackChases(DeskContext& context) : context_(context) {
  seq_speed_.fill(100);
  for (int q = 0; q < kStepTimers; ++q) {
    chase_step_timers_[q] = context.scheduler().create_timer(true);
    chase_step_timers_[q]->set_enabled(false);
    chase_step_timers_[q]->on_tick([this, q] { chase_step_tick(q); });
  }
  mix_timer_ = context.scheduler().create_timer(true);
  mix_timer_->set_interval(kMixInterval);
  mix_timer_->on_tick([this] { mix_tick(); });
  mix_timer_->set_enabled(true);
}

bool PlaybackChases::running(int q) const { return runnable(q) && chase_step_timers_[q]->enabled(); }

void PlaybackChases::set_Seq_Level(int q, int level) {
  if (valid(q)) seq_level_[q] = static_cast<std::int16_t>(std::clamp(level, 0, 255));
}

void PlaybackChases::set_Seq_Level_In(int q, int level) {
  if (valid(q)) seq_level_in_[q] = static_cast<std::int16_t>(std::clamp(level, 0, 255));
}

void PlaybackChases::set_Seq_Speed(int q, int percent) {
  if (valid(q)) seq_speed_[q] = static_cast<std::int16_t>(std::clamp(percent, 0, 255));
}

void PlaybackChases::clear_levels() {
  seq_level_.fill(0);
  seq_level_in_.fill(0);
}

void PlaybackChases::Start_Sequence(int q) {
  if (!runnable(q)) return;
  Run& run = runs_[q];
  run.step = 1;
  run.passes = 0;
  enter_step(q, true);
  set_step_interval(q);
  chase_step_timers_[q]->set_enabled(true);
}

// A stopped chase is dark from the next frame on: a fade end it was holding goes too.
void PlaybackChases::Stop_Sequence(int q) {
  if (!runnable(q)) return;
  chase_step_timers_[q]->set_enabled(false);
  runs_[q].hold = false;
}

void PlaybackChases::Stop_All() {
  for (int q = 0; q < kStepTimers; ++q) Stop_Sequence(q);
}

void PlaybackChases::Set_Sequence_Level(int q, int level) {
  if (!valid(q)) return;
  if (level < 1) {
    seq_level_[q] = 0;
    Stop_Sequence(q);
    return;
  }
  set_Seq_Level(q, level);
  Start_Sequence(q);
}

void PlaybackChases::Start_Take_Sequences(const Screen& screen, Entry entry) {
  Store& store = context_.store();
  auto start = [&](int q, int level, bool from_button) {
    if (entry == Entry::Take) {
      set_Seq_Level_In(q, level);
    } else {
      set_Seq_Level(q, level);
    }
    if (running(q)) return;
    if (from_button || entry == Entry::Take) set_Seq_Speed(q, 100);
    Start_Sequence(q);
  };
  for (int b = 0; b < kPlaybackButtons; ++b) {
    ButtonFunction& button = store.Button_Functions[b];
    if (!screen.But_Sel[b] || button.Function != kFunctionSequence) continue;
    button.Preset = false;
    start(button.Value, button.Level, true);
  }
  for (int f = 0; f < kPlaybackFaders; ++f) {
    const FaderFunction& fader = store.Fader_Functions[f];
    const int level = screen.Fad_Sel[f];
    if (level <= kSequenceFaderThreshold || fader.Function != kFunctionSequence) continue;
    start(fader.Value, fader.Data1 != 0 ? fader.Level : level, false);
  }
}

void PlaybackChases::enter_step(int q, bool starting) {
  const ChaseRec& chase = context_.store().Chase_Table[q];
  Run& run = runs_[q];
  run.fade_ticks = 0;
  run.anchor_ms = context_.scheduler().now_ms();
  const double time = chase.Time[run.step];
  for (int k = 0; k < kChaseChannels; ++k) {
    const double data = chase.Data[run.step][k];
    switch (chase.Fade[run.step][k]) {
      case kChaseStep:
        run.increment[k] = 0;
        run.level[k] = data;
        break;
      case kChaseFade:
        if (starting) run.level[k] = 0;
        if (time > 0) {
          run.increment[k] = (data - run.level[k]) / (time * 10);
        } else {
          run.increment[k] = 0;
          run.level[k] = data;
        }
        break;
      default:
        run.increment[k] = 0;
        break;
    }
  }
}

void PlaybackChases::set_step_interval(int q) {
  const ChaseRec& chase = context_.store().Chase_Table[q];
  const double ms = seq_speed_[q] * chase.Speed[runs_[q].step] * 10 + 1;
  chase_step_timers_[q]->set_interval(round_half_even(std::clamp(ms, 1.0, 2147483647.0)));
}

void PlaybackChases::chase_step_tick(int q) {
  const ChaseRec& chase = context_.store().Chase_Table[q];
  Run& run = runs_[q];
  const bool hold = run.final_unseen && context_.output_timing().smooth();
  run.final_unseen = false;
  run.hold = hold;
  if (run.step < chase_steps(chase)) {
    ++run.step;
  } else {
    if (chase.Loop != 0) {
      ++run.passes;
      if (run.passes > chase.Loop) {
        Stop_Sequence(q);
        run.hold = hold;  // ending on its own, it still owes the frame its last level
        if (finished_) finished_();
        return;
      }
    }
    run.step = 1;
  }
  enter_step(q, false);
  set_step_interval(q);
}

// Counted in ticks, so a fade of a multiple of 0.1 s has exactly that many.
bool PlaybackChases::in_fade(int q) const {
  const ChaseRec& chase = context_.store().Chase_Table[q];
  return runs_[q].fade_ticks < chase.Time[runs_[q].step] * 10 - 1e-9;
}

bool PlaybackChases::lit(int q) const { return running(q) && (seq_level_[q] >= 1 || seq_level_in_[q] >= 1); }

// During a take the chase crossfades from its level to its incoming level.
int PlaybackChases::contribution(int q, double level) const {
  const Store& store = context_.store();
  const int l = std::clamp(round_half_even(level), 0, 255);
  if (store.Autotake_Running || store.Take_Manual) {
    const int x = store.Crossfade_Level;
    return Level_Scale(l, 255 - x, seq_level_[q], 0, 3) + Level_Scale(l, x, seq_level_in_[q], 0, 3);
  }
  return Level_Scale(l, seq_level_[q], 0, 0, 2);
}

// Highest level wins on each desk channel a chase channel is routed to.
void PlaybackChases::merge(int q, const std::array<std::int16_t, kChaseChannels>& levels) {
  Store& store = context_.store();
  const ChaseRec& chase = store.Chase_Table[q];
  auto& out = store.Playback_Seq_Out;
  for (int k = 0; k < kChaseChannels; ++k) {
    const int d = chase.Channels[k];
    if (d < 0 || d >= kDeskChannels) continue;
    if (levels[k] > out[d]) out[d] = std::min<std::int16_t>(levels[k], 255);
  }
}

void PlaybackChases::mix_tick() {
  context_.store().Playback_Seq_Out.fill(0);
  last_mix_ms_ = context_.scheduler().now_ms();
  std::array<std::int16_t, kChaseChannels> levels{};
  for (int q = 0; q < kStepTimers; ++q) {
    if (!lit(q)) continue;
    Run& run = runs_[q];
    const bool fading = in_fade(q);
    for (int k = 0; k < kChaseChannels; ++k) {
      if (fading) run.level[k] += run.increment[k];
      levels[k] = static_cast<std::int16_t>(contribution(q, run.level[k]));
    }
    merge(q, levels);
    if (fading) ++run.fade_ticks;
    run.anchor_ms = last_mix_ms_;
    run.final_unseen = fading && !in_fade(q);
    // A held fade end keeps what the frame is still owed, unless a later fade end replaces it.
    if (!run.hold || run.final_unseen) run.shown = levels;
  }
}

void PlaybackChases::sample_output(double now_ms) {
  context_.store().Playback_Seq_Out.fill(0);
  const double next_mix_ms = last_mix_ms_ + kMixInterval;
  std::array<std::int16_t, kChaseChannels> levels{};
  for (int q = 0; q < kStepTimers; ++q) {
    Run& run = runs_[q];
    run.final_unseen = false;
    if (run.hold) {
      run.hold = false;
      merge(q, run.shown);
      continue;
    }
    if (!lit(q)) continue;
    // A step that began between two ticks fades from its start to the next tick.
    const double span = next_mix_ms - run.anchor_ms;
    const double progress = span > 0 ? std::clamp((now_ms - run.anchor_ms) / span, 0.0, 1.0) : 1.0;
    const double share = in_fade(q) ? progress : 0.0;
    for (int k = 0; k < kChaseChannels; ++k) {
      levels[k] = static_cast<std::int16_t>(contribution(q, run.level[k] + run.increment[k] * share));
    }
    merge(q, levels);
  }
}

}  // namespace lumaris
