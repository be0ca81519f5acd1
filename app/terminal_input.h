#pragma once

#include <memory>
#include <ostream>

#include "keypad/terminal_keypad.h"

class QSocketNotifier;

namespace lumaris {

class Console;
class QtScheduler;
class RawTerminal;

// The command line on the program's standard input: from a terminal key by key
// (read raw, its settings restored on every way out), from a pipe or a file byte
// by byte. End of input (or Ctrl+D at a terminal) stops the reading, never the
// console. Each read is one desk event.
class TerminalInput {
 public:
  TerminalInput(Console& console, QtScheduler& scheduler, std::ostream& out, int descriptor = 0);
  ~TerminalInput();
  TerminalInput(const TerminalInput&) = delete;
  TerminalInput& operator=(const TerminalInput&) = delete;

  void start();
  // True while keys are being handled: the keypad reports the status texts itself.
  bool feeding() const { return feeding_; }
  bool reading() const;

 private:
  void read();
  void stop();

  QtScheduler& scheduler_;
  int descriptor_;
  std::unique_ptr<RawTerminal> raw_;
  std::unique_ptr<TerminalKeypad> keypad_;
  std::unique_ptr<QSocketNotifier> notifier_;
  bool feeding_ = false;
  Console& console_;
  std::ostream& out_;
};

}  // namespace lumaris
