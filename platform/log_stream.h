#pragma once

#include <ostream>
#include <streambuf>
#include <string>

namespace lumaris {

class LinePrinter;

// A stream onto a LinePrinter for the parts that print with std::ostream (the
// terminal keypad, headless dialogs, status lines): every line that ends, and
// whatever is flushed before its end, is one piece for the printer, and every
// line starts with the printer's time stamp. A line redrawn in place ("\r",
// then the line and an erase sequence) gets its stamp after the sequences.
class LogStream final : public std::ostream {
 public:
  explicit LogStream(LinePrinter& printer);

 private:
  class Buffer final : public std::streambuf {
   public:
    explicit Buffer(LinePrinter& printer) : printer_(printer) {}

   protected:
    int_type overflow(int_type c) override;
    int sync() override;

   private:
    enum class Escape { None, Start, Sequence };
    void hand_over();

    LinePrinter& printer_;
    std::string pending_;
    bool line_start_ = true;
    Escape escape_ = Escape::None;
  };

  Buffer buffer_;
};

}  // namespace lumaris
