#include "keypad/terminal_keypad.h"

#include "core/status_lines.h"
#include "keypad/cli.h"
#include "keypad/keypad_keys.h"

namespace lumaris {

namespace {

constexpr char kEsc = '\x1b';
constexpr const char* kClearToEnd = "\x1b[K";

const char* lamp_word(Rgb lamp) {
  if (lamp == CLI::kLampDone) return "lamp green";
  if (lamp == CLI::kLampError) return "lamp red";
  return "lamp grey";
}

}  // namespace

TerminalKeypad::TerminalKeypad(CLI& cli, const StatusLines& status, std::ostream& out, bool live)
    : cli_(cli), status_(status), out_(out), live_(live) {}

int TerminalKeypad::key_of(char byte) {
  if (byte >= '0' && byte <= '9') return keys::kPad0 + (byte - '0');
  switch (byte) {
    case '.':
    case ',':
      return keys::kPadPoint;
    case '/': return keys::kPadSlash;
    case '*': return keys::kPadAsterisk;
    case '+': return keys::kPadPlus;
    case '-': return keys::kPadMinus;
    case 'c':
    case 'C':
      return keys::kLetterC;
    case '\b':
    case '\x7f':
      return keys::kBackspace;
    case '\r':
    case '\n':
      return keys::kEnter;
    default:
      return 0;
  }
}

// ESC [ ... final byte, ESC O x. Only SS3 keys of the keypad mean anything here.
int TerminalKeypad::escape_key(char byte) {
  switch (escape_) {
    case Escape::Start:
      escape_ = byte == '[' ? Escape::Sequence : byte == 'O' ? Escape::Keypad : Escape::None;
      return 0;
    case Escape::Sequence:
      if (byte >= 0x40 && byte <= 0x7e) escape_ = Escape::None;
      return 0;
    case Escape::Keypad:
      escape_ = Escape::None;
      if (byte >= 'p' && byte <= 'y') return keys::kPad0 + (byte - 'p');
      switch (byte) {
        case 'M': return keys::kEnter;
        case 'j': return keys::kPadAsterisk;
        case 'k': return keys::kPadPlus;
        case 'm': return keys::kPadMinus;
        case 'n': return keys::kPadPoint;
        case 'o': return keys::kPadSlash;
        default: return 0;
      }
    case Escape::None:
      break;
  }
  return 0;
}

void TerminalKeypad::feed(std::string_view bytes) {
  for (const char byte : bytes) {
    if (escape_ != Escape::None) {
      if (const int code = escape_key(byte)) key(code);
      continue;
    }
    if (byte == kEsc) {
      escape_ = Escape::Start;
      continue;
    }
    // CR LF is one Enter.
    const bool lf_after_cr = byte == '\n' && after_cr_;
    after_cr_ = byte == '\r';
    if (lf_after_cr) continue;
    if (const int code = key_of(byte)) key(code);
  }
  out_.flush();
}

void TerminalKeypad::key(int key_code) {
  const int ended = cli_.lines_ended();
  cli_.CLI_Key(key_code);
  if (cli_.lines_ended() != ended) {
    report();
  } else if (live_) {
    out_ << '\r' << "line: " << cli_.String_In() << kClearToEnd;
  }
}

void TerminalKeypad::report() {
  if (live_) out_ << '\r' << kClearToEnd;
  out_ << "line: " << cli_.ended_line() << '\n';
  // A query shows its answer where the line was.
  if (!cli_.String_In().empty() && cli_.String_In() != cli_.ended_line()) {
    out_ << "shows: " << cli_.String_In() << '\n';
  }
  out_ << lamp_word(cli_.CLI_Status()) << '\n';
  if (!cli_.refusal().empty()) {
    out_ << "refused: " << cli_.refusal() << (cli_.refusing() ? "; keys do nothing until Enter" : "") << '\n';
  }
  out_ << "status: " << status_.main() << '\n';
  if (status_.playback() != status_.main()) out_ << "playback status: " << status_.playback() << '\n';
}

}  // namespace lumaris
