#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace lumaris {

// One IPv4 network this computer is on: an interface's address and netmask, as dotted quads.
struct LocalNetwork {
  std::string address;
  std::string netmask;
};

// One IPv4 UDP socket, as the Art-Net node needs it.
class UdpSocket {
 public:
  // A datagram and the address it came from, as a dotted quad.
  using DatagramHandler =
      std::function<void(std::span<const std::uint8_t>, const std::string& sender)>;

  virtual ~UdpSocket() = default;

  // Binds to `port` on every local address, or on `local_address` when one is
  // given; a socket that is already bound is closed first. Returns the error's
  // description, nothing on success.
  virtual std::optional<std::string> bind(std::uint16_t port,
                                          const std::string& local_address = {}) = 0;
  virtual void close() = 0;

  // The first non-loopback IPv4 address of an interface that is up; empty when
  // there is none.
  virtual std::string local_address() const = 0;
  // The broadcast address of every IPv4 interface that has one, as dotted quads.
  virtual std::vector<std::string> broadcast_addresses() const = 0;
  // Every IPv4 network of an interface that is up, loopback included.
  virtual std::vector<LocalNetwork> local_networks() const = 0;

  virtual void set_remote_host(const std::string& host) = 0;
  virtual void set_remote_port(std::uint16_t port) = 0;
  // Whether datagrams may go to broadcast addresses at all. Off until asked for.
  virtual void set_broadcast(bool allowed) = 0;
  // Sends one datagram to the remote host and port. Returns why it could not be
  // sent, nothing when it left.
  virtual std::optional<std::string> send(std::span<const std::uint8_t> datagram) = 0;

  // Called once per arrived datagram, on the thread that owns the socket.
  virtual void on_datagram(DatagramHandler handler) = 0;
};

}  // namespace lumaris
