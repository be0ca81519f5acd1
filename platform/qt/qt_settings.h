#pragma once

#include <QSettings>
#include <map>
#include <memory>

#include "platform/settings.h"

namespace lumaris {

// The program's settings in the user's configuration folder
// ($XDG_CONFIG_HOME or ~/.config, then Lumaris/Lumaris.conf).
//
// A file that is there but cannot be read is never written over: the operator
// may still mend it by hand. Cannot be read means: not a regular file (a
// folder, a FIFO, a device), no permission to read it, or a file Qt reports as
// not in its settings format or not readable. The run then keeps its settings
// in memory only and problem() says what is wrong with which file.
class QtSettings final : public Settings {
 public:
  QtSettings();
  std::optional<std::string> read(const std::string& key) const override;
  void write(const std::string& key, const std::string& value) override;
  void remove(const std::string& key) override;

  // Empty when the file could be read or is not there yet.
  const std::string& problem() const { return problem_; }

 private:
  std::unique_ptr<QSettings> settings_;
  std::map<std::string, std::string> in_memory_;
  std::string problem_;
};

}  // namespace lumaris
