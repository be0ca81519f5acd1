#pragma once

#include <optional>
#include <string>

namespace lumaris {

// The program's settings on this computer (not the show's): small named texts
// that outlive the program, e.g. where Art-Net goes on a test bench.
class Settings {
 public:
  virtual ~Settings() = default;
  virtual std::optional<std::string> read(const std::string& key) const = 0;
  virtual void write(const std::string& key, const std::string& value) = 0;
  virtual void remove(const std::string& key) = 0;
};

}  // namespace lumaris
