#include <gtest/gtest.h>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/line_printer.h"
#include "platform/log_stream.h"

namespace lumaris {
namespace {

using namespace std::chrono_literals;

// Standard output as a pipe nobody reads: a write returns only when the test
// lets it.
struct Output {
  std::mutex mutex;
  std::condition_variable changed;
  bool held = false;
  bool blocked = false;
  std::vector<std::string> written;

  void hold() { const std::lock_guard lock(mutex); held = true; }
  void release() {
    { const std::lock_guard lock(mutex); held = false; }
    changed.notify_all();
  }
  void wait_until_blocked() {
    std::unique_lock lock(mutex);
    changed.wait(lock, [this] { return blocked; });
  }
};

class HeldWriter final : public LineWriter {
 public:
  explicit HeldWriter(std::shared_ptr<Output> output) : output_(std::move(output)) {}
  bool write(std::string_view text) override {
    std::unique_lock lock(output_->mutex);
    output_->written.emplace_back(text);
    output_->blocked = output_->held;
    output_->changed.notify_all();
    output_->changed.wait(lock, [this] { return !output_->held; });
    output_->blocked = false;
    return true;
  }

 private:
  std::shared_ptr<Output> output_;
};

class NoonClock final : public TimeOfDayClock {
 public:
  TimeOfDay now() const override { return {12, 5, 9, 42}; }
};

TEST(LinePrinter, ABlockedOutputNeverHoldsUpThePrinterItLosesTheOldestLinesAndSaysHowMany) {
  auto output = std::make_shared<Output>();
  const NoonClock clock;
  auto printer = std::make_unique<LinePrinter>(std::make_unique<HeldWriter>(output), 3, &clock);
  output->hold();
  printer->print("first\n");
  output->wait_until_blocked();
  for (const char* line : {"a\n", "b\n", "c\n", "d\n", "e\n"}) printer->print(line);
  EXPECT_FALSE(printer->flush(1ms));
  output->release();
  ASSERT_TRUE(printer->flush(60s));
  EXPECT_EQ(output->written,
            (std::vector<std::string>{
                "first\n",
                "12:05:09.042 2 lines dropped here: the output was blocked, and the console does not wait for it\n",
                "c\n", "d\n", "e\n"}));

  // At exit a writer that never returns is left behind.
  output->hold();
  printer->print("last\n");
  output->wait_until_blocked();
  printer.reset();
  output->release();
}

TEST(LinePrinter, EveryLineOfTheLogStartsWithTheTimeARedrawnLineAfterItsEscapes) {
  auto output = std::make_shared<Output>();
  const NoonClock clock;
  LinePrinter printer(std::make_unique<HeldWriter>(output), 8, &clock);
  LogStream log(printer);
  log << "line: 5 @ 50\nlamp green\n\n" << std::flush;
  log << "\rline: 7" << "\x1b[K" << std::flush;
  log << "\r\x1b[Kline: 7 @ 20\n";
  ASSERT_TRUE(printer.flush(60s));
  EXPECT_EQ(output->written, (std::vector<std::string>{"12:05:09.042 line: 5 @ 50\n",
                                                        "12:05:09.042 lamp green\n", "\n",
                                                        "\r12:05:09.042 line: 7\x1b[K",
                                                        "\r\x1b[K12:05:09.042 line: 7 @ 20\n"}));
}

}  // namespace
}  // namespace lumaris
