#include "tests/support/test_console.h"

namespace lumaris {

TestConsole::TestConsole() {
  services.scheduler = &scheduler;
  services.dialogs = &dialogs;
  services.clock = &clock;
}

Console& TestConsole::build() {
  console = std::make_unique<Console>(services);
  console->start();
  return *console;
}

}  // namespace lumaris
