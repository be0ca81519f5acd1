#include "platform/linux/posix_udp_socket.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace lumaris {

namespace {
constexpr std::size_t kReceiveBuffer = 2048;  // larger than any Art-Net packet
constexpr const char* kNotOpen = "the socket is not open";
constexpr const char* kNoDestination = "no destination address";
// The kernel refuses a broadcast address with EACCES while broadcast is off; a
// subnet's broadcast address (10.255.255.255 on a /8) looks like any other.
constexpr const char* kBroadcastRefused = "the destination is a broadcast address";

std::string dotted(const sockaddr* address) {
  std::array<char, INET_ADDRSTRLEN> text{};
  const auto* v4 = reinterpret_cast<const sockaddr_in*>(address);
  if (inet_ntop(AF_INET, &v4->sin_addr, text.data(), text.size()) == nullptr) return {};
  return text.data();
}

std::string send_error(int error) {
  if (error == EACCES) return std::string(kBroadcastRefused) + " (" + std::strerror(error) + ")";
  return std::strerror(error);
}
}

std::string choose_local_address(const std::vector<InterfaceAddress>& interfaces) {
  for (const InterfaceAddress& entry : interfaces) {
    if (entry.up && !entry.loopback && !entry.ipv4.empty()) return entry.ipv4;
  }
  return {};
}

PosixUdpSocket::~PosixUdpSocket() { close(); }

std::optional<std::string> PosixUdpSocket::bind(std::uint16_t port,
                                                const std::string& local_address) {
  close();
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(port);
  address.sin_addr.s_addr = htonl(INADDR_ANY);
  if (!local_address.empty() && inet_pton(AF_INET, local_address.c_str(), &address.sin_addr) != 1) {
    return "not a local IPv4 address: " + local_address;
  }
  const int fd = ::socket(AF_INET, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (fd < 0) return std::string(std::strerror(errno));
  // Other Art-Net programs on this computer (a visualiser, a second tool) listen
  // on the same port; a program that does not share it still makes bind fail.
  const int on = 1;
  ::setsockopt(fd, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
  ::setsockopt(fd, SOL_SOCKET, SO_REUSEPORT, &on, sizeof on);
  if (::bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
    const int error = errno;
    ::close(fd);
    return std::string(std::strerror(error));
  }
  // A socket bound to one interface's address sends its multicast there too.
  if (!local_address.empty()) {
    ::setsockopt(fd, IPPROTO_IP, IP_MULTICAST_IF, &address.sin_addr, sizeof address.sin_addr);
  }
  fd_ = fd;
  apply_broadcast();
  if (listener_) listener_(fd_);
  return std::nullopt;
}

void PosixUdpSocket::close() {
  if (fd_ < 0) return;
  ::close(fd_);
  fd_ = -1;
  if (listener_) listener_(-1);
}

std::string PosixUdpSocket::local_address() const {
  ifaddrs* list = nullptr;
  if (getifaddrs(&list) != 0) return {};
  std::vector<InterfaceAddress> interfaces;
  for (const ifaddrs* entry = list; entry != nullptr; entry = entry->ifa_next) {
    InterfaceAddress item;
    item.up = (entry->ifa_flags & IFF_UP) != 0;
    item.loopback = (entry->ifa_flags & IFF_LOOPBACK) != 0;
    if (entry->ifa_addr != nullptr && entry->ifa_addr->sa_family == AF_INET) {
      std::array<char, INET_ADDRSTRLEN> text{};
      const auto* v4 = reinterpret_cast<const sockaddr_in*>(entry->ifa_addr);
      if (inet_ntop(AF_INET, &v4->sin_addr, text.data(), text.size()) != nullptr) {
        item.ipv4 = text.data();
      }
    }
    interfaces.push_back(item);
  }
  freeifaddrs(list);
  return choose_local_address(interfaces);
}

std::vector<std::string> PosixUdpSocket::broadcast_addresses() const {
  std::vector<std::string> addresses;
  ifaddrs* list = nullptr;
  if (getifaddrs(&list) != 0) return addresses;
  for (const ifaddrs* entry = list; entry != nullptr; entry = entry->ifa_next) {
    if ((entry->ifa_flags & IFF_BROADCAST) == 0 || entry->ifa_broadaddr == nullptr ||
        entry->ifa_broadaddr->sa_family != AF_INET) {
      continue;
    }
    std::array<char, INET_ADDRSTRLEN> text{};
    const auto* v4 = reinterpret_cast<const sockaddr_in*>(entry->ifa_broadaddr);
    if (inet_ntop(AF_INET, &v4->sin_addr, text.data(), text.size()) != nullptr) {
      addresses.emplace_back(text.data());
    }
  }
  freeifaddrs(list);
  return addresses;
}

std::vector<LocalNetwork> PosixUdpSocket::local_networks() const {
  std::vector<LocalNetwork> networks;
  ifaddrs* list = nullptr;
  if (getifaddrs(&list) != 0) return networks;
  for (const ifaddrs* entry = list; entry != nullptr; entry = entry->ifa_next) {
    if ((entry->ifa_flags & IFF_UP) == 0 || entry->ifa_addr == nullptr ||
        entry->ifa_addr->sa_family != AF_INET || entry->ifa_netmask == nullptr) {
      continue;
    }
    networks.push_back({dotted(entry->ifa_addr), dotted(entry->ifa_netmask)});
  }
  freeifaddrs(list);
  return networks;
}

void PosixUdpSocket::set_remote_host(const std::string& host) {
  in_addr address{};
  if (inet_pton(AF_INET, host.c_str(), &address) == 1) {
    remote_host_ = address;
  } else {
    remote_host_.reset();
  }
}

void PosixUdpSocket::set_broadcast(bool allowed) {
  broadcast_allowed_ = allowed;
  apply_broadcast();
}

void PosixUdpSocket::apply_broadcast() {
  if (fd_ < 0) return;
  const int on = broadcast_allowed_ ? 1 : 0;
  ::setsockopt(fd_, SOL_SOCKET, SO_BROADCAST, &on, sizeof on);
}

std::optional<std::string> PosixUdpSocket::send(std::span<const std::uint8_t> datagram) {
  if (fd_ < 0) return std::string(kNotOpen);
  if (!remote_host_) return std::string(kNoDestination);
  if (!broadcast_allowed_ && remote_host_->s_addr == htonl(INADDR_BROADCAST)) {
    return send_error(EACCES);
  }
  sockaddr_in to{};
  to.sin_family = AF_INET;
  to.sin_port = htons(remote_port_);
  to.sin_addr = *remote_host_;
  const ssize_t sent = ::sendto(fd_, datagram.data(), datagram.size(), MSG_NOSIGNAL,
                                reinterpret_cast<const sockaddr*>(&to), sizeof to);
  if (sent < 0) return send_error(errno);
  return std::nullopt;
}

void PosixUdpSocket::read_pending() {
  std::array<std::uint8_t, kReceiveBuffer> buffer{};
  while (fd_ >= 0) {
    sockaddr_in from{};
    socklen_t from_size = sizeof from;
    const ssize_t size = ::recvfrom(fd_, buffer.data(), buffer.size(), 0,
                                    reinterpret_cast<sockaddr*>(&from), &from_size);
    if (size < 0) {
      if (errno == EINTR) continue;
      return;  // EAGAIN: all read; other errors are dropped like the datagram
    }
    if (handler_) {
      handler_(std::span<const std::uint8_t>(buffer.data(), static_cast<std::size_t>(size)),
               dotted(reinterpret_cast<const sockaddr*>(&from)));
    }
  }
}

}  // namespace lumaris
