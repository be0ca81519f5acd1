// Waits on ADDRESS:PORT for one ArtDmx datagram and prints what it carried:
// "universe U length L levels N" where N counts the non-zero slots, then the
// first eight levels. Exits 1 when nothing arrived within SECONDS. With LIT, it
// waits for a datagram with at least LIT non-zero slots and prints the first
// SHOWN levels (default 8).
#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

int main(int argc, char** argv) {
  if (argc < 4 || argc > 6) {
    std::fprintf(stderr, "usage: artdmx_receiver ADDRESS PORT SECONDS [LIT [SHOWN]]\n");
    return 2;
  }
  const int fd = ::socket(AF_INET, SOCK_DGRAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(std::atoi(argv[2])));
  if (fd < 0 || inet_pton(AF_INET, argv[1], &address.sin_addr) != 1 ||
      ::bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
    std::perror("bind");
    return 2;
  }
  std::puts("listening");
  std::fflush(stdout);
  const int deadline_ms = std::atoi(argv[3]) * 1000;
  const int wanted_lit = argc > 4 ? std::atoi(argv[4]) : 0;
  const int shown = argc > 5 ? std::atoi(argv[5]) : 8;
  for (int waited = 0; waited < deadline_ms; waited += 100) {
    pollfd ready{fd, POLLIN, 0};
    if (::poll(&ready, 1, 100) <= 0) continue;
    std::uint8_t packet[1024];
    const ssize_t size = ::recv(fd, packet, sizeof packet, 0);
    // "Art-Net\0", opcode 0x5000 low byte first.
    if (size < 18 || std::memcmp(packet, "Art-Net", 8) != 0 || packet[8] != 0x00 ||
        packet[9] != 0x50) {
      continue;
    }
    const int universe = packet[14] | packet[15] << 8;
    const int length = packet[16] << 8 | packet[17];
    int lit = 0;
    for (int i = 0; i < length && 18 + i < size; ++i) lit += packet[18 + i] != 0;
    if (lit < wanted_lit) continue;
    std::printf("universe %d length %d levels %d first", universe, length, lit);
    for (int i = 0; i < shown && 18 + i < size; ++i) std::printf(" %d", packet[18 + i]);
    std::printf("\n");
    return 0;
  }
  std::puts("nothing arrived");
  return 1;
}
