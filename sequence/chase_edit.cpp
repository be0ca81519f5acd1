#include "sequence/chase_edit.h"

#include <algorithm>

#include "base/rounding.h"

namespace lumaris {

namespace {

void move_step(ChaseRec& chase, int from, int to) {
  for (int i = 0; i < kChaseChannels; ++i) {
    chase.Data[to][i] = chase.Data[from][i];
    chase.Fade[to][i] = chase.Fade[from][i];
  }
  chase.Speed[to] = chase.Speed[from];
  chase.Time[to] = chase.Time[from];
}

std::int16_t whole_seconds(double seconds) {
  return static_cast<std::int16_t>(std::clamp(round_half_even(seconds), -32768, 32767));
}

}  // namespace

int chase_steps(const ChaseRec& chase) { return std::clamp<int>(chase.Steps, 1, kChaseSteps); }

std::int16_t next_function(std::int16_t function) {
  switch (function) {
    case kChaseOff:
      return kChaseFade;
    case kChaseFade:
      return kChaseStep;
    default:
      return kChaseOff;
  }
}

void set_function(ChaseRec& chase, int step, int channel, std::int16_t function, bool every_step) {
  if (every_step) {
    for (int s = 0; s <= chase_steps(chase); ++s) chase.Fade[s][channel] = function;
  } else {
    chase.Fade[step][channel] = function;
  }
}

bool add_step(ChaseRec& chase) {
  if (chase.Steps >= kChaseSteps) return false;
  chase.Steps = static_cast<std::int16_t>(chase_steps(chase) + 1);
  return true;
}

bool subtract_step(ChaseRec& chase) {
  if (chase.Steps <= 1) return false;
  chase.Steps = static_cast<std::int16_t>(chase_steps(chase) - 1);
  return true;
}

bool insert_step(ChaseRec& chase, int step) {
  const int steps = chase_steps(chase);
  if (chase.Steps >= kChaseSteps) return false;
  for (int s = steps; s >= step + 1; --s) move_step(chase, s, s + 1);
  for (int i = 0; i < kChaseChannels; ++i) chase.Data[step + 1][i] = 0;
  chase.Steps = static_cast<std::int16_t>(steps + 1);
  return true;
}

bool remove_step(ChaseRec& chase, int step) {
  const int steps = chase_steps(chase);
  if (chase.Steps <= 1) return false;
  for (int s = step; s <= steps - 1; ++s) move_step(chase, s + 1, s);
  chase.Steps = static_cast<std::int16_t>(steps - 1);
  return true;
}

void copy_step(const ChaseRec& chase, int step, StepClipboard& clipboard) {
  for (int i = 0; i < kChaseChannels; ++i) {
    clipboard.Copy_Data[i] = chase.Data[step][i];
    clipboard.Copy_Func[i] = chase.Fade[step][i];
  }
  clipboard.Copy_Time = whole_seconds(chase.Time[step]);
  clipboard.Copy_Speed = whole_seconds(chase.Speed[step]);
}

void paste_step(ChaseRec& chase, int step, const StepClipboard& clipboard) {
  for (int i = 0; i < kChaseChannels; ++i) {
    chase.Data[step][i] = clipboard.Copy_Data[i];
    chase.Fade[step][i] = clipboard.Copy_Func[i];
  }
  chase.Time[step] = clipboard.Copy_Time;
  chase.Speed[step] = clipboard.Copy_Speed;
}

void shift_up(ChaseRec& chase, int step) {
  auto& data = chase.Data[step];
  auto& fade = chase.Fade[step];
  std::rotate(data.begin(), data.begin() + kLevelChannels - 1, data.begin() + kLevelChannels);
  std::rotate(fade.begin(), fade.begin() + kLevelChannels - 1, fade.begin() + kLevelChannels);
}

void shift_down(ChaseRec& chase, int step) {
  auto& data = chase.Data[step];
  auto& fade = chase.Fade[step];
  std::rotate(data.begin(), data.begin() + 1, data.begin() + kLevelChannels);
  std::rotate(fade.begin(), fade.begin() + 1, fade.begin() + kLevelChannels);
}

}  // namespace lumaris
