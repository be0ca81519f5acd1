#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/udp_socket.h"

namespace lumaris {

// A UDP socket that records what would have left the computer and delivers
// datagrams the test hands it. Nothing touches the network.
class FakeUdp final : public UdpSocket {
 public:
  struct Sent {
    std::string host;
    std::uint16_t port = 0;
    bool broadcast_allowed = false;
    std::vector<std::uint8_t> bytes;
  };

  std::optional<std::string> bind(std::uint16_t port, const std::string& local_address) override;
  void close() override { bound_port_.reset(); }
  std::string local_address() const override { return local_address_; }
  std::vector<std::string> broadcast_addresses() const override { return broadcasts_; }
  std::vector<LocalNetwork> local_networks() const override { return networks_; }
  void set_remote_host(const std::string& host) override { remote_host_ = host; }
  void set_remote_port(std::uint16_t port) override { remote_port_ = port; }
  void set_broadcast(bool allowed) override { broadcast_allowed_ = allowed; }
  std::optional<std::string> send(std::span<const std::uint8_t> datagram) override;
  void on_datagram(DatagramHandler handler) override { handler_ = std::move(handler); }

  // The test's side.
  void set_local(std::string address) { local_address_ = std::move(address); }
  void set_broadcasts(std::vector<std::string> addresses) { broadcasts_ = std::move(addresses); }
  // The next bind fails with this description, as when the port is taken.
  void fail_next_bind(std::string description) { bind_error_ = std::move(description); }
  // Every bind fails with this description until the port is released.
  void hold_port(std::string description) { port_held_ = std::move(description); }
  void release_port() { port_held_.reset(); }
  // Every send fails with this description, nothing leaves, until recover().
  void fail_sends(std::string description) { send_error_ = std::move(description); }
  void recover() { send_error_.reset(); }
  void set_networks(std::vector<LocalNetwork> networks) { networks_ = std::move(networks); }
  // A datagram from `sender`; by default a computer on the first network.
  void deliver(const std::vector<std::uint8_t>& datagram, const std::string& sender = "192.168.1.20");
  std::optional<std::uint16_t> bound_port() const { return bound_port_; }
  const std::string& bound_address() const { return bound_address_; }
  bool broadcast_allowed() const { return broadcast_allowed_; }
  const std::vector<Sent>& sent() const { return sent_; }
  void clear_sent() { sent_.clear(); }

 private:
  std::string local_address_ = "192.168.1.5";
  std::vector<std::string> broadcasts_{"192.168.1.255"};
  std::vector<LocalNetwork> networks_{{"192.168.1.5", "255.255.255.0"}, {"127.0.0.1", "255.0.0.0"}};
  std::optional<std::string> bind_error_;
  std::optional<std::string> port_held_;
  std::optional<std::string> send_error_;
  std::optional<std::uint16_t> bound_port_;
  std::string bound_address_;
  std::string remote_host_;
  std::uint16_t remote_port_ = 0;
  bool broadcast_allowed_ = false;
  DatagramHandler handler_;
  std::vector<Sent> sent_;
};

}  // namespace lumaris
