#include "platform/linux/ppdev_port_io.h"

#include <fcntl.h>
#include <linux/ppdev.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

namespace lumaris {

namespace {

constexpr std::uint16_t kLpt1Base = 0x378;
constexpr std::uint16_t kLpt2Base = 0x278;
constexpr int kDataOffset = 0;
constexpr int kControlOffset = 2;

}  // namespace

PpdevPortIo::PpdevPortIo(std::ostream* diagnostics, std::string device_prefix)
    : diagnostics_(diagnostics), prefix_(std::move(device_prefix)) {}

PpdevPortIo::~PpdevPortIo() {
  for (Device& d : devices_) {
    if (d.fd < 0) continue;
    ioctl(d.fd, PPRELEASE);
    close(d.fd);
  }
}

std::optional<PpdevPortIo::Register> PpdevPortIo::register_of(std::uint16_t port) {
  for (const auto& [base, device] : {std::pair{kLpt1Base, 0}, std::pair{kLpt2Base, 1}}) {
    const int offset = port - base;
    if (offset == kDataOffset || offset == kControlOffset) return Register{device, offset};
  }
  return std::nullopt;
}

int PpdevPortIo::claimed_fd(int device) {
  Device& d = devices_[static_cast<std::size_t>(device)];
  if (d.tried) return d.fd;
  d.tried = true;
  const std::string path = prefix_ + std::to_string(device);
  const int fd = open(path.c_str(), O_RDWR | O_CLOEXEC);
  if (fd >= 0 && ioctl(fd, PPCLAIM) == 0) {
    d.fd = fd;
    return fd;
  }
  const int error = errno;
  if (fd >= 0) close(fd);
  if (diagnostics_ != nullptr) {
    *diagnostics_ << "lumaris: cannot use the parallel port " << path << ": "
                  << std::strerror(error) << "; its output goes nowhere\n";
  }
  return -1;
}

bool PpdevPortIo::Out32(std::uint16_t port, std::uint8_t value) {
  const std::optional<Register> reg = register_of(port);
  if (!reg) return false;
  const int fd = claimed_fd(reg->device);
  if (fd < 0) return false;
  unsigned char byte = value;
  const unsigned long request = reg->offset == kDataOffset ? PPWDATA : PPWCONTROL;
  return ioctl(fd, request, &byte) == 0;
}

}  // namespace lumaris
