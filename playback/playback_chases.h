#pragma once

#include <array>
#include <functional>
#include <memory>

#include "core/store.h"
#include "platform/scheduler.h"

namespace lumaris {

class DeskContext;

// The chases started from the playback desk, run on the desk's own timers and
// independent of the sequence desk's run: one step timer chase_step_timer(q) per
// chase 0..31 and the mixing timer, which rebuilds Playback_Seq_Out every 100 ms.
//
// Loop counts as on the sequence desk: 0 plays for ever, n > 0 plays n + 1
// passes. A chase channel lights the desk channel its Channels entry names
// (stored as channel - 1), the same index Chase_Out uses. A chase lights only
// while its step timer runs, so a stopped chase goes dark rather than freezing
// on its last levels. A fade channel fades from where it stands to the step's
// level over the step's fade time; with fade time 0 it jumps.
class PlaybackChases {
 public:
  static constexpr int kStepTimers = 32;  // chases 0..31: chase 32 cannot run
  static constexpr int kMixInterval = 100;
  // A Sequence fader a screen holds starts its chase only above this level.
  static constexpr int kSequenceFaderThreshold = 10;

  // How a screen's chases come up: a recall puts them straight on Seq_Level; a
  // take brings them in on Seq_Level_In, which the chase mix crossfades against
  // the outgoing Seq_Level.
  enum class Entry { Recall, Take };

  explicit PlaybackChases(DeskContext& context);

  void Start_Sequence(int q);
  // The chase's step timer stops.
  void Stop_Sequence(int q);
  // Every step timer stops; the levels are kept.
  void Stop_All();
  // Used by the control surface and the command line for Sequence faders.
  void Set_Sequence_Level(int q, int level);
  // The chases a screen holds come up: those of its Sequence buttons that are on
  // and of its Sequence faders above kSequenceFaderThreshold, each at the level
  // its button or fader gives it, so none is started unseen at level 0. A chase
  // already running keeps its step rather than jumping back to step 1. A chase
  // started by a recalled fader keeps the speed it had; any other runs at 100 %.
  void Start_Take_Sequences(const Screen& screen, Entry entry);

  void chase_step_tick(int q);
  void mix_tick();
  // Smooth output: Playback_Seq_Out at `now_ms`, between the mixing ticks. At a
  // tick's own moment it is what that tick writes; between ticks each fading
  // channel runs straight towards the next tick's level. A fade's last level no
  // frame carried before its step moved on, or before its chase ended, is held
  // for the next frame.
  void sample_output(double now_ms);

  int Seq_Level(int q) const { return valid(q) ? seq_level_[q] : 0; }
  int Seq_Level_In(int q) const { return valid(q) ? seq_level_in_[q] : 0; }
  int Seq_Speed(int q) const { return valid(q) ? seq_speed_[q] : 0; }
  void set_Seq_Level(int q, int level);
  void set_Seq_Level_In(int q, int level);
  void set_Seq_Speed(int q, int percent);
  // All 33 playback levels to 0 (Clear All, entering run mode).
  void clear_levels();

  bool running(int q) const;
  int step(int q) const { return valid(q) ? runs_[q].step : 0; }
  int passes(int q) const { return valid(q) ? runs_[q].passes : 0; }
  Timer& chase_step_timer(int q) { return *chase_step_timers_[q]; }
  Timer& mix_timer() { return *mix_timer_; }

  // Told when a chase has played its passes and stopped, so the panel redraws.
  void on_chase_finished(std::function<void()> handler) { finished_ = std::move(handler); }

 private:
  struct Run {
    int step = 1;
    int passes = 0;
    int fade_ticks = 0;  // 100 ms ticks into the step's fade
    std::array<double, kChaseChannels> level{};
    std::array<double, kChaseChannels> increment{};
    // Smooth output: what the last mixing tick lit, kept while a held fade end waits for a frame.
    std::array<std::int16_t, kChaseChannels> shown{};
    double anchor_ms = 0;  // when the levels last moved: a mixing tick or the step's start
    bool final_unseen = false;  // the last mixing tick wrote a fade's last level, no frame took it yet
    bool hold = false;
  };

  static bool valid(int q) { return q >= 0 && q < kChases; }
  static bool runnable(int q) { return q >= 0 && q < kStepTimers; }
  void enter_step(int q, bool starting);
  void set_step_interval(int q);
  bool in_fade(int q) const;
  bool lit(int q) const;
  // The level chase channel k of chase q adds to Playback_Seq_Out at `level`.
  int contribution(int q, double level) const;
  void merge(int q, const std::array<std::int16_t, kChaseChannels>& levels);

  DeskContext& context_;
  std::array<std::unique_ptr<Timer>, kStepTimers> chase_step_timers_;
  std::unique_ptr<Timer> mix_timer_;
  std::array<std::int16_t, kChases> seq_level_{};
  std::array<std::int16_t, kChases> seq_level_in_{};
  std::array<std::int16_t, kChases> seq_speed_{};
  std::array<Run, kChases> runs_{};
  std::function<void()> finished_;
  double last_mix_ms_ = 0;
};

}  // namespace lumaris
