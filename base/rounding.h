#pragma once

#include <cstdint>

namespace lumaris {

// Every double-to-integer conversion of the desk: to nearest, halves to even.
int round_half_even(double value);

// Scales a level by one, two or three factors out of 255 (mode 2, 3, 4);
// mode 1 passes the level, any other mode gives 0.
std::int16_t Level_Scale(int level, int f1, int f2, int f3, int mode);

// Percent to level as the command line and the control surface convert it.
int percent_to_level(double percent);

}  // namespace lumaris
