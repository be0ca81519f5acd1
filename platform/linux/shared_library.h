#pragma once

#include <string>
#include <vector>

namespace lumaris {

// A shared library loaded at run time, so that the program also runs where it
// is not installed. Tries each name on the dynamic loader's path, then in the
// program's own folder.
class SharedLibrary {
 public:
  SharedLibrary() = default;
  ~SharedLibrary();
  SharedLibrary(const SharedLibrary&) = delete;
  SharedLibrary& operator=(const SharedLibrary&) = delete;

  // True when one of the names loaded; a loaded library stays loaded.
  bool load(const std::vector<std::string>& names);
  bool loaded() const { return handle_ != nullptr; }
  // The exported symbol, or null.
  void* symbol(const char* name) const;
  template <typename Function>
  Function function(const char* name) const {
    return reinterpret_cast<Function>(symbol(name));
  }

  // The folder the running program was started from, with a trailing slash.
  static std::string program_folder();

 private:
  void* handle_ = nullptr;
};

}  // namespace lumaris
