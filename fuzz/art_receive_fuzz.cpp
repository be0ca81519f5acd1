// Any datagram at all reaching the Art-Net node: it must never crash, and what
// it answers is always one whole ArtPollReply.
#include <cstdint>
#include <cstdlib>
#include <span>

#include "net/art_net_setup.h"
#include "net/art_net_node.h"
#include "tests/support/fake_udp.h"
#include "tests/support/test_console.h"

namespace {

struct Node {
  lumaris::FakeUdp udp;
  lumaris::TestConsole desk;
  Node() {
    desk.services.art_socket = &udp;
    desk.build();
    desk.console->art_net_setup().Form_Load();
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Node node;  // one desk for the whole run, like the real program
  node.udp.clear_sent();
  node.desk.console->art_net().Art_Receive(std::span<const std::uint8_t>(data, size), "192.168.1.20");
  for (const auto& sent : node.udp.sent()) {
    if (sent.bytes.size() != 239) std::abort();
  }
  return 0;
}
