#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <vector>

#include "platform/scheduler.h"

namespace lumaris {

// Virtual time. advance(ms) fires every due tick in time order (timers due at the
// same moment fire in the order they were created), so timed behaviour is tested
// to the millisecond without waiting. advance may be called from inside a tick,
// as a dialog's event loop runs inside one: the other timers tick meanwhile and
// the waiting timer skips its ticks, as on the real event loop.
class FakeScheduler final : public Scheduler {
 public:
  FakeScheduler();
  ~FakeScheduler() override;

  std::unique_ptr<Timer> create_timer(bool high_resolution = false) override;
  void post(std::function<void()> work) override;

  void advance(std::int64_t ms);
  void run_posted();
  std::int64_t now() const { return now_; }

  struct TimerState;
  // The live timers in creation order, and how many were ever destroyed (a tick
  // may destroy timers, its own included).
  struct Registry {
    std::vector<TimerState*> timers;
    std::uint64_t destroyed = 0;
  };

 private:
  std::int64_t now_ = 0;
  std::shared_ptr<Registry> timers_;
  std::deque<std::function<void()>> posted_;
};

}  // namespace lumaris
