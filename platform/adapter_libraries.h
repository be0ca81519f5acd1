#pragma once

#include <cstdint>

namespace lumaris {

// The vendor libraries of the OKI DMX 3-1 adapter and the Oksidizer USB2DMX.
// Each call returns the library's status, 0 for success. A library that is not
// installed answers with a failure, as an adapter that does not respond.
class AdapterLibraries {
 public:
  virtual ~AdapterLibraries() = default;
  virtual std::int16_t Okdmx31Read(std::int16_t port, std::uint8_t zero, std::uint8_t* buffer) = 0;
  virtual std::int16_t Okdmx31Write(std::int16_t port, std::uint8_t zero,
                                    std::uint8_t* buffer) = 0;
  virtual std::int32_t OksidCommand(std::int32_t command, std::int32_t length,
                                    std::uint8_t* data) = 0;
};

}  // namespace lumaris
