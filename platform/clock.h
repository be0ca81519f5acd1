#pragma once

namespace lumaris {

struct CalendarDate {
  int year = 2000;
  int month = 1;
  int day = 1;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual CalendarDate today() const = 0;
};

struct TimeOfDay {
  int hour = 0;
  int minute = 0;
  int second = 0;
  int millisecond = 0;
};

// The time of day to the millisecond, for the lines a console without a window
// prints as its log. Called from more than one thread.
class TimeOfDayClock {
 public:
  virtual ~TimeOfDayClock() = default;
  virtual TimeOfDay now() const = 0;
};

// The computer's local date and time.
class SystemClock final : public Clock, public TimeOfDayClock {
 public:
  CalendarDate today() const override;
  TimeOfDay now() const override;
};

}  // namespace lumaris
