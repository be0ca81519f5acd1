#include "platform/line_printer.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <condition_variable>
#include <cstdio>
#include <deque>
#include <mutex>

#include "platform/clock.h"

namespace lumaris {

namespace {

std::string stamp_of(const TimeOfDayClock* clock) {
  if (!clock) return {};
  const TimeOfDay time = clock->now();
  char text[24];
  std::snprintf(text, sizeof text, "%02d:%02d:%02d.%03d ", time.hour % 100, time.minute % 100,
                time.second % 100, time.millisecond % 1000);
  return text;
}

std::string dropped_notice(std::size_t count) {
  return std::to_string(count) + (count == 1 ? " line" : " lines") +
         " dropped here: the output was blocked, and the console does not wait for it\n";
}

}  // namespace

bool DescriptorWriter::write(std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = ::write(descriptor_, text.data(), text.size());
    if (written >= 0) {
      text.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno == EAGAIN) {
      pollfd ready{descriptor_, POLLOUT, 0};
      ::poll(&ready, 1, -1);
    } else if (errno != EINTR) {
      return false;
    }
  }
  return true;
}

struct LinePrinter::Shared {
  std::unique_ptr<LineWriter> writer;
  std::size_t capacity;
  const TimeOfDayClock* clock;
  std::mutex mutex;
  std::condition_variable work;
  std::condition_variable idle;
  std::deque<std::string> queue;
  std::size_t dropped = 0;
  bool writing = false;
  bool gone = false;
  bool stop = false;

  void run() {
    std::unique_lock lock(mutex);
    while (true) {
      work.wait(lock, [this] { return stop || !queue.empty(); });
      if (stop) return;
      std::string text;
      if (dropped > 0) {
        text = stamp_of(clock) + dropped_notice(dropped);
        dropped = 0;
      } else {
        text = std::move(queue.front());
        queue.pop_front();
      }
      writing = true;
      lock.unlock();
      const bool written = writer->write(text);
      lock.lock();
      writing = false;
      if (!written) {
        gone = true;
        queue.clear();
      }
      if (queue.empty()) idle.notify_all();
    }
  }
};

LinePrinter::LinePrinter(std::unique_ptr<LineWriter> writer, std::size_t capacity,
                         const TimeOfDayClock* clock)
    : shared_(std::make_shared<Shared>()) {
  shared_->writer = std::move(writer);
  shared_->capacity = capacity > 0 ? capacity : 1;
  shared_->clock = clock;
  // The thread holds the shared state too: it may outlive the printer.
  thread_ = std::thread([shared = shared_] { shared->run(); });
}

LinePrinter::~LinePrinter() {
  bool stuck = false;
  {
    const std::lock_guard lock(shared_->mutex);
    shared_->stop = true;
    stuck = shared_->writing;
  }
  shared_->work.notify_all();
  if (stuck) {
    thread_.detach();
  } else {
    thread_.join();
  }
}

void LinePrinter::print(std::string text) {
  {
    const std::lock_guard lock(shared_->mutex);
    if (shared_->gone) return;
    if (shared_->queue.size() >= shared_->capacity) {
      shared_->queue.pop_front();
      ++shared_->dropped;
    }
    shared_->queue.push_back(std::move(text));
  }
  shared_->work.notify_one();
}

bool LinePrinter::flush(std::chrono::milliseconds limit) {
  std::unique_lock lock(shared_->mutex);
  return shared_->idle.wait_for(lock, limit, [this] { return shared_->queue.empty() && !shared_->writing; });
}

std::string LinePrinter::stamp() const { return stamp_of(shared_->clock); }

}  // namespace lumaris
