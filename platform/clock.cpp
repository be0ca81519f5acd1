#include "platform/clock.h"

#include <chrono>
#include <ctime>

namespace lumaris {

CalendarDate SystemClock::today() const {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return CalendarDate{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

TimeOfDay SystemClock::now() const {
  using namespace std::chrono;
  const auto since_epoch = system_clock::now().time_since_epoch();
  const std::time_t seconds = duration_cast<std::chrono::seconds>(since_epoch).count();
  std::tm local{};
  localtime_r(&seconds, &local);
  const auto millisecond = duration_cast<milliseconds>(since_epoch).count() % 1000;
  return TimeOfDay{local.tm_hour, local.tm_min, local.tm_sec, static_cast<int>(millisecond)};
}

}  // namespace lumaris
