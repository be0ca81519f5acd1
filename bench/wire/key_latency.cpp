// Key-to-wire latency: writes key lines into the program's standard input one
// at a time, alternating channel 1 between 40 % and 60 % ("1.40", "1.60"), and
// reads from artdmx_capture's CHANGES FIFO when slot 1 took each new level.
// Before a line's Enter it stamps CLOCK_MONOTONIC; the capture stamps the frame
// on the same clock, so the difference is from Enter to the wire. Each line waits
// for its level (at most 1 s) and the next comes after a random pause of 0 to
// MAX_PAUSE_MS (default 50), so the phase against the output timer varies. The
// pause starts when a frame arrived, so it must span the slowest timer between
// key and wire (Art-Net's 100 ms without smooth output) or the phase is not
// random. Prints min, p50, p99 and max.
//   key_latency KEYS CHANGES LINES [MAX_PAUSE_MS]   (KEYS: the program's stdin FIFO)

#include <fcntl.h>
#include <poll.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr double kArrivalTimeoutMs = 1000;
constexpr double kStartTimeoutMs = 15000;
constexpr int kDefaultMaxPauseMs = 50;

double monotonic_ms() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

void sleep_ms(int ms) {
  const timespec pause{ms / 1000, (ms % 1000) * 1000000L};
  nanosleep(&pause, nullptr);
}

double percentile(std::vector<double> values, double p) {
  if (values.empty()) return 0;
  std::sort(values.begin(), values.end());
  const auto index = static_cast<std::size_t>(p * static_cast<double>(values.size() - 1) + 0.5);
  return values[std::min(index, values.size() - 1)];
}

// The capture's "slot1 LEVEL AT_MS" lines, read without blocking past a deadline.
class Changes {
 public:
  explicit Changes(int fd) : fd_(fd) {}

  // The next change that arrives before `deadline`; false at the deadline or
  // when the capture has ended.
  bool next(double deadline, int& level, double& at) {
    for (;;) {
      const std::size_t newline = pending_.find('\n');
      if (newline != std::string::npos) {
        const std::string line = pending_.substr(0, newline);
        pending_.erase(0, newline + 1);
        if (std::sscanf(line.c_str(), "slot1 %d %lf", &level, &at) == 2) return true;
        continue;
      }
      const double left = deadline - monotonic_ms();
      if (left <= 0) return false;
      pollfd p{fd_, POLLIN, 0};
      if (poll(&p, 1, static_cast<int>(left) + 1) <= 0) continue;
      char buffer[512];
      const ssize_t size = read(fd_, buffer, sizeof buffer);
      if (size <= 0) return false;
      pending_.append(buffer, static_cast<std::size_t>(size));
    }
  }

 private:
  int fd_;
  std::string pending_;
};

bool write_all(int fd, const std::string& bytes) {
  return write(fd, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4 && argc != 5) {
    std::fprintf(stderr, "usage: key_latency KEYS CHANGES LINES [MAX_PAUSE_MS]\n");
    return 2;
  }
  std::signal(SIGPIPE, SIG_IGN);  // a program that ended fails the write instead
  const int changes_fd = open(argv[2], O_RDONLY);  // waits for the capture
  const int keys_fd = open(argv[1], O_WRONLY);     // waits for the program
  const int lines = std::atoi(argv[3]);
  const int max_pause = argc == 5 ? std::atoi(argv[4]) : kDefaultMaxPauseMs;
  if (changes_fd < 0 || keys_fd < 0 || lines < 1 || max_pause < 0) {
    std::perror("key_latency");
    return 2;
  }
  Changes changes(changes_fd);
  int level = -1;
  double at = 0;
  // The program is up once its first frame has arrived.
  if (!changes.next(monotonic_ms() + kStartTimeoutMs, level, at)) {
    std::printf("latency none: no frame arrived\n");
    return 1;
  }

  std::mt19937 random(std::random_device{}());
  std::uniform_int_distribution<int> pause(0, max_pause);
  std::vector<double> latencies;
  int lost = 0;
  for (int n = 0; n < lines; ++n) {
    const int percent = n % 2 == 0 ? 40 : 60;
    const int expected = percent == 40 ? 102 : 153;  // 40 % and 60 % of 255, rounded
    sleep_ms(pause(random));
    // The keys of the line first, so that only Enter is in flight when stamped.
    if (!write_all(keys_fd, "1." + std::to_string(percent))) break;
    sleep_ms(2);
    const double enter = monotonic_ms();
    if (!write_all(keys_fd, "\n")) break;
    bool arrived = false;
    while (changes.next(enter + kArrivalTimeoutMs, level, at)) {
      if (level == expected && at >= enter) {
        arrived = true;
        break;
      }
    }
    if (arrived) {
      latencies.push_back(at - enter);
    } else {
      ++lost;
    }
  }
  std::printf("latency lines %d arrived %zu lost %d min %.2f ms p50 %.2f ms p99 %.2f ms max %.2f ms\n",
              lines, latencies.size(), lost, percentile(latencies, 0.0),
              percentile(latencies, 0.5), percentile(latencies, 0.99), percentile(latencies, 1.0));
  return lost == 0 ? 0 : 1;
}
