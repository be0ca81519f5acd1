#include "app/display_probe.h"

#include <dlfcn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>

namespace lumaris {

namespace {

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

// Connects to the X server the way Qt's xcb plugin will, authentication
// included, through the library that plugin uses. libxcb is loaded at run time
// so that the program needs no X development files to build.
bool x_display_opens() {
  void* xcb = dlopen("libxcb.so.1", RTLD_NOW | RTLD_LOCAL);
  if (xcb == nullptr) return false;
  using Connect = void* (*)(const char*, int*);
  using HasError = int (*)(void*);
  using Disconnect = void (*)(void*);
  const auto connect = reinterpret_cast<Connect>(dlsym(xcb, "xcb_connect"));
  const auto has_error = reinterpret_cast<HasError>(dlsym(xcb, "xcb_connection_has_error"));
  const auto disconnect = reinterpret_cast<Disconnect>(dlsym(xcb, "xcb_disconnect"));
  bool opens = false;
  if (connect != nullptr && has_error != nullptr && disconnect != nullptr) {
    void* connection = connect(nullptr, nullptr);
    // xcb_connect never returns null: a failed connection reports an error.
    opens = connection != nullptr && has_error(connection) == 0;
    if (connection != nullptr) disconnect(connection);
  }
  dlclose(xcb);
  return opens;
}

bool wayland_display_opens(const std::string& name) {
  std::string path = name;
  if (path.empty() || path.front() != '/') {
    const std::string runtime = environment("XDG_RUNTIME_DIR");
    if (runtime.empty()) return false;
    path = runtime + "/" + path;
  }
  sockaddr_un address{};
  if (path.size() >= sizeof address.sun_path) return false;
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path, path.c_str(), path.size());
  const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (fd < 0) return false;
  const bool opens = ::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  ::close(fd);
  return opens;
}

}  // namespace

DisplayProbe probe_display() {
  const std::string platform = environment("QT_QPA_PLATFORM");
  const std::string x_display = environment("DISPLAY");
  std::string wayland_display = environment("WAYLAND_DISPLAY");
  if (wayland_display.empty() && platform.rfind("wayland", 0) == 0) wayland_display = "wayland-0";

  const bool wants_x = platform.empty() || platform.rfind("xcb", 0) == 0;
  const bool wants_wayland = platform.empty() || platform.rfind("wayland", 0) == 0;
  // Offscreen, VNC, EGLFS and the like need no display server.
  if (!wants_x && !wants_wayland) return {true, {}};

  if (wants_x && !x_display.empty() && x_display_opens()) {
    // On a Wayland session Qt could pick Wayland; the display just tried is the one to use.
    if (platform.empty()) setenv("QT_QPA_PLATFORM", "xcb", 1);
    return {true, {}};
  }
  if (wants_wayland && !wayland_display.empty() && wayland_display_opens(wayland_display)) {
    if (platform.empty()) setenv("QT_QPA_PLATFORM", "wayland", 1);
    return {true, {}};
  }
  if (wants_x && !x_display.empty()) return {false, "cannot open display \"" + x_display + "\""};
  if (wants_wayland && !wayland_display.empty()) {
    return {false, "cannot open Wayland display \"" + wayland_display + "\""};
  }
  return {false, "DISPLAY is not set"};
}

}  // namespace lumaris
