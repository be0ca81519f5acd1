#pragma once

#include <functional>
#include <memory>

namespace lumaris {

// A periodic timer with the semantics the desks were designed around: setting the
// interval or enabling restarts the count, and an interval of 0 never ticks.
class Timer {
 public:
  virtual ~Timer() = default;
  virtual void set_interval(int ms) = 0;
  virtual int interval() const = 0;
  virtual void set_enabled(bool enabled) = 0;
  virtual bool enabled() const = 0;
  virtual void on_tick(std::function<void()> tick) = 0;
};

// Hands out timers and runs work posted from other threads on the desk's thread.
class Scheduler {
 public:
  virtual ~Scheduler() = default;
  virtual std::unique_ptr<Timer> create_timer(bool high_resolution = false) = 0;
  virtual void post(std::function<void()> work) = 0;
};

}  // namespace lumaris
