#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "base/colour.h"
#include "core/main_desk.h"
#include "core/output_sink.h"
#include "core/store.h"
#include "platform/scheduler.h"

namespace lumaris {

class DeskContext;
class UdpSocket;

// The Art-Net node: sends the desk's frame as ArtDmx, answers ArtPoll with an
// ArtPollReply and notes what it hears. The socket comes from the platform; the
// destination is the broadcast address chosen from the local address, unless the
// operator set one in this computer's settings.
class ArtNetNode final : public OutputSink {
 public:
  static constexpr const char* kShortName = "Lumaris";
  static constexpr const char* kNodeReport = "OK";
  // The settings key of the operator's destination; absent or empty = automatic.
  static constexpr const char* kDestinationSetting = "artnet/destination";
  // The settings key of the local address to send from and listen on; absent = every address.
  static constexpr const char* kInterfaceSetting = "artnet/interface";

  // Art_Time's interval: every enabled row sends the frame this often.
  static constexpr int kArtInterval = 100;
  // While the port cannot be had (another program holds it without sharing),
  // binding is tried again this often, and the lamp stays this colour.
  static constexpr int kBindRetryInterval = 3000;
  static constexpr Rgb kPortTakenLamp = MainDesk::kTroubleLamp;

  ArtNetNode(DeskContext& context, UdpSocket* socket, MainDesk& main_desk);
  ~ArtNetNode() override;
  ArtNetNode(const ArtNetNode&) = delete;
  ArtNetNode& operator=(const ArtNetNode&) = delete;

  // One sink of the output cycle. Art-Net samples the store's frame on its own
  // timer, Art_Time, which runs while a row is enabled; with smooth output it
  // sends each frame as the output cycle builds it instead, while Art_Time runs.
  void take_frame(const DmxFrame& frame) override;
  void start() override {}
  void stop() override {
    art_time_->set_enabled(false);
    forget_send_error();
    stop_retrying();
  }
  std::string status() const override;

  Timer& Art_Time() { return *art_time_; }
  // Sends the frame on every enabled row and blinks the main desk's indicator.
  void Art_Time_Tick();

  // Sets up the socket and the destination: 1 on success, 0 when an error occurred.
  int Art_Init();
  // One received datagram, any bytes at all, from `sender` (a dotted quad).
  // ArtPoll is answered only from this computer's own networks, and at most
  // kPollRepliesPerSecond times a second in all: a reply is 24 times a poll's
  // size, so a forged source must not turn the node into an amplifier.
  void Art_Receive(std::span<const std::uint8_t> packet, const std::string& sender);
  static constexpr int kPollRepliesPerSecond = 3;
  void Art_Send_Dmx(int universe, const std::array<std::uint8_t, kDmxSlots + 1>& frame);
  void Art_Send_Poll_Reply();
  // The node's diagnostic log: silent unless the program was asked to be verbose.
  void Art_Log(const std::string& text);

  bool Art_Net_OK() const { return art_net_ok_; }
  void set_Art_Net_OK(bool ok) { art_net_ok_ = ok; }
  // Where every packet goes; empty until Art_Init has succeeded (nothing is sent).
  const std::string& Art_Broadcast() const { return art_broadcast_; }
  std::uint32_t Art_Node_Universe() const { return art_node_universe_; }
  bool Art_Packet_Seen() const { return art_packet_seen_; }
  bool Art_Dmx_Seen() const { return art_dmx_seen_; }

  // Whether a typed destination can be used: a broadcast address cannot, since
  // a destination is one node and the socket then refuses to broadcast.
  enum class DestinationCheck { Accepted, NotAnAddress, Broadcast };
  DestinationCheck check_destination(const std::string& text) const;
  // The Destination field of Art-Net Setup: empty = automatic. It is kept with
  // this computer's settings and replaces a destination given for this run.
  // Refused text changes nothing.
  DestinationCheck set_destination(const std::string& text);
  // A destination for this run only (--artnet-target), never saved; empty =
  // automatic for this run, whatever the settings hold.
  DestinationCheck set_run_destination(const std::string& text);
  // The Destination field's value, as kept with the computer's settings.
  const std::string& destination() const { return destination_; }
  // Where packets go when the node runs: empty = the automatic broadcast address.
  const std::string& destination_in_force() const {
    return run_destination_ ? *run_destination_ : destination_;
  }
  bool destination_for_this_run() const { return run_destination_.has_value(); }

  // The local address the node sends from and listens on: empty = every
  // address. set_interface keeps it with this computer's settings and ends one
  // given for this run; set_run_interface (--artnet-bind) is never saved. A
  // running node binds again at once. Text that is not an address is refused.
  bool set_interface(const std::string& address);
  bool set_run_interface(const std::string& address);
  const std::string& interface_address() const { return interface_; }
  const std::string& interface_in_force() const { return run_interface_ ? *run_interface_ : interface_; }
  bool interface_for_this_run() const { return run_interface_.has_value(); }
  // This computer's IPv4 addresses, to choose the interface from.
  std::vector<std::string> local_addresses() const;

  // Why the port could not be had; nothing once the node is bound.
  const std::optional<std::string>& bind_error() const { return bind_error_; }
  // The lamp's colour between blinks: black, or amber while the port is taken.
  Paint idle_lamp() const { return bind_error_ ? Paint{kPortTakenLamp} : Paint{kBlack}; }
  // No row sends any more: a taken port is not tried again until the node is started.
  void stop_retrying();
  // Told each time the port is found taken and when it is had again, as one
  // line; the headless runner prints these to stderr.
  void on_port_report(std::function<void(const std::string&)> report) { port_report_ = std::move(report); }

  // Why the last packet could not be sent; nothing while packets leave.
  const std::optional<std::string>& send_error() const { return send_error_; }
  // Nothing is sent any more (the last row was disabled): a failure is no longer news.
  void forget_send_error();

 private:
  void apply_destination();
  void show_destination_on_desk();
  void send(std::span<const std::uint8_t> packet);
  void send_rows(const DmxFrame& frame);
  void blink();
  void note_send_result(std::optional<std::string> error);
  bool may_answer_poll(const std::string& sender);
  void note_bind_result(std::optional<std::string> error);

  DeskContext& context_;
  MainDesk& main_desk_;
  UdpSocket* socket_ = nullptr;
  std::unique_ptr<Timer> art_time_;
  std::unique_ptr<Timer> bind_retry_;
  std::optional<std::string> bind_error_;
  std::function<void(const std::string&)> port_report_;
  bool art_net_ok_ = false;
  std::string art_broadcast_;
  std::string automatic_broadcast_;
  std::string destination_;
  std::optional<std::string> run_destination_;
  std::string interface_;
  std::optional<std::string> run_interface_;
  std::uint32_t art_node_universe_ = 0;
  std::array<std::uint8_t, 6> art_node_address_{};
  bool art_packet_seen_ = false;
  bool art_dmx_seen_ = false;
  std::array<std::uint8_t, 14> last_poll_{};
  // When the last few poll replies left, oldest first (virtual milliseconds).
  std::array<double, kPollRepliesPerSecond> poll_reply_times_{};
  int poll_replies_ = 0;
  std::optional<std::string> send_error_;
  double last_blink_ms_ = 0;
};

}  // namespace lumaris
