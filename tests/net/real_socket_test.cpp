// The real socket, on 127.0.0.1 only, inside a network namespace made for the
// test: a forked child leaves the computer's network with unshare(CLONE_NEWNET)
// and brings up its own loopback. Where that is not allowed the test is skipped
// and no socket is opened at all.
#include <gtest/gtest.h>
#include <net/if.h>
#include <netinet/in.h>
#include <poll.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <functional>
#include <string>

#include "platform/linux/posix_udp_socket.h"
#include "console/output_cycle.h"
#include "net/sacn_packets.h"
#include "tests/net/art_net_desk.h"
#include "tests/support/test_console.h"

namespace lumaris {

namespace {

constexpr int kNoNamespace = 77;

bool bring_loopback_up() {
  const int fd = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  if (fd < 0) return false;
  ifreq request{};
  std::strncpy(request.ifr_name, "lo", IFNAMSIZ - 1);
  bool ok = ::ioctl(fd, SIOCGIFFLAGS, &request) == 0;
  request.ifr_flags = static_cast<short>(request.ifr_flags | IFF_UP);
  ok = ok && ::ioctl(fd, SIOCSIFFLAGS, &request) == 0;
  ::close(fd);
  return ok;
}

// Runs `body` in a child inside a fresh network namespace. The body returns an
// empty text on success or what went wrong.
void run_in_own_network(const std::function<std::string()>& body) {
  int pipe_fds[2];
  ASSERT_EQ(::pipe(pipe_fds), 0);
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    ::close(pipe_fds[0]);
    if (::unshare(CLONE_NEWNET) != 0 || !bring_loopback_up()) ::_exit(kNoNamespace);
    const std::string failure = body();
    if (!failure.empty()) {
      [[maybe_unused]] const auto written = ::write(pipe_fds[1], failure.data(), failure.size());
    }
    ::_exit(failure.empty() ? 0 : 1);
  }
  ::close(pipe_fds[1]);
  std::string report;
  char buffer[256];
  for (ssize_t n; (n = ::read(pipe_fds[0], buffer, sizeof buffer)) > 0;) {
    report.append(buffer, static_cast<std::size_t>(n));
  }
  ::close(pipe_fds[0]);
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFEXITED(status));
  if (WEXITSTATUS(status) == kNoNamespace) {
    GTEST_SKIP() << "cannot make a network namespace here (needs root and unshare); "
                    "the real socket is not tested";
  }
  EXPECT_EQ(WEXITSTATUS(status), 0) << report;
}

// Waits for the socket to become readable, then reads what arrived.
bool read_when_ready(PosixUdpSocket& socket) {
  pollfd watch{socket.descriptor(), POLLIN, 0};
  if (::poll(&watch, 1, 2000) != 1) return false;
  socket.read_pending();
  return true;
}

}  // namespace

TEST(RealSocket, LocalAddressIsTheFirstUpNonLoopbackIpv4) {
  EXPECT_EQ(choose_local_address({{"127.0.0.1", true, true},
                                  {"192.168.9.9", false, false},
                                  {"", true, false},
                                  {"10.1.2.3", true, false},
                                  {"2.0.0.1", true, false}}),
            "10.1.2.3");
  EXPECT_EQ(choose_local_address({{"127.0.0.1", true, true}}), "");
}

// Datagrams themselves travel in the desk's tests below; how the desk shows a
// refused send, in ArtNetNode's tests.
TEST(RealSocket, APortIsSharedUnlessHeldAndBroadcastIsRefusedWhileOff) {
  run_in_own_network([]() -> std::string {
    const int holder = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    sockaddr_in any{};
    any.sin_family = AF_INET;
    any.sin_port = htons(6454);
    if (::bind(holder, reinterpret_cast<const sockaddr*>(&any), sizeof any) != 0) return "holder bind";
    const auto held = PosixUdpSocket().bind(6454, {});
    ::close(holder);
    if (!held || held->empty()) return "a port held without sharing should refuse the bind";
    PosixUdpSocket socket;
    if (socket.local_address() != "") return "only loopback should be up in the namespace";
    const auto networks = socket.local_networks();
    if (networks.size() != 1 || networks[0].address != "127.0.0.1" || networks[0].netmask != "255.0.0.0") {
      return "the namespace's one network is 127.0.0.1/8";
    }
    if (socket.bind(6454, {})) return "bind 6454 failed";
    if (PosixUdpSocket().bind(6454, "127.0.0.1")) return "another Art-Net program should share 6454";
    socket.set_remote_port(6454);
    socket.set_broadcast(false);
    // The kernel refuses the loopback network's broadcast address; the limited one is refused before it.
    for (const char* broadcast : {"127.255.255.255", "255.255.255.255"}) {
      socket.set_remote_host(broadcast);
      const auto error = socket.send(std::vector<std::uint8_t>{'A', 'r', 't'});
      if (error != "the destination is a broadcast address (Permission denied)") {
        return std::string("sending to ") + broadcast + " was not refused as a broadcast";
      }
    }
    return {};
  });
}

TEST(RealSocket, DeskSendsArtDmxAndAnswersPolls) {
  run_in_own_network([]() -> std::string {
    PosixUdpSocket socket;
    MemorySettings settings;
    settings.write(ArtNetNode::kDestinationSetting, "127.0.0.1");
    std::ostringstream log;
    TestConsole desk;
    desk.services.art_socket = &socket;
    desk.services.settings = &settings;
    desk.services.diagnostics = &log;
    Console& console = desk.build();
    console.main_desk().Menu_Click("art-net-setup");
    if (console.art_net_setup().state_box() != " Art-Net Initialized") return console.art_net_setup().state_box();
    if (console.art_net().Art_Broadcast() != "127.0.0.1") return "destination not used";

    console.art_net_setup().enable_button_clicked(0);
    desk.scheduler.advance(100);  // one ArtDmx on universe 0, to 127.0.0.1:6454: ourselves
    if (console.art_net().send_error()) return "ArtDmx not sent: " + *console.art_net().send_error();
    if (!read_when_ready(socket)) return "the ArtDmx did not arrive";
    desk.scheduler.run_posted();
    if (!console.art_net().Art_Dmx_Seen()) return "the ArtDmx was not recognised";

    // A controller on another port polls; the reply goes to the destination as well.
    PosixUdpSocket controller;
    if (controller.bind(6455, "127.0.0.1")) return "controller bind failed";
    controller.set_remote_host("127.0.0.1");
    controller.set_remote_port(6454);
    const std::vector<std::uint8_t> poll{'A', 'r', 't', '-', 'N', 'e', 't', 0, 0x00, 0x20, 0, 14, 0, 0};
    controller.send(poll);
    console.art_net_setup().enable_button_clicked(0);  // stop sending frames: only the reply follows
    if (!read_when_ready(socket)) return "the poll did not arrive";
    desk.scheduler.run_posted();
    if (!read_when_ready(socket)) return "no reply arrived";
    desk.scheduler.run_posted();
    const std::string text = log.str();
    if (text.find("ArtPoll Recieved\n") == std::string::npos) return "poll not logged: " + text;
    // The node hears its own 239-byte reply and does not know that opcode.
    if (text.find("Art-Net: NYI OpCode : 0x8448\n") == std::string::npos) return "no reply: " + text;

    console.shutdown();
    return {};
  });
}

// The sACN output through the real socket, unicast to 127.0.0.1 in the namespace:
// the run target's universe 1 arrives whole (its layout: sacn_test), and stopping ends
// it with Stream_Terminated.
TEST(RealSocket, SacnReachesLoopbackAndEndsWithTermination) {
  run_in_own_network([]() -> std::string {
    PosixUdpSocket receiver;
    if (receiver.bind(sacn::kPort, "127.0.0.1")) return "bind 5568 failed";
    std::vector<std::vector<std::uint8_t>> received;
    receiver.on_datagram([&](std::span<const std::uint8_t> d, const std::string&) { received.emplace_back(d.begin(), d.end()); });
    PosixUdpSocket sender;
    TestConsole desk;
    desk.services.sacn_socket = &sender;
    desk.services.sacn_target = "127.0.0.1";
    desk.build();
    desk.store().Desk_Level[1] = 77;
    desk.console->output_cycle().output_tick();
    if (!read_when_ready(receiver) || received.size() != 1) return "no sACN packet arrived";
    const auto& packet = received[0];
    if (packet.size() != sacn::kPacketSize) return "the packet arrived with the wrong size";
    if (packet[sacn::framing::kUniverse + 1] != 1) return "not universe 1";
    if (packet[sacn::dmp::kSlotData + 1] != 77) return "channel 2 did not carry its level";
    desk.console->shutdown();
    while (received.size() < 4 && read_when_ready(receiver)) {
    }
    if (received.size() != 4) return "stopping did not send three terminations";
    if ((received[3][sacn::framing::kOptions] & sacn::framing::kOptionStreamTerminated) == 0) {
      return "the last packet does not end the stream";
    }
    return {};
  });
}

}  // namespace lumaris
