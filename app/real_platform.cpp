#include "app/real_platform.h"

#include <iostream>

namespace lumaris {

RealPlatform::RealPlatform(const CommandLine& line) : verbose_(line.verbose) {}

RealPlatform::~RealPlatform() = default;

void RealPlatform::fill(PlatformServices& services) {
  services.diagnostics = verbose_ ? &std::cerr : nullptr;
}

}  // namespace lumaris
