#pragma once

#include <netinet/in.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/udp_socket.h"

namespace lumaris {

struct InterfaceAddress {
  std::string ipv4;  // dotted quad; empty for other families
  bool up = false;
  bool loopback = false;
};

// The first non-loopback IPv4 address of an interface that is up; empty when none.
std::string choose_local_address(const std::vector<InterfaceAddress>& interfaces);

// The Art-Net socket on Linux: a non-blocking IPv4 UDP socket, bound with address
// reuse so that other programs can listen on the same port (one that holds the
// port without sharing it still makes bind fail). It sends to broadcast
// addresses only while broadcast is allowed (the kernel refuses them otherwise). Arrived datagrams are read by read_pending(), which
// the owner calls when the descriptor is readable.
class PosixUdpSocket final : public UdpSocket {
 public:
  PosixUdpSocket() = default;
  ~PosixUdpSocket() override;
  PosixUdpSocket(const PosixUdpSocket&) = delete;
  PosixUdpSocket& operator=(const PosixUdpSocket&) = delete;

  std::optional<std::string> bind(std::uint16_t port, const std::string& local_address) override;
  void close() override;
  std::string local_address() const override;
  std::vector<std::string> broadcast_addresses() const override;
  std::vector<LocalNetwork> local_networks() const override;
  void set_remote_host(const std::string& host) override;
  void set_remote_port(std::uint16_t port) override { remote_port_ = port; }
  void set_broadcast(bool allowed) override;
  std::optional<std::string> send(std::span<const std::uint8_t> datagram) override;
  void on_datagram(DatagramHandler handler) override { handler_ = std::move(handler); }

  // Reads every datagram waiting and hands each to the handler.
  void read_pending();
  int descriptor() const { return fd_; }
  // Told the new descriptor after every bind and -1 after close, so that the
  // owner can watch it for arriving datagrams.
  void on_descriptor_change(std::function<void(int)> listener) { listener_ = std::move(listener); }

 private:
  void apply_broadcast();

  int fd_ = -1;
  std::optional<in_addr> remote_host_;
  std::uint16_t remote_port_ = 0;
  bool broadcast_allowed_ = false;
  DatagramHandler handler_;
  std::function<void(int)> listener_;
};

}  // namespace lumaris
