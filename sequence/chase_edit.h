#pragma once

#include <array>
#include <cstdint>

#include "core/store.h"

namespace lumaris {

// Chase channels 0..17 are level channels with faders; 18..23 belong to the moving desk.
inline constexpr int kLevelChannels = 18;

// The step clipboard of the sequence desk: levels and functions of the 24 chase
// channels, and the step's fade time and duration in whole seconds.
struct StepClipboard {
  std::array<std::int16_t, kChaseChannels> Copy_Data{};
  std::array<std::int16_t, kChaseChannels> Copy_Func{};
  std::int16_t Copy_Time = 0;
  std::int16_t Copy_Speed = 0;
};

// The number of steps a chase plays, kept to 1..32 even when a show file says otherwise.
int chase_steps(const ChaseRec& chase);

// Function of a channel after a click on its function button: off -> F -> S -> off.
std::int16_t next_function(std::int16_t function);

// Sets the function of one channel in one step, or in every step 0..Steps.
void set_function(ChaseRec& chase, int step, int channel, std::int16_t function, bool every_step);

// Step editing. Each returns false and changes nothing when Steps would leave 1..32.
bool add_step(ChaseRec& chase);
bool subtract_step(ChaseRec& chase);
// Opens an empty step after `step`; the new step keeps the functions, duration and
// fade time of the step that moved up out of its place.
bool insert_step(ChaseRec& chase, int step);
bool remove_step(ChaseRec& chase, int step);

void copy_step(const ChaseRec& chase, int step, StepClipboard& clipboard);
void paste_step(ChaseRec& chase, int step, const StepClipboard& clipboard);

// Rotates the level and function of the level channels of one step by one place:
// up moves channel i to i + 1 (17 to 0), down the other way.
void shift_up(ChaseRec& chase, int step);
void shift_down(ChaseRec& chase, int step);

}  // namespace lumaris
