#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "core/store.h"
#include "platform/scheduler.h"

namespace lumaris {

class Console;

// The main desk's output timer: every tick mixes every source into the desk
// channels, maps them through the patch into DMX_Out, refreshes the output
// monitor and hands the frame to the selected adapter. Also owns Art_Time, the
// 100 ms timer that hands the same frame to the Art-Net node.
class OutputCycle {
 public:
  static constexpr int kDefaultInterval = 70;
  static constexpr int kArtInterval = 100;

  explicit OutputCycle(Console& console);

  void start();
  void Timer1_Tick();
  void Art_Time_Tick();

  Timer& Timer1() { return *timer1_; }
  Timer& Art_Time() { return *art_time_; }

  // The levels of the last tick, index = desk channel - 1 (entry 64 is 0).
  const std::array<int, kDeskChannels + 1>& Channel_Mix() const { return channel_mix_; }
  bool last_tick_failed() const { return last_tick_failed_; }

 private:
  void mix_channels();
  int mix_normal(int i, double channels_main, double sub_main, int& submix_entry) const;
  int mix_run_mode(int i) const;
  void build_frame();

  Console& console_;
  std::unique_ptr<Timer> timer1_;
  std::unique_ptr<Timer> art_time_;
  std::array<int, kDeskChannels + 1> channel_mix_{};
  bool in_tick_ = false;
  bool last_tick_failed_ = false;
};

}  // namespace lumaris
