#pragma once

#include <string>
#include <vector>

namespace lumaris {

// The show file as the desks' File menus reach it: whole projects and the
// partial submix, patch and sequence files. The show file above them implements it.
class ShowFiles {
 public:
  virtual ~ShowFiles() = default;
  virtual bool available() const = 0;
  virtual void Load() = 0;
  virtual void Load_Patches() = 0;
  virtual void Save_As_Project() = 0;
  virtual void Save_Project() = 0;
  virtual void Save_Submix() = 0;
  virtual void Save_Patch() = 0;
  virtual void Save_Sequence() = 0;
  // Before the show on the desk goes (`before`: "loading another show", "closing
  // Lumaris"): unsaved changes are saved, discarded or the step is cancelled.
  // True when the show may go.
  virtual bool may_close_show(const std::string& before) = 0;
  // The shows last loaded or saved on this computer, newest first.
  virtual std::vector<std::string> recent_shows() const = 0;
  virtual void Load_Recent(const std::string& path) = 0;
};

}  // namespace lumaris
