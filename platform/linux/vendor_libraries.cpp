#include "platform/linux/vendor_libraries.h"

#include <utility>

namespace lumaris {

const std::vector<std::string> VendorLibraries::kOkiNames = {"libokdmx31.so", "okdmx31.so"};
const std::vector<std::string> VendorLibraries::kOksidizerNames = {"libusb2dmx.so",
                                                                   "usb2dmx.so"};

VendorLibraries::VendorLibraries(std::vector<std::string> oki_names,
                                 std::vector<std::string> oksidizer_names)
    : oki_names_(std::move(oki_names)), oksidizer_names_(std::move(oksidizer_names)) {}

std::int16_t VendorLibraries::Okdmx31Read(std::int16_t port, std::uint8_t zero,
                                          std::uint8_t* buffer) {
  if (!oki_.load(oki_names_)) return kMissing;
  const auto read = oki_.function<OkiTransfer>("Okdmx31Read");
  return read != nullptr ? read(port, zero, buffer) : kMissing;
}

std::int16_t VendorLibraries::Okdmx31Write(std::int16_t port, std::uint8_t zero,
                                           std::uint8_t* buffer) {
  if (!oki_.load(oki_names_)) return kMissing;
  const auto write = oki_.function<OkiTransfer>("Okdmx31Write");
  return write != nullptr ? write(port, zero, buffer) : kMissing;
}

std::int32_t VendorLibraries::OksidCommand(std::int32_t command, std::int32_t length,
                                           std::uint8_t* data) {
  if (!oksidizer_.load(oksidizer_names_)) return kMissing;
  const auto call = oksidizer_.function<OksidCall>("OksidCommand");
  return call != nullptr ? call(command, length, data) : kMissing;
}

}  // namespace lumaris
