#pragma once

#include "sequence/chase_runtime.h"
#include "sequence/sequence_desk.h"
#include "tests/support/test_console.h"

namespace lumaris {

// A started console with the sequence desk open on chase 0.
struct SequenceTestDesk {
  TestConsole t;
  SequenceDesk* desk = nullptr;

  SequenceTestDesk() {
    t.build();
    desk = &t.console->sequence_desk();
    desk->Show();
  }
  ChaseRec& chase() { return t.store().Chase_Table[desk->Cur_Chase()]; }
  ChaseRuntime& runtime() { return desk->runtime(); }
  int out(int desk_channel) { return t.store().Chase_Out[desk_channel]; }

  // Every step of chase 0 gets the same duration and fade time; levels and
  // functions are set by the test afterwards.
  void program(int steps, double speed, double time) {
    ChaseRec& c = chase();
    c.Steps = static_cast<std::int16_t>(steps);
    for (int s = 0; s <= kChaseSteps; ++s) {
      c.Speed[s] = speed;
      c.Time[s] = time;
    }
    desk->Refresh_Desk();
  }
};

}  // namespace lumaris
