#pragma once

#include <memory>

#include "app/command_line.h"
#include "core/console.h"

namespace lumaris {

class LibftdiD2xx;
class PpdevPortIo;
class VendorLibraries;

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
  std::unique_ptr<LibftdiD2xx> d2xx_;
  std::unique_ptr<PpdevPortIo> port_io_;
  std::unique_ptr<VendorLibraries> adapter_libraries_;
};

}  // namespace lumaris
