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
// Show timers (steps, takes, fades, output) ask for high resolution: they must
// fire within a millisecond or two of their interval, not when the system
// finds it convenient.
class Scheduler {
 public:
  virtual ~Scheduler() = default;
  virtual std::unique_ptr<Timer> create_timer(bool high_resolution = false) = 0;
  // A monotonic time in milliseconds, on the clock the timers run on: what a
  // fade evaluated between ticks measures its progress with.
  virtual double now_ms() const = 0;
  virtual void post(std::function<void()> work) = 0;
};

}  // namespace lumaris
