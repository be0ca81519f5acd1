#pragma once

#include <string>

namespace lumaris {

class Console;

// Loading and saving the show file.
class ProjectFile {
 public:
  explicit ProjectFile(Console& console);
  bool available() const { return false; }
  void Load() {}
  // Loads the show named on the command line; false when it could not be read.
  bool Load_File(const std::string& /*path*/) { return false; }
  void Load_Patches() {}
  void Save_Project() {}
  void Save_As_Project() {}
  void Save_Submix() {}
  void Save_Patch() {}
  void Save_Sequence() {}

 private:
  Console& console_;
};

}  // namespace lumaris
