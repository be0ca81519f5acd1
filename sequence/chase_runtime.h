#pragma once

#include <array>
#include <memory>
#include <string>

#include "controls/prog_bar.h"
#include "base/colour.h"
#include "core/store.h"
#include "platform/scheduler.h"

namespace lumaris {

class DeskContext;
class SequenceDesk;

// Runs the chase selected on the sequence desk. The step timer moves to the
// next step once per step duration; the level timer rebuilds Chase_Out ten
// times a second, lighting each step's levels for the first Time seconds of the
// step, fading where the channel's function says so. The output cycle merges
// Chase_Out by highest level.
//
// A fade channel in a step with Time 0 jumps to the step's level (nothing to
// divide by); such a step lights nothing anyway. A manual step while running
// never stops the chase: only the step timer counts passes.
class ChaseRuntime {
 public:
  static constexpr int kLevelInterval = 100;  // ms

  ChaseRuntime(DeskContext& context, SequenceDesk& desk);

  void Go_Stop();
  void Start_Chase();
  // `from_button`: the operator stopped it, so the display moves on one step first.
  void Stop_Chase(bool from_button);
  void Enter_Step(bool starting = false);
  void Advance_Step();  // the step timer's tick
  void Fade_Tick();     // the level timer's tick
  // Smooth output: Chase_Out at `now_ms`, between the level ticks. At a tick's
  // own moment it is what that tick wrote; between two ticks it runs straight
  // from one tick's levels to the next's. A fade's last level that no frame
  // carried before the step moved on is held for the next frame.
  void sample_output(double now_ms);
  void Set_Live_Mode(bool checked);
  // A step change by hand (Chase_Plus, Chase_Minus): restarts the step's timing.
  void step_changed();

  bool Chase_Running() const { return running_; }
  bool Live_Output() const { return live_output_; }
  int Loop_Count() const { return loop_count_; }
  double Fade_Level(int k) const { return fade_level_[k]; }
  double Fade_Elapsed() const { return fade_ticks_ / 10.0; }
  double Step_Elapsed() const { return step_ticks_ / 10.0; }

  Timer& step_timer() { return *step_timer_; }
  Timer& level_timer() { return *level_timer_; }

  // Controls of the running part of the desk.
  const std::string& Chase_Go_Button() const { return go_caption_; }
  Rgb Chase_Go_Button_colour() const { return go_colour_; }
  int master_fader() const { return master_fader_; }
  void set_master_fader(int value) { master_fader_ = value; }
  bool Live_Mode_Sel() const { return live_mode_sel_; }
  bool Live_Mode_Sel_enabled() const { return live_mode_enabled_; }
  const ProgBar& Fade_Bar() const { return fade_bar_; }
  const ProgBar& Step_Bar() const { return step_bar_; }

  // The sequence desk's level of a chase channel's level L, as Chase_Out takes it.
  double scaled(double level) const { return (255 - master_fader_) * level / 255.0; }

 private:
  void set_step_interval();
  void clear_output(int count = kDeskChannels);
  void write_output(double progress, bool paint);
  bool window_open() const;
  void step_began();

  DeskContext& context_;
  SequenceDesk& desk_;
  std::unique_ptr<Timer> step_timer_;
  std::unique_ptr<Timer> level_timer_;
  bool running_ = false;
  bool live_output_ = false;
  int loop_count_ = 0;
  std::array<double, kChaseChannels> fade_level_{};
  std::array<double, kChaseChannels> fade_inc_{};
  // Elapsed times are counted in level ticks, so that ten ticks are exactly one
  // second and a fade window of a multiple of 0.1 s has exactly that many ticks.
  int fade_ticks_ = 1;
  int step_ticks_ = 0;
  // Smooth output: when the levels last changed (a tick or a new step) and
  // when the next level tick falls due.
  double anchor_ms_ = 0;
  double next_tick_ms_ = 0;
  bool final_unseen_ = false;  // the fade's last level is written, no frame took it yet
  bool hold_final_ = false;
  bool clear_after_hold_ = false;  // the chase has ended; clear once the held frame went out
  bool saved_global_speed_ = false;
  bool saved_global_fade_ = false;

  std::string go_caption_ = "Go";
  Rgb go_colour_ = kGreen;
  int master_fader_ = 0;
  bool live_mode_sel_ = false;
  bool live_mode_enabled_ = true;
  ProgBar fade_bar_;
  ProgBar step_bar_;
};

}  // namespace lumaris
