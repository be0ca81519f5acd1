#include "platform/linux/ola_streaming_client.h"

#include <ola/DmxBuffer.h>
#include <ola/Logging.h>
#include <ola/client/StreamingClient.h>

#include <csignal>

namespace lumaris {

namespace {
constexpr const char* kNotRunning = "olad is not running (nothing answers on its port 9010)";
constexpr const char* kGone = "olad went away";
}  // namespace

OlaStreamingClient::OlaStreamingClient() {
  // A write to the socket of an olad that has gone away must come back as an
  // error, not end the program.
  std::signal(SIGPIPE, SIG_IGN);
  ola::InitLogging(ola::OLA_LOG_WARN, ola::OLA_LOG_NULL);
}

OlaStreamingClient::~OlaStreamingClient() { disconnect(); }

std::optional<std::string> OlaStreamingClient::connect() {
  disconnect();
  ola::client::StreamingClient::Options options;
  options.auto_start = false;  // olad is the operator's, started by them or by the system
  client_ = std::make_unique<ola::client::StreamingClient>(options);
  if (!client_->Setup()) {
    client_.reset();
    return kNotRunning;
  }
  return std::nullopt;
}

void OlaStreamingClient::disconnect() {
  if (!client_) return;
  client_->Stop();
  client_.reset();
}

std::optional<std::string> OlaStreamingClient::send_dmx(std::uint32_t universe,
                                                        std::span<const std::uint8_t> slots) {
  if (!client_) return kNotRunning;
  ola::DmxBuffer buffer;
  buffer.Set(slots.data(), static_cast<unsigned int>(slots.size()));
  if (!client_->SendDmx(universe, buffer)) {
    disconnect();
    return kGone;
  }
  return std::nullopt;
}

}  // namespace lumaris
