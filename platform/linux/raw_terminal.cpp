#include "platform/linux/raw_terminal.h"

#include <termios.h>
#include <unistd.h>

#include <cstdlib>

namespace lumaris {

namespace {

// One terminal at a time: what to put back at exit.
struct Saved {
  int descriptor = -1;
  termios settings{};
};
Saved saved;
bool exit_hook = false;

void restore_at_exit() {
  if (saved.descriptor >= 0) ::tcsetattr(saved.descriptor, TCSANOW, &saved.settings);
}

}  // namespace

bool RawTerminal::background_terminal(int descriptor) {
  return ::isatty(descriptor) && ::tcgetpgrp(descriptor) != ::getpgrp();
}

RawTerminal::RawTerminal(int descriptor) : descriptor_(descriptor) {
  // A program in the background would be stopped for touching the terminal.
  if (!::isatty(descriptor) || background_terminal(descriptor)) return;
  if (saved.descriptor >= 0) return;
  termios settings{};
  if (::tcgetattr(descriptor, &settings) != 0) return;
  saved = {descriptor, settings};
  if (!exit_hook) exit_hook = std::atexit(restore_at_exit) == 0;
  settings.c_lflag &= static_cast<tcflag_t>(~(ICANON | ECHO));
  settings.c_cc[VMIN] = 1;
  settings.c_cc[VTIME] = 0;
  if (::tcsetattr(descriptor, TCSANOW, &settings) != 0) {
    saved.descriptor = -1;
    return;
  }
  active_ = true;
}

RawTerminal::~RawTerminal() { restore(); }

void RawTerminal::restore() {
  if (!active_) return;
  active_ = false;
  restore_at_exit();
  saved.descriptor = -1;
}

}  // namespace lumaris
