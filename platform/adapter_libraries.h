#pragma once

namespace lumaris {

class AdapterLibraries {
 public:
  virtual ~AdapterLibraries() = default;
};

}  // namespace lumaris
