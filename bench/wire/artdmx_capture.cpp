// Listens on ADDRESS:PORT for SECONDS and reports, for the ArtDmx frames that
// arrived, the gaps between frames (p50, p99, max) and, for the first rise of
// slot 1 from 0, the fade figures: distinct levels, largest jump, frames that
// repeat the previous level while it moves, whether 255 arrived. Figures only.

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <vector>

namespace {

double percentile(std::vector<double> values, double p) {
  if (values.empty()) return 0;
  std::sort(values.begin(), values.end());
  const auto index = static_cast<std::size_t>(p * static_cast<double>(values.size() - 1) + 0.5);
  return values[std::min(index, values.size() - 1)];
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "usage: artdmx_capture ADDRESS PORT SECONDS\n");
    return 2;
  }
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
  using Clock = std::chrono::steady_clock;
  const auto end = Clock::now() + std::chrono::seconds(std::atoi(argv[3]));
  std::vector<double> arrivals;
  std::vector<int> levels;
  unsigned char packet[1024];
  while (Clock::now() < end) {
    pollfd p{fd, POLLIN, 0};
    if (poll(&p, 1, 50) <= 0) continue;
    const ssize_t size = recv(fd, packet, sizeof packet, 0);
    if (size < 19 || packet[8] != 0x00 || packet[9] != 0x50) continue;  // ArtDmx only
    arrivals.push_back(std::chrono::duration<double, std::milli>(Clock::now().time_since_epoch()).count());
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
  std::size_t i = static_cast<std::size_t>(rise - levels.begin()) - 1;
  std::set<int> seen{levels[i]};
  int jump = 0, repeated = 0;
  for (++i; i < levels.size() && levels[i] >= levels[i - 1]; ++i) {
    seen.insert(levels[i]);
    jump = std::max(jump, levels[i] - levels[i - 1]);
    if (levels[i] == levels[i - 1] && levels[i] > 0 && levels[i] < 255) ++repeated;
  }
  std::printf("fade distinct %zu largest-jump %d repeated %d final-255 %s\n", seen.size(), jump,
              repeated, seen.count(255) ? "yes" : "no");
  return 0;
}
