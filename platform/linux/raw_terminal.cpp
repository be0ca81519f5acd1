#include "platform/linux/raw_terminal.h"

#include <termios.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace lumaris {

namespace {

// One terminal at a time: what to put back at exit, and the raw settings to put
// back when the program is continued after Ctrl-Z (the shell hands the terminal
// back in its own, line-by-line, settings).
struct Saved {
  int descriptor = -1;
  termios settings{};
  termios raw{};
};
Saved saved;
bool exit_hook = false;
bool continue_hook = false;

void restore_at_exit() {
  if (saved.descriptor >= 0) ::tcsetattr(saved.descriptor, TCSANOW, &saved.settings);
}

// tcgetpgrp, getpgrp and tcsetattr may be called in a signal handler. Continued
// in the background (bg), the terminal is not touched: that would stop us again.
void raw_again(int) {
  if (saved.descriptor >= 0 && ::tcgetpgrp(saved.descriptor) == ::getpgrp()) {
    ::tcsetattr(saved.descriptor, TCSANOW, &saved.raw);
  }
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
  // Ctrl-S must not freeze the console's printing, and with it the show.
  settings.c_iflag &= static_cast<tcflag_t>(~IXON);
  settings.c_cc[VMIN] = 1;
  settings.c_cc[VTIME] = 0;
  if (::tcsetattr(descriptor, TCSANOW, &settings) != 0) {
    saved.descriptor = -1;
    return;
  }
  saved.raw = settings;
  if (!continue_hook) continue_hook = std::signal(SIGCONT, raw_again) != SIG_ERR;
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
