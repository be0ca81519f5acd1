#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "core/output_sink.h"
#include "core/store.h"
#include "platform/scheduler.h"

namespace lumaris {

class DeskContext;
class MainDesk;
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

  // Art_Time's interval: every enabled row sends the frame this often.
  static constexpr int kArtInterval = 100;

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
  }
  std::string status() const override;

  Timer& Art_Time() { return *art_time_; }
  // Sends the frame on every enabled row and blinks the main desk's indicator.
  void Art_Time_Tick();

  // Sets up the socket and the destination: 1 on success, 0 when an error occurred.
  int Art_Init();
  // One received datagram, any bytes at all.
  void Art_Receive(std::span<const std::uint8_t> packet);
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

  DeskContext& context_;
  MainDesk& main_desk_;
  UdpSocket* socket_ = nullptr;
  std::unique_ptr<Timer> art_time_;
  bool art_net_ok_ = false;
  std::string art_broadcast_;
  std::string automatic_broadcast_;
  std::string destination_;
  std::optional<std::string> run_destination_;
  std::uint32_t art_node_universe_ = 0;
  std::array<std::uint8_t, 6> art_node_address_{};
  bool art_packet_seen_ = false;
  bool art_dmx_seen_ = false;
  std::array<std::uint8_t, 14> last_poll_{};
  std::optional<std::string> send_error_;
  double last_blink_ms_ = 0;
};

}  // namespace lumaris
