#pragma once

#include <functional>
#include <vector>

#include "platform/scheduler.h"

namespace lumaris {

// Timers on QTimer (Qt::PreciseTimer for the high-resolution ones) on the thread
// that owns the desk. While a dialog waits for the operator, its event loop keeps
// running the show: every other timer ticks and datagrams arrive. Only a timer's
// own tick never nests inside itself: one falling due while that timer's tick is
// still running is skipped. After each event the skin re-syncs its windows.
class QtScheduler final : public Scheduler {
 public:
  std::unique_ptr<Timer> create_timer(bool high_resolution = false) override;
  void post(std::function<void()> work) override;
  double now_ms() const override;

  void set_after_event(std::function<void()> after_event) { after_event_ = std::move(after_event); }
  // While the after-event hook runs: whether the event was the operator's, from a
  // window, rather than a timer's tick, a datagram, a MIDI message or the terminal.
  bool event_was_operator() const { return event_was_operator_; }

  // Runs one engine event to completion, unless an event of the same source
  // (a timer) is still running further up; then it is skipped and false returned.
  bool run_event(const std::function<void()>& work, const void* source = nullptr);
  // Runs the operator's event from a window: never skipped.
  void run_operator_event(const std::function<void()>& work);

 private:
  std::function<void()> after_event_;
  std::vector<const void*> running_;
  bool event_was_operator_ = false;
  bool run(const std::function<void()>& work, const void* source, bool from_operator);
};

}  // namespace lumaris
