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
constexpr const char* kNotAnswering =
    "olad is not answering (it takes the connection but not the frames)";

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
    not_answering_ = false;
    retry_->set_interval(kRetryInterval);
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
    if (not_answering_) return;  // one steady state until olad answers again
    if (problem_ != *error) {
      problem_ = *error;
      context_.status().show_both(kLost + problem_);
    }
    return;
  }
  connected_ = true;
  connected_at_ms_ = context_.scheduler().now_ms();
  retry_->set_enabled(false);
  if (not_answering_) return;  // it answers once frames have gone for kSettleTime
  if (!problem_.empty()) context_.status().show_both(kReconnected);
  problem_.clear();
}

void OlaOutput::retry_after(int interval_ms) {
  retry_->set_interval(interval_ms);
  retry_->set_enabled(true);
}

// A connection lost soon after it was made is a hung olad: waiting twice as long
// each time spares it and the operator; one that carried frames a while is
// simply gone, and tried again every second.
void OlaOutput::lose_connection(const std::string& why) {
  connected_ = false;
  if (context_.scheduler().now_ms() - connected_at_ms_ < kSettleTime) {
    if (!not_answering_) {
      not_answering_ = true;
      problem_ = kNotAnswering;
      context_.status().show_both(kLost + problem_);
    }
    retry_after(std::min(retry_->interval() * 2, kLongestRetryInterval));
    return;
  }
  not_answering_ = false;
  problem_ = why;
  context_.status().show_both(kLost + why);
  retry_after(kRetryInterval);  // the first retry comes a second later
}

void OlaOutput::take_frame(const DmxFrame& frame) {
  if (!connected_ || !running_) return;
  if (const auto error = client_->send_dmx(universe(), std::span<const std::uint8_t>(
                                                           frame.data(), kDmxSlots))) {
    lose_connection(*error);
  } else if (not_answering_ &&
             context_.scheduler().now_ms() - connected_at_ms_ >= kSettleTime) {
    not_answering_ = false;
    problem_.clear();
    retry_->set_interval(kRetryInterval);
    context_.status().show_both(kReconnected);
  }
}

std::string OlaOutput::status() const {
  if (client_ == nullptr) return kNotBuilt;
  if (!enabled()) return "OLA off";
  const std::string universe_text =
      "universe " + std::to_string(universe()) + (run_only() ? " (this run only)" : "");
  if (!running_) return "OLA stopped (" + universe_text + ")";
  if (not_answering_) return "OLA " + universe_text + ": " + kNotAnswering + "; trying again";
  if (connected_) return "OLA sending " + universe_text;
  return "OLA " + universe_text + ": " + (problem_.empty() ? "connecting" : problem_) +
         "; trying again every second";
}

}  // namespace lumaris
