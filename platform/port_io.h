#pragma once

namespace lumaris {

class PortIo {
 public:
  virtual ~PortIo() = default;
};

}  // namespace lumaris
