#pragma once

#include <memory>

#include "console/console.h"
#include "platform/clock.h"
#include "tests/support/fake_scheduler.h"
#include "tests/support/scripted_dialogs.h"

namespace lumaris {

class FixedClock final : public Clock {
 public:
  explicit FixedClock(CalendarDate date) : date_(date) {}
  CalendarDate today() const override { return date_; }
  void set(CalendarDate date) { date_ = date; }

 private:
  CalendarDate date_;
};

// A console on fakes: virtual time, scripted dialogs, a fixed date (22/11/2026).
// Extra seams can be set in `services` before `build()`.
struct TestConsole {
  FakeScheduler scheduler;
  ScriptedDialogs dialogs;
  FixedClock clock{CalendarDate{2026, 11, 22}};
  PlatformServices services;
  std::unique_ptr<Console> console;

  TestConsole();
  // Builds and starts the console (the main desk's load, output timer running).
  Console& build();
  Store& store() { return console->store(); }
};

}  // namespace lumaris
