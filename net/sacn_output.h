#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "core/output_sink.h"
#include "net/sacn_packets.h"

namespace lumaris {

class DeskContext;
class UdpSocket;

// The sACN (E1.31) output: up to eight rows, each sending the desk's frame as one
// universe on every output tick. Everything the operator sets lives in this
// computer's settings, never in the show. A stream that stops (its row disabled,
// its universe or destination changed, the console stopping) ends with three
// packets carrying the Stream_Terminated option, so receivers let go at once.
class SacnOutput final : public OutputSink {
 public:
  static constexpr int kRows = 8;
  static constexpr const char* kDefaultSourceName = "Lumaris";
  // The settings keys; rows are "sacn/rowN/universe" and "sacn/rowN/enabled", N = 1..8.
  static constexpr const char* kCidSetting = "sacn/cid";
  static constexpr const char* kSourceNameSetting = "sacn/source_name";
  static constexpr const char* kPrioritySetting = "sacn/priority";
  static constexpr const char* kDestinationSetting = "sacn/destination";
  static constexpr const char* kInterfaceSetting = "sacn/interface";

  struct Row {
    int universe = 1;
    bool enabled = false;
  };

  SacnOutput(DeskContext& context, UdpSocket* socket);
  SacnOutput(const SacnOutput&) = delete;
  SacnOutput& operator=(const SacnOutput&) = delete;

  void take_frame(const DmxFrame& frame) override;
  void start() override;
  void stop() override;
  std::string status() const override;

  const Row& row(int i) const { return rows_[static_cast<std::size_t>(i)]; }
  // Each setter checks its input: on bad input it returns the operator's message
  // and nothing changes; on success it keeps the value in the settings.
  std::optional<std::string> set_row(int i, int universe, bool enabled);
  std::optional<std::string> set_source_name(const std::string& name);
  std::optional<std::string> set_priority(int priority);
  // Empty: multicast to 239.255.hi.lo of each universe; otherwise one IPv4 address.
  std::optional<std::string> set_destination(const std::string& address);
  // The IPv4 address of the interface to send from; empty: the computer chooses.
  std::optional<std::string> set_interface(const std::string& address);

  // --sacn-target for this run only: every row sends to `address` (never saved);
  // with no row enabled, the frame goes out as universe 1.
  void set_run_target(const std::string& address);
  const std::optional<std::string>& run_target() const { return run_target_; }

  const std::string& source_name() const { return source_name_; }
  int priority() const { return priority_; }
  const std::string& destination() const { return destination_; }
  const std::string& interface_address() const { return interface_; }
  const sacn::Cid& cid() const { return cid_; }
  // Where a universe's packets go now.
  std::string target_of(int universe) const;
  // The universes being sent (those that have had a packet since their last
  // termination), with where they go.
  const std::map<int, std::string>& live_streams() const { return live_; }

 private:
  std::map<int, std::string> wanted_streams() const;
  // Ends every live stream that is no longer wanted.
  void end_unwanted();
  void send_packet(int universe, const std::string& host, bool terminated);
  bool open_socket();
  void load_settings();
  void save_row(int i);
  void note_error(std::optional<std::string> error);

  DeskContext& context_;
  UdpSocket* socket_ = nullptr;
  std::array<Row, kRows> rows_{};
  std::string source_name_ = kDefaultSourceName;
  int priority_ = sacn::kDefaultPriority;
  std::string destination_;
  std::string interface_;
  std::optional<std::string> run_target_;
  sacn::Cid cid_{};
  bool running_ = false;
  bool socket_open_ = false;
  std::array<std::uint8_t, sacn::kSlots> last_slots_{};
  std::map<int, std::uint8_t> sequence_;
  std::map<int, std::string> live_;
  std::optional<std::string> error_;
};

}  // namespace lumaris
