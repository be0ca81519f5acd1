#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/settings.h"

namespace lumaris {

// Settings that live as long as the test.
class MemorySettings final : public Settings {
 public:
  std::optional<std::string> read(const std::string& key) const override {
    const auto found = values_.find(key);
    if (found == values_.end()) return std::nullopt;
    return found->second;
  }
  void write(const std::string& key, const std::string& value) override { values_[key] = value; }
  void remove(const std::string& key) override { values_.erase(key); }

 private:
  std::map<std::string, std::string> values_;
};

}  // namespace lumaris
