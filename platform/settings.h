#pragma once

namespace lumaris {

class Settings {
 public:
  virtual ~Settings() = default;
};

}  // namespace lumaris
