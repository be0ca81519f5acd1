#include "platform/linux/shared_library.h"

#include <dlfcn.h>
#include <unistd.h>

#include <array>

namespace lumaris {

SharedLibrary::~SharedLibrary() {
  if (handle_ != nullptr) dlclose(handle_);
}

bool SharedLibrary::load(const std::vector<std::string>& names) {
  if (handle_ != nullptr) return true;
  const std::string folder = program_folder();
  for (const std::string& name : names) {
    handle_ = dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle_ == nullptr && !folder.empty() && name.find('/') == std::string::npos) {
      handle_ = dlopen((folder + name).c_str(), RTLD_NOW | RTLD_LOCAL);
    }
    if (handle_ != nullptr) return true;
  }
  return false;
}

void* SharedLibrary::symbol(const char* name) const {
  return handle_ != nullptr ? dlsym(handle_, name) : nullptr;
}

std::string SharedLibrary::program_folder() {
  std::array<char, 4096> path{};
  const ssize_t length = readlink("/proc/self/exe", path.data(), path.size() - 1);
  if (length <= 0) return {};
  std::string exe(path.data(), static_cast<std::size_t>(length));
  const auto slash = exe.rfind('/');
  return slash == std::string::npos ? std::string() : exe.substr(0, slash + 1);
}

}  // namespace lumaris
