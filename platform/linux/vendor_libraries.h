#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/adapter_libraries.h"
#include "platform/linux/shared_library.h"

namespace lumaris {

// The OKI DMX 3-1 and Oksidizer USB2DMX vendor libraries, loaded on first use.
// A library that is missing, or lacks the function, answers with a failure.
class VendorLibraries final : public AdapterLibraries {
 public:
  static const std::vector<std::string> kOkiNames;
  static const std::vector<std::string> kOksidizerNames;
  static constexpr std::int16_t kMissing = -1;

  explicit VendorLibraries(std::vector<std::string> oki_names = kOkiNames,
                           std::vector<std::string> oksidizer_names = kOksidizerNames);

  std::int16_t Okdmx31Read(std::int16_t port, std::uint8_t zero, std::uint8_t* buffer) override;
  std::int16_t Okdmx31Write(std::int16_t port, std::uint8_t zero, std::uint8_t* buffer) override;
  std::int32_t OksidCommand(std::int32_t command, std::int32_t length,
                            std::uint8_t* data) override;

 private:
  using OkiTransfer = std::int16_t (*)(std::int16_t, std::uint8_t, std::uint8_t*);
  using OksidCall = std::int32_t (*)(std::int32_t, std::int32_t, std::uint8_t*);

  std::vector<std::string> oki_names_;
  std::vector<std::string> oksidizer_names_;
  SharedLibrary oki_;
  SharedLibrary oksidizer_;
};

}  // namespace lumaris
