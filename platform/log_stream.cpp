#include "platform/log_stream.h"

#include "platform/line_printer.h"

namespace lumaris {

LogStream::LogStream(LinePrinter& printer) : std::ostream(nullptr), buffer_(printer) { rdbuf(&buffer_); }

LogStream::Buffer::int_type LogStream::Buffer::overflow(int_type c) {
  if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
  const char byte = traits_type::to_char_type(c);
  if (escape_ == Escape::Start) {
    escape_ = byte == '[' ? Escape::Sequence : Escape::None;
  } else if (escape_ == Escape::Sequence) {
    if (byte >= 0x40 && byte <= 0x7e) escape_ = Escape::None;
  } else if (byte == '\x1b') {
    escape_ = Escape::Start;
  } else if (byte == '\n' || byte == '\r') {
    line_start_ = true;
  } else if (line_start_) {
    pending_ += printer_.stamp();
    line_start_ = false;
  }
  pending_ += byte;
  if (byte == '\n') hand_over();
  return c;
}

int LogStream::Buffer::sync() {
  hand_over();
  return 0;
}

void LogStream::Buffer::hand_over() {
  if (pending_.empty()) return;
  printer_.print(std::move(pending_));
  pending_.clear();
}

}  // namespace lumaris
