#pragma once

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
};

}  // namespace lumaris
