#include "base/rounding.h"

#include <cfenv>
#include <cmath>

namespace lumaris {

int round_half_even(double value) {
  // nearbyint honours the current rounding mode; the desk always runs in the
  // default to-nearest-even mode, but a library could have changed it.
  if (std::fegetround() != FE_TONEAREST) std::fesetround(FE_TONEAREST);
  return static_cast<int>(std::nearbyint(value));
}

std::int16_t Level_Scale(int level, int f1, int f2, int f3, int mode) {
  double scaled = 0.0;
  switch (mode) {
    case 1:
      return static_cast<std::int16_t>(level);
    case 2:
      if (level < 1 || f1 < 1) return 0;
      scaled = level * (f1 / 255.0);
      break;
    case 3:
      if (level < 1 || f1 < 1) return 0;
      scaled = level * (f1 / 255.0) * (f2 / 255.0);
      break;
    case 4:
      if (level < 1 || f1 < 1 || f2 < 1 || f3 < 1) return 0;
      scaled = level * (f1 / 255.0) * (f2 / 255.0) * (f3 / 255.0);
      break;
    default:
      return 0;
  }
  return static_cast<std::int16_t>(round_half_even(scaled));
}

// percent * 255 / 100 rather than percent * 2.55: 2.55 has no exact binary form
// and 50 % would come out below 127.5.
int percent_to_level(double percent) { return round_half_even(percent * 255.0 / 100.0); }

}  // namespace lumaris
