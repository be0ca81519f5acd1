#pragma once

namespace lumaris {

class D2xx {
 public:
  virtual ~D2xx() = default;
};

}  // namespace lumaris
