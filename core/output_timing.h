#pragma once

#include <optional>
#include <string>

#include "platform/settings.h"

namespace lumaris {

// How frames are paced on this computer. Smooth output is kept in the
// computer's settings, never in the show; --smooth turns it on for one run.
// Off, the desk behaves as it always has: fades move in 100 ms steps and Art-Net
// samples the frame on its own timer. On, every fade is evaluated at each
// output tick from the time elapsed, and Art-Net sends each frame as it is built.
class OutputTiming {
 public:
  static constexpr const char* kSmoothSetting = "output/smooth";
  // 44 frames a second: the fastest a full 512-slot DMX universe can go.
  static constexpr int kFastestRefresh = 23;

  void load(const Settings* settings) {
    if (settings == nullptr) return;
    smooth_ = settings->read(kSmoothSetting).value_or("") == "1";
  }
  bool smooth() const { return run_smooth_.value_or(smooth_); }
  // The operator's choice, as kept with the computer's settings.
  bool smooth_setting() const { return smooth_; }
  void set_smooth(bool on, Settings* settings) {
    smooth_ = on;
    run_smooth_.reset();
    if (settings != nullptr) settings->write(kSmoothSetting, on ? "1" : "0");
  }
  // For this run only: nothing is saved.
  void set_run_smooth(bool on) { run_smooth_ = on; }
  bool smooth_for_this_run() const { return run_smooth_.has_value(); }

 private:
  bool smooth_ = false;
  std::optional<bool> run_smooth_;
};

}  // namespace lumaris
