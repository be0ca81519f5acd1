#include "sequence/chase_runtime.h"

#include <algorithm>

#include "core/desk_context.h"
#include "base/rounding.h"
#include "sequence/sequence_desk.h"

namespace lumaris {

namespace {

constexpr const char* kGoCaption = "Go";
constexpr const char* kStopCaption = "Stop";

bool routed(int desk_channel) { return desk_channel >= 0 && desk_channel < kDeskChannels; }

}  // namespace

ChaseRuntime::ChaseRuntime(DeskContext& context, SequenceDesk& desk)
    : context_(context),
      desk_(desk),
      step_timer_(context.scheduler().create_timer(true)),
      level_timer_(context.scheduler().create_timer(true)) {
  step_timer_->on_tick([this] { Advance_Step(); });
  level_timer_->set_interval(kLevelInterval);
  level_timer_->set_enabled(false);
  level_timer_->on_tick([this] { Fade_Tick(); });
  fade_bar_.set_Value(0);
  step_bar_.set_Value(0);
}

void ChaseRuntime::clear_output(int count) {
  auto& out = context_.store().Chase_Out;
  std::fill(out.begin(), out.begin() + count, 0);
}

void ChaseRuntime::set_step_interval() {
  const double ms = desk_.chase().Speed[desk_.cur_step_] * 1000 + 1;
  step_timer_->set_interval(round_half_even(std::clamp(ms, 0.0, 2147483647.0)));
}

void ChaseRuntime::Go_Stop() {
  if (running_) {
    Stop_Chase(true);
  } else {
    Start_Chase();
  }
}

void ChaseRuntime::Start_Chase() {
  running_ = true;
  go_caption_ = kStopCaption;
  go_colour_ = kRed;
  live_mode_enabled_ = false;
  live_output_ = false;
  loop_count_ = 0;
  if (desk_.chase().Loop == 0) {
    desk_.cur_step_ = 1;
    desk_.prev_step_ = 1;
  }
  set_step_interval();
  for (int i = 0; i < kLevelChannels; ++i) desk_.channels_[i].fader = 255;
  clear_output();
  saved_global_speed_ = desk_.global_speed_;
  saved_global_fade_ = desk_.global_fade_;
  desk_.global_speed_ = desk_.global_fade_ = true;
  desk_.global_speed_enabled_ = desk_.global_fade_enabled_ = false;
  Enter_Step(true);
  step_timer_->set_enabled(true);
  level_timer_->set_enabled(true);
  next_tick_ms_ = context_.scheduler().now_ms() + kLevelInterval;
  final_unseen_ = hold_final_ = clear_after_hold_ = false;
  step_began();
}

void ChaseRuntime::step_began() { anchor_ms_ = context_.scheduler().now_ms(); }

void ChaseRuntime::Enter_Step(bool starting) {
  const ChaseRec& chase = desk_.chase();
  const int step = desk_.cur_step_;
  const int prev = desk_.prev_step_;
  for (int k = 0; k < kChaseChannels; ++k) {
    const int f = chase.Fade[step][k];
    if (f == kChaseFade) {
      const double time = chase.Time[step];
      if (time > 0) {
        fade_level_[k] = chase.Data[prev][k];
        fade_inc_[k] = (chase.Data[step][k] - chase.Data[prev][k]) / (time * 10);
      } else {
        fade_level_[k] = chase.Data[step][k];
        fade_inc_[k] = 0;
      }
    } else if (f == kChaseOff) {
      fade_inc_[k] = 0;
    } else {
      fade_inc_[k] = 0;
      fade_level_[k] = chase.Data[step][k];
      if (starting) desk_.channels_[k].indicator = level_colour(chase.Data[step][k]);
    }
    desk_.show_function(k);
  }
}

void ChaseRuntime::Advance_Step() {
  const ChaseRec& chase = desk_.chase();
  hold_final_ = final_unseen_ && context_.output_timing().smooth();
  final_unseen_ = false;
  desk_.prev_step_ = desk_.cur_step_;
  fade_ticks_ = 0;
  step_ticks_ = 0;
  if (desk_.cur_step_ < chase_steps(chase)) {
    ++desk_.cur_step_;
  } else {
    if (chase.Loop != 0) {
      ++loop_count_;
      desk_.loop_times_txt_ = std::to_string(chase.Loop - loop_count_);
      if (loop_count_ > chase.Loop) {
        Stop_Chase(false);
        return;
      }
    }
    desk_.cur_step_ = 1;
  }
  Enter_Step();
  step_began();
  step_bar_.set_Value(0);
  fade_bar_.set_Value(0);
  set_step_interval();
}

void ChaseRuntime::step_changed() {
  fade_ticks_ = 0;
  step_ticks_ = 0;
  if (!running_) return;
  Enter_Step();
  step_began();
  step_bar_.set_Value(0);
  fade_bar_.set_Value(0);
  set_step_interval();
}

// The levels a tick writes: each chase channel's level `progress` of the way
// to the next tick's, scaled, merged by highest level onto its desk channel.
void ChaseRuntime::write_output(double progress, bool paint) {
  const ChaseRec& chase = desk_.chase();
  auto& out = context_.store().Chase_Out;
  clear_output();
  for (int k = 0; k < kChaseChannels; ++k) {
    const double level = scaled(fade_level_[k] + fade_inc_[k] * progress);
    const int d = chase.Channels[k];
    if (!routed(d)) continue;
    if (level > out[d]) out[d] = round_half_even(level);
    if (out[d] > 255) out[d] = 255;
    if (paint) desk_.channels_[k].indicator = level_colour(out[d]);
  }
}

// Ticks before the end of the window: fade_ticks_ x 0.1 < Time, free of the
// drift that adding 0.1 again and again would bring.
bool ChaseRuntime::window_open() const {
  return fade_ticks_ < desk_.chase().Time[desk_.cur_step_] * 10 - 1e-9;
}

void ChaseRuntime::Fade_Tick() {
  if (!running_) return;
  const ChaseRec& chase = desk_.chase();
  const int step = desk_.cur_step_;
  if (window_open()) {
    for (int k = 0; k < kChaseChannels; ++k) fade_level_[k] += fade_inc_[k];
    write_output(0, true);
    ++fade_ticks_;
    final_unseen_ = !window_open();
  } else {
    clear_output();
    final_unseen_ = false;
  }
  ++step_ticks_;
  anchor_ms_ = context_.scheduler().now_ms();
  next_tick_ms_ = anchor_ms_ + kLevelInterval;
  fade_bar_.set_Value(round_half_even(Fade_Elapsed() * 100 / (chase.Time[step] + 0.1) + 1));
  step_bar_.set_Value(round_half_even(Step_Elapsed() * 100 / (chase.Speed[step] + 0.1) + 1));
}

void ChaseRuntime::sample_output(double now_ms) {
  if (hold_final_) {
    // Chase_Out still carries the end of the fade the step timer cut short.
    hold_final_ = false;
    anchor_ms_ = now_ms;
    return;
  }
  if (!running_) {
    // A chase that ended on its last pass went dark once a frame had taken its last level.
    if (clear_after_hold_) clear_output();
    clear_after_hold_ = false;
    return;
  }
  final_unseen_ = false;
  // Past the window, Chase_Out holds what the last tick wrote until the next.
  if (!window_open()) return;
  const double span = next_tick_ms_ - anchor_ms_;
  const double progress = span > 0 ? std::clamp((now_ms - anchor_ms_) / span, 0.0, 1.0) : 1.0;
  write_output(progress, false);
}

void ChaseRuntime::Stop_Chase(bool from_button) {
  running_ = false;
  go_caption_ = kGoCaption;
  go_colour_ = kGreen;
  if (from_button) Advance_Step();
  step_timer_->set_enabled(false);
  level_timer_->set_enabled(false);
  desk_.global_speed_enabled_ = desk_.global_fade_enabled_ = true;
  desk_.global_speed_ = saved_global_speed_;
  desk_.global_fade_ = saved_global_fade_;
  if (desk_.speed_fade_lock_) desk_.global_fade_enabled_ = false;
  live_mode_enabled_ = true;
  desk_.loop_times_txt_ = std::to_string(desk_.loop_times_);
  if (live_mode_sel_) live_output_ = true;
  // A chase ending on its own keeps the last level of its fade for one more frame.
  clear_after_hold_ = hold_final_ && !from_button && !live_output_;
  if (!clear_after_hold_) {
    hold_final_ = false;
    clear_output();
  }
  desk_.Show_Step();
}

void ChaseRuntime::Set_Live_Mode(bool checked) {
  if (!live_mode_enabled_) return;
  live_mode_sel_ = checked;
  live_output_ = checked;
  // Only the first 32 desk channels are cleared: chase channels routed above
  // them keep their live level until the next edit or run.
  if (!checked) clear_output(kDeskChannels / 2);
}

}  // namespace lumaris
