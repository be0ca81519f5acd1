#include "tests/support/fake_scheduler.h"

#include <algorithm>
#include <limits>

namespace lumaris {

struct FakeScheduler::TimerState {
  const std::int64_t* now = nullptr;
  int interval = 0;
  bool enabled = false;
  std::int64_t due = 0;
  bool ticking = false;
  std::function<void()> tick;

  void restart() { due = *now + interval; }
  bool armed() const { return enabled && interval > 0; }
};

namespace {

class FakeTimer final : public Timer {
 public:
  FakeTimer(std::shared_ptr<std::vector<FakeScheduler::TimerState*>> registry,
            std::unique_ptr<FakeScheduler::TimerState> state)
      : registry_(std::move(registry)), state_(std::move(state)) {
    registry_->push_back(state_.get());
  }
  ~FakeTimer() override {
    auto& timers = *registry_;
    timers.erase(std::remove(timers.begin(), timers.end(), state_.get()), timers.end());
  }

  void set_interval(int ms) override {
    state_->interval = std::max(ms, 0);
    state_->restart();
  }
  int interval() const override { return state_->interval; }
  void set_enabled(bool enabled) override {
    state_->enabled = enabled;
    if (enabled) state_->restart();
  }
  bool enabled() const override { return state_->enabled; }
  void on_tick(std::function<void()> tick) override { state_->tick = std::move(tick); }

 private:
  std::shared_ptr<std::vector<FakeScheduler::TimerState*>> registry_;
  std::unique_ptr<FakeScheduler::TimerState> state_;
};

}  // namespace

FakeScheduler::FakeScheduler() : timers_(std::make_shared<std::vector<TimerState*>>()) {}
FakeScheduler::~FakeScheduler() = default;

std::unique_ptr<Timer> FakeScheduler::create_timer(bool) {
  auto state = std::make_unique<TimerState>();
  state->now = &now_;
  return std::make_unique<FakeTimer>(timers_, std::move(state));
}

void FakeScheduler::post(std::function<void()> work) { posted_.push_back(std::move(work)); }

void FakeScheduler::run_posted() {
  while (!posted_.empty()) {
    auto work = std::move(posted_.front());
    posted_.pop_front();
    work();
  }
}

void FakeScheduler::advance(std::int64_t ms) {
  const std::int64_t target = now_ + ms;
  run_posted();
  for (;;) {
    TimerState* next = nullptr;
    std::int64_t next_due = std::numeric_limits<std::int64_t>::max();
    for (TimerState* timer : *timers_) {
      if (timer->armed() && timer->due <= target && timer->due < next_due) {
        next = timer;
        next_due = timer->due;
      }
    }
    if (next == nullptr) break;
    now_ = std::max(now_, next_due);
    next->due = next_due + next->interval;
    // As on the desk's own event loop: a timer whose tick is still running
    // further up (it waits in a dialog) skips the ticks that fall due meanwhile.
    if (next->ticking || !next->tick) continue;
    next->ticking = true;
    next->tick();
    const auto& timers = *timers_;
    if (std::find(timers.begin(), timers.end(), next) != timers.end()) next->ticking = false;
    run_posted();
  }
  now_ = std::max(now_, target);
}

}  // namespace lumaris
