#include "tests/support/fake_udp.h"

namespace lumaris {

std::optional<std::string> FakeUdp::bind(std::uint16_t port, const std::string& local_address) {
  bound_port_.reset();
  bound_address_ = local_address;
  if (port_held_) return port_held_;
  if (bind_error_) {
    std::string error = std::move(*bind_error_);
    bind_error_.reset();
    return error;
  }
  bound_port_ = port;
  return std::nullopt;
}

std::optional<std::string> FakeUdp::send(std::span<const std::uint8_t> datagram) {
  if (!bound_port_) return "not bound";
  if (send_error_) return send_error_;
  sent_.push_back({remote_host_, remote_port_, broadcast_allowed_,
                   std::vector<std::uint8_t>(datagram.begin(), datagram.end())});
  return std::nullopt;
}

void FakeUdp::deliver(const std::vector<std::uint8_t>& datagram, const std::string& sender) {
  if (handler_) handler_(datagram, sender);
}

}  // namespace lumaris
