#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/adapter_libraries.h"

namespace lumaris {

// The OKI and Oksidizer vendor libraries, answering with the statuses a test sets
// and recording each call with the first bytes of the data it was handed.
class FakeAdapterLibraries final : public AdapterLibraries {
 public:
  struct Call {
    std::string name;
    int port_or_command = 0;
    int second = 0;
    std::vector<std::uint8_t> data;  // the first kRecorded bytes of the buffer
  };
  static constexpr int kRecorded = 8;

  std::int16_t Okdmx31Read(std::int16_t port, std::uint8_t zero, std::uint8_t* buffer) override {
    calls.push_back({"Okdmx31Read", port, zero, {buffer, buffer + kRecorded}});
    return read_status;
  }
  std::int16_t Okdmx31Write(std::int16_t port, std::uint8_t zero, std::uint8_t* buffer) override {
    calls.push_back({"Okdmx31Write", port, zero, {buffer, buffer + kRecorded}});
    return write_status;
  }
  std::int32_t OksidCommand(std::int32_t command, std::int32_t length,
                            std::uint8_t* data) override {
    calls.push_back({"OksidCommand", command, length, {data, data + kRecorded}});
    return oksid_status;
  }

  std::int16_t read_status = 0;
  std::int16_t write_status = 0;
  std::int32_t oksid_status = 0;
  std::vector<Call> calls;
};

}  // namespace lumaris
