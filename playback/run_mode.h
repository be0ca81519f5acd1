#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/colour.h"
#include "platform/scheduler.h"

namespace lumaris {

class DeskContext;
class PlaybackChases;

// Run mode of the playback desk: one screen live, the next waiting, takes by
// hand on the crossfader `Run_Crossfade` or automatic over the incoming
// screen's fade time, and screens flagged Auto chaining on after their delay.
// It writes the run-mode state of the store (Run_Mode, the take flags,
// Crossfade_Level, Run_Screen, Playback_Run_Out); the output cycle mixes from it.
//
// Choices where the desk's rules leave room:
// - A screen with fade time 0 is a snap: the take completes on its first tick.
// - A resumed take goes on at the take's own step and interval (with smooth
//   output, at 255 levels per fade time from where it resumed), so it finishes
//   the remaining part at the screen's pace.
// - When a take completes, each chase's incoming level becomes its level
//   (Seq_Level <- Seq_Level_In) and chases the incoming screen does not hold
//   stop: the chase mix reads the same at the last step of the take and after.
// - A chase already running when the incoming screen starts it keeps running
//   rather than jumping back to step 1.
// - The crossfader rests at its end once a take completes; moving it while no
//   take is in progress only takes once it passes its threshold.
class RunMode {
 public:
  static constexpr const char* kAutoTakeCaption = "Auto Take";
  static constexpr int kLastNext = 199;  // Run_screen_sel takes 0 < v < 199

  // What run mode needs of the rest of the desk.
  struct Desk {
    std::function<int()> output_interval;       // I: the output cycle's interval, ms
    std::function<void()> refresh_main_desk;    // the main desk redraws its faders
    std::function<void()> refresh_playback;     // panel redraw and live output
    std::function<void(int)> set_preset_value;  // the Preset master's slider
    std::function<void(int)> show_screen;       // Screen_Num_sel moves to a screen
    std::function<void(bool)> run_mode_changed; // entered (true) or left (false)
  };

  RunMode(DeskContext& context, PlaybackChases& chases, Desk desk);
  ~RunMode();
  void set_output_interval(std::function<int()> interval) { desk_.output_interval = std::move(interval); }

  void Run_Switch_Click();
  // Leaves run mode without asking (the show is being replaced); takes stop.
  void stop();
  void Run_Autotake_Click() { Autotake(next_screen_); }
  void Autotake(int target);
  void Run_Crossfade_Change(int value);
  void Run_screen_sel_Change(int value);
  void Complete_Take();
  void Compute_Run_Output();
  void take_tick();
  void Delay_Timer_Tick();
  // Smooth output: an automatic take's Crossfade_Level follows the time since
  // it started or resumed, at every output frame and every take tick alike, so
  // each frame carries the level of its moment and the take lasts its fade time.
  // A pause keeps the level the last frame showed.
  void sample_output(double now_ms);

  // What the operator sees.
  int Run_Crossfade() const { return crossfader_; }
  int Run_screen_sel() const { return next_screen_; }
  std::string Run_nxtscreen() const { return std::to_string(next_screen_); }
  const std::string& Run_Fade_Time() const { return fade_time_text_; }
  const std::string& Run_A() const { return side_a_.name; }
  const std::string& Run_A_Num() const { return side_a_.number; }
  const std::string& Run_B() const { return side_b_.name; }
  const std::string& Run_B_Num() const { return side_b_.number; }
  Paint side_a_colour() const { return side_a_.colour; }
  Paint side_b_colour() const { return side_b_.colour; }
  const std::string& Run_Switch_caption() const { return switch_caption_; }
  Paint Run_Switch_colour() const { return switch_colour_; }
  const std::string& Run_Autotake_caption() const { return autotake_caption_; }
  Paint Run_Autotake_colour() const { return autotake_colour_; }

  // The desk's own state of a take.
  int Next_Screen() const { return next_screen_; }
  int Prev_Screen() const { return prev_screen_; }
  bool Next_On_A() const { return next_on_a_; }
  int Last_Crossfade() const { return last_crossfade_; }
  int Fade_Step() const { return fade_step_; }
  int Delay_Count() const { return delay_count_; }
  Timer& take_timer() { return *take_timer_; }
  Timer& Delay_Timer() { return *delay_timer_; }

  // Told after every change the operator can see (the Qt window re-syncs).
  void on_change(std::function<void()> listener) { changed_ = std::move(listener); }

 private:
  struct Side {
    std::string name;
    std::string number;
    Paint colour;
  };

  void enter();
  void leave();
  void new_take(int target);
  void resume();
  void pause();
  void start_timer();
  void move_take_to(double now_ms);
  void show_side(Side& side, int screen);
  void show_sides(int outgoing, int incoming);
  void paint_sides(Paint a, Paint b);
  void show_crossfade();
  void take_screen_onto_desk();
  void hand_over_sequences();
  void status(const std::string& text);
  void notify();
  bool take_in_progress() const;

  DeskContext& context_;
  PlaybackChases& chases_;
  Desk desk_;
  std::unique_ptr<Timer> take_timer_;
  std::unique_ptr<Timer> delay_timer_;
  std::function<void()> changed_;

  int crossfader_ = 255;
  int next_screen_ = 1;
  int prev_screen_ = 1;
  bool next_on_a_ = false;
  int last_crossfade_ = 255;
  int fade_step_ = 0;
  int delay_count_ = 0;
  // When and from which level the automatic take started or resumed.
  double take_start_ms_ = 0;
  int take_start_level_ = 0;
  std::string fade_time_text_;
  Side side_a_;
  Side side_b_;
  std::string switch_caption_ = "Run";
  Paint switch_colour_;
  std::string autotake_caption_ = kAutoTakeCaption;
  Paint autotake_colour_;
};

}  // namespace lumaris
