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

// The computer's local date.
class SystemClock final : public Clock {
 public:
  CalendarDate today() const override;
};

}  // namespace lumaris
