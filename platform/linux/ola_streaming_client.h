#pragma once

#include <memory>

#include "platform/ola_client.h"

namespace ola::client {
class StreamingClient;
}

namespace lumaris {

// The OLA client on Linux: OLA's StreamingClient, which sends DMX to olad over
// its local RPC port without waiting for answers. It never starts olad itself.
// Built only where libola was found (LUMARIS_HAVE_OLA).
class OlaStreamingClient final : public OlaClient {
 public:
  OlaStreamingClient();
  ~OlaStreamingClient() override;
  OlaStreamingClient(const OlaStreamingClient&) = delete;
  OlaStreamingClient& operator=(const OlaStreamingClient&) = delete;

  std::optional<std::string> connect() override;
  void disconnect() override;
  std::optional<std::string> send_dmx(std::uint32_t universe,
                                      std::span<const std::uint8_t> slots) override;

 private:
  std::unique_ptr<ola::client::StreamingClient> client_;
};

}  // namespace lumaris
