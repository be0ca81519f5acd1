#include "output/ola_output.h"

#include <algorithm>
#include <span>

#include "core/desk_context.h"
#include "core/status_lines.h"
#include "platform/ola_client.h"
#include "platform/scheduler.h"
#include "platform/settings.h"

namespace lumaris {

namespace {
constexpr const char* kNotBuilt =
    "OLA is not built into this program (libola-dev was missing when it was built)";
constexpr const char* kLost = " OLA: ";
constexpr const char* kReconnected = " OLA connected again";

std::optional<std::uint32_t> parse_universe(const std::string& text) {
  if (text.empty() || text.size() > 10) return std::nullopt;
  if (!std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; })) {
    return std::nullopt;
  }
  const unsigned long long value = std::stoull(text);
  if (value > 0xFFFFFFFFull) return std::nullopt;
  return static_cast<std::uint32_t>(value);
}
}  // namespace

OlaOutput::OlaOutput(DeskContext& context, OlaClient* client)
    : context_(context), client_(client), retry_(context.scheduler().create_timer()) {
  retry_->set_interval(kRetryInterval);
  retry_->on_tick([this] { try_connect(); });
  if (Settings* settings = context.settings()) {
    if (const auto universe = parse_universe(settings->read(kUniverseSetting).value_or(""))) {
      universe_ = *universe;
    }
    enabled_ = settings->read(kEnabledSetting).value_or("") == "true";
  }
}

OlaOutput::~OlaOutput() {
  if (client_ != nullptr && connected_) client_->disconnect();
}

std::optional<std::string> OlaOutput::set_universe(std::uint32_t universe) {
  universe_ = universe;
  if (run_universe_) run_universe_ = universe;  // the operator moves this run's universe too
  if (Settings* settings = context_.settings()) {
    settings->write(kUniverseSetting, std::to_string(universe));
  }
  return std::nullopt;
}

std::optional<std::string> OlaOutput::set_enabled(bool enabled) {
  if (enabled && client_ == nullptr) return std::string(kNotBuilt) + ".";
  if (!enabled) run_universe_.reset();  // off for this run too
  enabled_ = enabled;
  if (Settings* settings = context_.settings()) {
    settings->write(kEnabledSetting, enabled ? "true" : "false");
  }
  update_retry();
  return std::nullopt;
}

void OlaOutput::set_run_universe(std::uint32_t universe) {
  run_universe_ = universe;
  update_retry();
}

void OlaOutput::start() {
  running_ = true;
  update_retry();
}

void OlaOutput::stop() {
  running_ = false;
  update_retry();
}

// Connects at once when the output is switched on, then leaves reconnecting to
// the retry timer; switched off, the connection is closed.
void OlaOutput::update_retry() {
  const bool wanted = running_ && enabled() && client_ != nullptr;
  if (!wanted) {
    retry_->set_enabled(false);
    if (connected_) client_->disconnect();
    connected_ = false;
    problem_.clear();
    return;
  }
  if (!connected_ && !retry_->enabled()) {
    try_connect();
    if (!connected_) retry_->set_enabled(true);
  }
}

void OlaOutput::try_connect() {
  if (client_ == nullptr) return;
  if (const auto error = client_->connect()) {
    if (problem_ != *error) {
      problem_ = *error;
      context_.status().show_both(kLost + problem_);
    }
    return;
  }
  connected_ = true;
  retry_->set_enabled(false);
  if (!problem_.empty()) context_.status().show_both(kReconnected);
  problem_.clear();
}

void OlaOutput::lose_connection(const std::string& why) {
  connected_ = false;
  problem_ = why;
  context_.status().show_both(kLost + why);
  retry_->set_enabled(true);  // the first retry comes a second later
}

void OlaOutput::take_frame(const DmxFrame& frame) {
  if (!connected_ || !running_) return;
  if (const auto error = client_->send_dmx(universe(), std::span<const std::uint8_t>(
                                                           frame.data(), kDmxSlots))) {
    lose_connection(*error);
  }
}

std::string OlaOutput::status() const {
  if (client_ == nullptr) return kNotBuilt;
  if (!enabled()) return "OLA off";
  const std::string universe_text =
      "universe " + std::to_string(universe()) + (run_only() ? " (this run only)" : "");
  if (!running_) return "OLA stopped (" + universe_text + ")";
  if (connected_) return "OLA sending " + universe_text;
  return "OLA " + universe_text + ": " + (problem_.empty() ? "connecting" : problem_) +
         "; trying again every second";
}

}  // namespace lumaris
