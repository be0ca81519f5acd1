#pragma once

#include <QSettings>

#include "platform/settings.h"

namespace lumaris {

// The program's settings in the user's configuration folder (~/.config/Lumaris/Lumaris.conf).
class QtSettings final : public Settings {
 public:
  QtSettings();
  std::optional<std::string> read(const std::string& key) const override;
  void write(const std::string& key, const std::string& value) override;
  void remove(const std::string& key) override;

 private:
  QSettings settings_;
};

}  // namespace lumaris
