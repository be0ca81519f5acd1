#pragma once

namespace lumaris {

// What the main desk and its windows ask of the desks built above them and of
// the program. The console implements it; a desk that is absent does nothing.
class DeskLinks {
 public:
  virtual ~DeskLinks() = default;
  // The grand master moved: the playback desk's Main fader takes the same value.
  virtual void Main_Change(int value) = 0;
  // Submix names or colours changed: the playback buttons and faders show them.
  virtual void Refresh_Playback_Panel() = 0;
  // Reset Desk has emptied the store: the playback desk is cleared and redrawn
  // under its start-up caption, the sequence desk redrawn.
  virtual void reset_desks() = 0;
  // The program's exit path: outputs closed, timers stopped.
  virtual void shutdown() = 0;
};

}  // namespace lumaris
