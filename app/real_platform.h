#pragma once

#include "app/command_line.h"
#include "core/console.h"

namespace lumaris {

// The product's own hardware and network seams (FTDI, parallel port, vendor
// libraries, the Art-Net socket, settings), owned for the life of the program.
class RealPlatform {
 public:
  explicit RealPlatform(const CommandLine& line);
  ~RealPlatform();
  RealPlatform(const RealPlatform&) = delete;
  RealPlatform& operator=(const RealPlatform&) = delete;

  // Sets the seams this platform provides; scheduler, dialogs and clock are the caller's.
  void fill(PlatformServices& services);

 private:
  bool verbose_ = false;
};

}  // namespace lumaris
