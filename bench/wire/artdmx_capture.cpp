// Listens on ADDRESS:PORT for SECONDS and reports, for the ArtDmx frames that
// arrived, the gaps between frames (p50, p99, max) and, for the first rise of
// slot 1 from 0, the fade figures: distinct levels, largest jump, frames that
// repeat the previous level while it moves, whether 255 arrived, and the rise:
// from the last frame at the old level to the first at the top. Figures only.
// With CHANGES (a FIFO the key driver, key_latency.cpp, reads) it also writes
// there, as it happens, every frame whose slot 1 differs from the frame before,
// the first frame too: "slot1 LEVEL AT_MS", AT_MS on CLOCK_MONOTONIC, which every
// network namespace of the machine shares with the driver's Enter stamps.
// SIGTERM ends the capture early, with its figures.

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <vector>

namespace {

volatile std::sig_atomic_t stop_requested = 0;
void request_stop(int) { stop_requested = 1; }

double percentile(std::vector<double> values, double p) {
  if (values.empty()) return 0;
  std::sort(values.begin(), values.end());
  const auto index = static_cast<std::size_t>(p * static_cast<double>(values.size() - 1) + 0.5);
  return values[std::min(index, values.size() - 1)];
}

double monotonic_ms() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4 && argc != 5) {
    std::fprintf(stderr, "usage: artdmx_capture ADDRESS PORT SECONDS [CHANGES]\n");
    return 2;
  }
  std::signal(SIGTERM, request_stop);
  std::signal(SIGPIPE, SIG_IGN);  // the driver may be gone before the capture ends
  const int fd = socket(AF_INET, SOCK_DGRAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(std::atoi(argv[2])));
  if (fd < 0 || inet_pton(AF_INET, argv[1], &address.sin_addr) != 1 ||
      bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) {
    std::perror("artdmx_capture");
    return 2;
  }
  std::printf("listening\n");
  std::fflush(stdout);
  std::FILE* changes = argc == 5 ? std::fopen(argv[4], "w") : nullptr;  // waits for the driver
  if (argc == 5 && changes == nullptr) {
    std::perror(argv[4]);
    return 2;
  }
  const double end = monotonic_ms() + 1000.0 * std::atoi(argv[3]);
  std::vector<double> arrivals;
  std::vector<int> levels;
  unsigned char packet[1024];
  while (!stop_requested && monotonic_ms() < end) {
    pollfd p{fd, POLLIN, 0};
    if (poll(&p, 1, 50) <= 0) continue;
    const ssize_t size = recv(fd, packet, sizeof packet, 0);
    if (size < 19 || packet[8] != 0x00 || packet[9] != 0x50) continue;  // ArtDmx only
    const double at = monotonic_ms();
    if (changes != nullptr && (levels.empty() || levels.back() != packet[18])) {
      std::fprintf(changes, "slot1 %d %.3f\n", packet[18], at);
      std::fflush(changes);
    }
    arrivals.push_back(at);
    levels.push_back(packet[18]);
  }
  std::vector<double> gaps;
  for (std::size_t i = 1; i < arrivals.size(); ++i) gaps.push_back(arrivals[i] - arrivals[i - 1]);
  std::printf("frames %zu gap p50 %.2f ms p99 %.2f ms max %.2f ms\n", arrivals.size(),
              percentile(gaps, 0.5), percentile(gaps, 0.99),
              gaps.empty() ? 0.0 : *std::max_element(gaps.begin(), gaps.end()));
  const auto rise = std::find_if(levels.begin(), levels.end(), [](int l) { return l > 0; });
  if (rise == levels.begin() || rise == levels.end()) {
    std::printf("fade none seen on slot 1\n");
    return 0;
  }
  const std::size_t first = static_cast<std::size_t>(rise - levels.begin());
  std::set<int> seen{levels[first - 1]};
  int jump = 0, repeated = 0;
  std::size_t top = first;  // the first frame at the fade's highest level
  for (std::size_t i = first; i < levels.size() && levels[i] >= levels[i - 1]; ++i) {
    seen.insert(levels[i]);
    jump = std::max(jump, levels[i] - levels[i - 1]);
    if (levels[i] == levels[i - 1] && levels[i] > 0 && levels[i] < 255) ++repeated;
    if (levels[i] > levels[top]) top = i;
  }
  std::printf("fade distinct %zu largest-jump %d repeated %d final-255 %s rise %.2f s\n",
              seen.size(), jump, repeated, seen.count(255) ? "yes" : "no",
              (arrivals[top] - arrivals[first - 1]) / 1000.0);
  return 0;
}
