#pragma once

namespace lumaris {

// A terminal read key by key: no line buffering, no echo (Ctrl+C still stops
// the program). The terminal's own settings come back when this object ends and,
// should the program end without unwinding, at exit. Only a terminal of which the
// program is in the foreground is taken; anything else is left as it is.
class RawTerminal {
 public:
  explicit RawTerminal(int descriptor);
  ~RawTerminal();
  RawTerminal(const RawTerminal&) = delete;
  RawTerminal& operator=(const RawTerminal&) = delete;

  // Whether the descriptor is a terminal now read key by key.
  bool active() const { return active_; }
  // A terminal of which the program is not in the foreground: reading it would
  // stop the program (SIGTTIN), so it is not read at all.
  static bool background_terminal(int descriptor);
  void restore();

 private:
  int descriptor_;
  bool active_ = false;
};

}  // namespace lumaris
