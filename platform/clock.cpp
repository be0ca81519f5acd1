#include "platform/clock.h"

#include <ctime>

namespace lumaris {

CalendarDate SystemClock::today() const {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return CalendarDate{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

}  // namespace lumaris
