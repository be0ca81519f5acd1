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
};

namespace {

class FakeTimer final : public Timer {
 public:
  FakeTimer(std::shared_ptr<FakeScheduler::Registry> registry, std::unique_ptr<FakeScheduler::TimerState> state)
      : registry_(std::move(registry)), state_(std::move(state)) {
    registry_->timers.push_back(state_.get());
  }
  ~FakeTimer() override {
    auto& timers = registry_->timers;
    timers.erase(std::remove(timers.begin(), timers.end(), state_.get()), timers.end());
    ++registry_->destroyed;
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
  std::shared_ptr<FakeScheduler::Registry> registry_;
  std::unique_ptr<FakeScheduler::TimerState> state_;
};

}  // namespace

FakeScheduler::FakeScheduler() : timers_(std::make_shared<Registry>()) {}
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
  // A day of virtual time is millions of ticks: the scan reads the fields
  // directly, and the timer is looked up again only when a tick destroyed timers.
  for (;;) {
    TimerState* next = nullptr;
    std::int64_t next_due = std::numeric_limits<std::int64_t>::max();
    TimerState* const* timer = timers_->timers.data();
    TimerState* const* const end = timer + timers_->timers.size();
    for (; timer != end; ++timer) {
      TimerState* const t = *timer;
      if (t->enabled && t->interval > 0 && t->due <= target && t->due < next_due) {
        next = t;
        next_due = t->due;
      }
    }
    if (next == nullptr) break;
    now_ = std::max(now_, next_due);
    next->due = next_due + next->interval;
    // As on the desk's own event loop: a timer whose tick is still running
    // further up (it waits in a dialog) skips the ticks that fall due meanwhile.
    if (next->ticking || !next->tick) continue;
    next->ticking = true;
    const std::uint64_t destroyed = timers_->destroyed;
    next->tick();
    const auto& timers = timers_->timers;
    if (timers_->destroyed == destroyed || std::find(timers.begin(), timers.end(), next) != timers.end()) {
      next->ticking = false;
    }
    if (!posted_.empty()) run_posted();
  }
  now_ = std::max(now_, target);
}

}  // namespace lumaris
