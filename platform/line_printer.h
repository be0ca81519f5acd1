#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <thread>

namespace lumaris {

class TimeOfDayClock;

// Where printed text goes: standard output in the program, a fake in tests.
class LineWriter {
 public:
  virtual ~LineWriter() = default;
  // May block for as long as the other end does not read. False when the output
  // is gone for good; nothing more is written then.
  virtual bool write(std::string_view text) = 0;
};

// All of the text to a file descriptor, waiting for it whenever it is full.
class DescriptorWriter final : public LineWriter {
 public:
  explicit DescriptorWriter(int descriptor) : descriptor_(descriptor) {}
  bool write(std::string_view text) override;

 private:
  int descriptor_;
};

// The log of a console without a window. A terminal stopped with Ctrl-S or a
// pipe nobody reads must never hold up the output cycle or the signal handling,
// so print() only queues, and a thread of the printer's own does the writing.
// At most `capacity` pieces wait; a new one then pushes out the oldest, and once
// writing resumes one line says how many were dropped.
class LinePrinter {
 public:
  LinePrinter(std::unique_ptr<LineWriter> writer, std::size_t capacity,
              const TimeOfDayClock* clock = nullptr);
  // Never waits for a writer that is stuck: its thread is left behind, and
  // writes nothing more once it returns.
  ~LinePrinter();
  LinePrinter(const LinePrinter&) = delete;
  LinePrinter& operator=(const LinePrinter&) = delete;

  void print(std::string text);
  // Waits until all that is queued has been written, but at most `limit`. False
  // when the output did not take it in time.
  bool flush(std::chrono::milliseconds limit);
  // "HH:MM:SS.mmm " of now, the start of every log line; empty without a clock.
  std::string stamp() const;

 private:
  struct Shared;
  std::shared_ptr<Shared> shared_;
  std::thread thread_;
};

}  // namespace lumaris
