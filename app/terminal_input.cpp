#include "app/terminal_input.h"

#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cerrno>
#include <string_view>

#include "console/console.h"
#include "keypad/cli.h"
#include "platform/linux/raw_terminal.h"
#include "platform/qt/qt_scheduler.h"

namespace lumaris {

namespace {

constexpr char kEndOfText = '\x04';  // Ctrl+D
constexpr const char* kInputEnded =
    "Keypad input has ended (Ctrl-D); the show goes on. Ctrl-C ends the console.";

}  // namespace

TerminalInput::TerminalInput(Console& console, QtScheduler& scheduler, std::ostream& out,
                             int descriptor)
    : scheduler_(scheduler), descriptor_(descriptor), console_(console), out_(out) {}

TerminalInput::~TerminalInput() { stop(); }

bool TerminalInput::reading() const { return notifier_ && notifier_->isEnabled(); }

void TerminalInput::start() {
  if (notifier_ || ::fcntl(descriptor_, F_GETFD) < 0) return;  // no standard input at all
  if (RawTerminal::background_terminal(descriptor_)) return;
  raw_ = std::make_unique<RawTerminal>(descriptor_);
  keypad_ = std::make_unique<TerminalKeypad>(console_.cli(), console_.status(), out_, raw_->active());
  notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { read(); });
}

// Called from the notifier's own signal: it is disabled here and deleted with us.
void TerminalInput::stop() {
  if (notifier_) notifier_->setEnabled(false);
  if (raw_) raw_->restore();
}

void TerminalInput::read() {
  char buffer[512];
  const ssize_t size = ::read(descriptor_, buffer, sizeof buffer);
  if (size < 0 && (errno == EINTR || errno == EAGAIN)) return;
  std::string_view bytes(buffer, size > 0 ? static_cast<std::size_t>(size) : 0);
  bool end = size <= 0;
  if (raw_->active()) {
    const std::size_t ctrl_d = bytes.find(kEndOfText);
    if (ctrl_d != std::string_view::npos) {
      bytes = bytes.substr(0, ctrl_d);
      end = true;
    }
  }
  if (!bytes.empty()) {
    scheduler_.run_event([&] {
      feeding_ = true;
      keypad_->feed(bytes);
      feeding_ = false;
    });
  }
  if (end) {
    if (raw_->active()) out_ << '\n' << kInputEnded << '\n' << std::flush;
    stop();
  }
}

}  // namespace lumaris
