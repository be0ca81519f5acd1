#pragma once

#include <ostream>
#include <string>
#include <string_view>

namespace lumaris {

class CLI;
class StatusLines;

// The command line on a terminal or a pipe: each byte is a key of the keypad
// (0-9 . / * + - c C, Backspace, Enter as CR or LF; "," is the decimal key of
// keypads that type a comma), and after every line that ends (Enter, or the
// full-level shortcut) the line, the lamp and the status texts are printed:
//
//   line: 5 @ 50
//   lamp green
//   status: CLI -5 @ 50
//
// A refused line (or item) adds why, e.g. "refused: level over 100%".
// Bytes of no key are skipped, and so are the escape sequences of other keys
// (arrows, Delete); a keypad in application mode (ESC O p .. ESC O y, ESC O M
// for Enter, ...) types its keys. With `live`, the line being typed is redrawn
// in place after each key, for an operator at a terminal without echo.
class TerminalKeypad {
 public:
  TerminalKeypad(CLI& cli, const StatusLines& status, std::ostream& out, bool live = false);

  void feed(std::string_view bytes);
  // The key code of one plain byte, or 0 for a byte that is no key.
  static int key_of(char byte);

 private:
  enum class Escape { None, Start, Sequence, Keypad };
  void key(int key_code);
  void report();
  int escape_key(char byte);

  CLI& cli_;
  const StatusLines& status_;
  std::ostream& out_;
  bool live_;
  bool after_cr_ = false;
  Escape escape_ = Escape::None;
};

}  // namespace lumaris
