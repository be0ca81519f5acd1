#pragma once

#include <functional>

#include "platform/scheduler.h"

namespace lumaris {

// Timers on QTimer (Qt::PreciseTimer for the high-resolution ones) on the thread
// that owns the desk. Ticks never nest: a tick due while another engine event is
// running (a modal dialog's event loop) is skipped, and the timer's next interval
// brings the next one. After each tick the skin is told to re-sync its windows.
class QtScheduler final : public Scheduler {
 public:
  std::unique_ptr<Timer> create_timer(bool high_resolution = false) override;
  void post(std::function<void()> work) override;

  void set_after_event(std::function<void()> after_event) { after_event_ = std::move(after_event); }

  // Runs one engine event to completion, unless one is already running.
  bool run_event(const std::function<void()>& work);

 private:
  std::function<void()> after_event_;
  bool in_event_ = false;
};

}  // namespace lumaris
