#include "platform/qt/qt_scheduler.h"

#include <algorithm>
#include <chrono>

#include <QCoreApplication>
#include <QTimer>

namespace lumaris {

namespace {

class QtTimer final : public Timer {
 public:
  QtTimer(QtScheduler& scheduler, bool high_resolution) : scheduler_(scheduler) {
    timer_.setTimerType(high_resolution ? Qt::PreciseTimer : Qt::CoarseTimer);
    QObject::connect(&timer_, &QTimer::timeout, [this] {
      if (tick_) scheduler_.run_event(tick_, this);
    });
  }

  void set_interval(int ms) override {
    interval_ = ms < 0 ? 0 : ms;
    timer_.setInterval(interval_);
    apply();
  }
  int interval() const override { return interval_; }
  void set_enabled(bool enabled) override {
    enabled_ = enabled;
    apply();
  }
  bool enabled() const override { return enabled_; }
  void on_tick(std::function<void()> tick) override { tick_ = std::move(tick); }

 private:
  // Setting the interval or enabling restarts the count; interval 0 never ticks.
  void apply() {
    if (enabled_ && interval_ > 0) {
      timer_.start(interval_);
    } else {
      timer_.stop();
    }
  }

  QtScheduler& scheduler_;
  QTimer timer_;
  int interval_ = 0;
  bool enabled_ = false;
  std::function<void()> tick_;
};

}  // namespace

std::unique_ptr<Timer> QtScheduler::create_timer(bool high_resolution) {
  return std::make_unique<QtTimer>(*this, high_resolution);
}

double QtScheduler::now_ms() const {
  using Ms = std::chrono::duration<double, std::milli>;
  return Ms(std::chrono::steady_clock::now().time_since_epoch()).count();
}

void QtScheduler::post(std::function<void()> work) {
  QMetaObject::invokeMethod(
      QCoreApplication::instance(), [this, work = std::move(work)] { run_event(work); },
      Qt::QueuedConnection);
}

bool QtScheduler::run_event(const std::function<void()>& work, const void* source) {
  return run(work, source, false);
}

void QtScheduler::run_operator_event(const std::function<void()>& work) { run(work, nullptr, true); }

bool QtScheduler::run(const std::function<void()>& work, const void* source, bool from_operator) {
  if (source != nullptr &&
      std::find(running_.begin(), running_.end(), source) != running_.end()) {
    return false;
  }
  running_.push_back(source);
  work();
  running_.pop_back();
  event_was_operator_ = from_operator;
  if (after_event_) after_event_();
  return true;
}

}  // namespace lumaris
