#pragma once

namespace lumaris {

class UdpSocket {
 public:
  virtual ~UdpSocket() = default;
};

}  // namespace lumaris
