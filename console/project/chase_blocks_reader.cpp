#include "console/project/chase_blocks_reader.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace lumaris::show_reading {

namespace {

// The ranges of the sequence desk's controls that edit what a chase holds.
constexpr int kLastChaseDeskChannel = 62;  // a chase channel's box takes desk channels 1..63
constexpr int kLongestLoop = 100;          // Loop_Times
constexpr int kLastChaseFunction = kChaseStep;

bool fail_into(BlockFields& block, const BlockFields& part) {
  block.fail(part.problem());
  return false;
}

}  // namespace

bool read_chase(BlockFields& block, Store& store, LoadReport& report) {
  // The chase's own fields may stand before, between or after its steps, whose
  // Num and Data are not the chase's: search them in the block without its steps.
  std::string own;
  std::vector<std::string_view> steps;
  const std::string_view whole = block.whole();
  constexpr std::size_t kOpening = std::string_view("<Step>").size();
  constexpr std::size_t kClosing = std::string_view("</Step>").size();
  std::size_t from = 0;
  each_element(
      whole, "Step", [&](std::string_view step) { steps.push_back(step); },
      [&](std::size_t, bool) { block.fail("a <Step> has no closing tag"); });
  for (const std::string_view step : steps) {
    const auto content_begin = static_cast<std::size_t>(step.data() - whole.data());
    own.append(whole.substr(from, content_begin - kOpening - from));
    from = content_begin + step.size() + kClosing;
  }
  own.append(whole.substr(std::min(from, whole.size())));
  if (!block.ok()) return false;

  BlockFields f(own);
  const int c = f.index("Num", kChases - 1);
  if (!f.ok()) return fail_into(block, f);
  ChaseRec chase = store.Chase_Table[c];
  chase.Name = f.text("Name");
  chase.Colour = f.text("Colour");
  chase.Steps = f.clamped(f.raw_number("Steps"), 1, kChaseSteps, "Steps");
  chase.Fixture = f.clamped(f.raw_number("Fixture"), 0, kFixtures - 1, "Fixture");
  chase.Loop = f.clamped(f.raw_number("Loop"), 0, kLongestLoop, "Loop");
  f.list("Channels", chase.Channels, 0, kLastChaseDeskChannel);
  if (!f.ok()) return fail_into(block, f);
  for (const std::string_view step_text : steps) {
    BlockFields step(step_text);
    const int t = step.index("Num", kChaseSteps);
    const double speed = step.seconds("Speed");
    const double time = step.seconds("Time");
    auto data = chase.Data[t];
    auto fade = chase.Fade[t];
    auto fix = chase.Fix[t];
    step.list("Data", data, 0, 255);
    step.list("Fade", fade, kChaseOff, kLastChaseFunction);
    step.list("Fix", fix, INT16_MIN, INT16_MAX);
    if (!step.ok()) {
      block.fail("Step: " + step.problem());
      break;
    }
    chase.Speed[t] = speed;
    chase.Time[t] = time;
    chase.Data[t] = data;
    chase.Fade[t] = fade;
    chase.Fix[t] = fix;
    for (std::string& note : step.notes()) f.notes().push_back("Step " + std::to_string(t) + " " + note);
  }
  if (!block.ok()) return false;
  store.Chase_Table[c] = std::move(chase);
  for (std::string& note : f.notes()) block.notes().push_back(std::move(note));
  ++report.chases;
  return true;
}

}  // namespace lumaris::show_reading
