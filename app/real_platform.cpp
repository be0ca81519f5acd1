#include "app/real_platform.h"

#include <iostream>

#include "platform/linux/libftdi_d2xx.h"
#include "platform/linux/ppdev_port_io.h"
#include "platform/linux/vendor_libraries.h"

namespace lumaris {

RealPlatform::RealPlatform(const CommandLine& line)
    : verbose_(line.verbose),
      d2xx_(std::make_unique<LibftdiD2xx>()),
      port_io_(std::make_unique<PpdevPortIo>(&std::cerr)),
      adapter_libraries_(std::make_unique<VendorLibraries>()) {}

RealPlatform::~RealPlatform() = default;

void RealPlatform::fill(PlatformServices& services) {
  services.diagnostics = verbose_ ? &std::cerr : nullptr;
  services.d2xx = d2xx_.get();
  services.port_io = port_io_.get();
  services.adapter_libraries = adapter_libraries_.get();
}

}  // namespace lumaris
