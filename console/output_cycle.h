#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

#include "core/output_sink.h"
#include "core/store.h"
#include "platform/scheduler.h"

namespace lumaris {

class DeskContext;
class MainDesk;
class OutputMonitor;
class PlaybackDesk;

// The main desk's output timer: every tick mixes every source into the desk
// channels, maps them through the patch into DMX_Out, refreshes the output
// monitor and hands the frame to each output sink.
class OutputCycle {
 public:
  static constexpr int kDefaultInterval = 70;

  OutputCycle(DeskContext& context, Timer& output_timer, MainDesk& main_desk, OutputMonitor& monitor,
              PlaybackDesk& playback_desk, std::vector<OutputSink*> sinks);

  // Starts and stops the output timer and every sink with it.
  void start();
  void stop();
  void output_tick();

  Timer& output_timer() { return output_timer_; }

  // Something that ramps (a chase's fade, a take): with smooth output it is
  // asked for its level at the moment of every tick, before the mix.
  using FadeSample = std::function<void(double now_ms)>;
  void add_fade(FadeSample sample) { fades_.push_back(std::move(sample)); }

  // The levels of the last tick, index = desk channel - 1 (entry 64 is 0).
  const std::array<int, kDeskChannels + 1>& Channel_Mix() const { return channel_mix_; }
  bool last_tick_failed() const { return last_tick_failed_; }

 private:
  void mix_channels();
  int mix_normal(int i, double channels_main, double sub_main, int& submix_entry) const;
  int mix_run_mode(int i) const;
  void build_frame();
  void show_dmx_lamp(bool built);

  DeskContext& context_;
  Timer& output_timer_;
  MainDesk& main_desk_;
  OutputMonitor& monitor_;
  PlaybackDesk& playback_desk_;
  std::vector<OutputSink*> sinks_;
  std::vector<FadeSample> fades_;
  std::array<int, kDeskChannels + 1> channel_mix_{};
  bool in_tick_ = false;
  bool last_tick_failed_ = false;
};

}  // namespace lumaris
