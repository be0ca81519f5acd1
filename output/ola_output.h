#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "core/output_sink.h"

namespace lumaris {

class DeskContext;
class OlaClient;
class Timer;

// The OLA output: the desk's frame to one universe of the local olad, and from
// there to every device and protocol OLA drives. The universe and whether it is
// on are this computer's settings. When olad is not there, or goes away, the desk
// runs on, the status says so, and a reconnect is tried once a second on a timer
// of its own, never inside an output tick. An olad that takes the connection but
// not the frames (hung) loses each connection soon after it is made: it is shown
// once as not answering, and tried again less and less often, until a
// connection carries frames for kSettleTime.
class OlaOutput final : public OutputSink {
 public:
  static constexpr const char* kUniverseSetting = "ola/universe";
  static constexpr const char* kEnabledSetting = "ola/enabled";
  static constexpr int kRetryInterval = 1000;
  static constexpr int kLongestRetryInterval = 30000;
  static constexpr int kSettleTime = 5000;
  static constexpr std::uint32_t kDefaultUniverse = 1;

  // A null client: this program was built without OLA; enabling it is refused.
  OlaOutput(DeskContext& context, OlaClient* client);
  ~OlaOutput() override;
  OlaOutput(const OlaOutput&) = delete;
  OlaOutput& operator=(const OlaOutput&) = delete;

  void take_frame(const DmxFrame& frame) override;
  void start() override;
  void stop() override;
  std::string status() const override;

  bool available() const { return client_ != nullptr; }
  bool enabled() const { return run_universe_.has_value() || enabled_; }
  std::uint32_t universe() const { return run_universe_.value_or(universe_); }
  bool connected() const { return connected_; }
  // Returns the operator's message on bad input or when OLA is not built in;
  // nothing changes then. Kept in the settings.
  std::optional<std::string> set_universe(std::uint32_t universe);
  std::optional<std::string> set_enabled(bool enabled);
  // --ola-universe for this run only: on, on that universe; never saved.
  void set_run_universe(std::uint32_t universe);
  bool run_only() const { return run_universe_.has_value(); }

  Timer& Retry_Timer() { return *retry_; }

 private:
  void try_connect();
  void lose_connection(const std::string& why);
  void update_retry();
  void retry_after(int interval_ms);

  DeskContext& context_;
  OlaClient* client_ = nullptr;
  std::unique_ptr<Timer> retry_;
  std::uint32_t universe_ = kDefaultUniverse;
  bool enabled_ = false;
  std::optional<std::uint32_t> run_universe_;
  bool running_ = false;
  bool connected_ = false;
  bool not_answering_ = false;
  double connected_at_ms_ = 0;
  std::string problem_;
};

}  // namespace lumaris
