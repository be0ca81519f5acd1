#include "net/art_net_node.h"

#include <algorithm>
#include <ostream>
#include <vector>

#include "core/desk_context.h"
#include "core/main_desk.h"
#include "net/art_net_packets.h"
#include "net/ipv4_address.h"
#include "platform/scheduler.h"
#include "platform/settings.h"
#include "platform/udp_socket.h"

namespace lumaris {

namespace {
constexpr const char* kLogNet10 = "Art-Net 10.x.x.x BCAST: ";
constexpr const char* kLogNet2 = "Art-Net 2.x.x.x BCAST: ";
constexpr const char* kLogNotConfigured = "Network not configured for Art-Net";
constexpr const char* kLogSetAddress = "Please set IP address to 10.x.x.x or 2.x.x.x!!!!";
constexpr const char* kLogStarted = "Art-Net Node Started...";
constexpr const char* kLogInitError = "! Art-Net Init Error: ";
constexpr const char* kLogPoll = "ArtPoll Recieved";
constexpr const char* kLogUnknownOpCode = "Art-Net: NYI OpCode : 0x";
constexpr const char* kLogDestination = "Art-Net destination: ";
constexpr const char* kLogBadSetting = "Art-Net destination setting ignored, not an address: ";
constexpr const char* kNoSocket = "no network socket on this computer";
constexpr const char* kSendFailed = " Art-Net Sending Failed: ";
constexpr const char* kSendingAgain = " Art-Net Sending Again";
constexpr const char* kIndicatorFailed = "Art-Net sending fails: ";

constexpr const char* kLogBroadcastSetting =
    "Art-Net destination setting ignored, a broadcast address: ";
constexpr const char* kDeskDestination = "to ";
constexpr const char* kDeskThisRun = " (this run)";
constexpr const char* kDeskDestinationTip =
    "Art-Net packets go to this address only (Setup > Art-Net Setup > Destination)";
constexpr const char* kDeskThisRunTip =
    "Art-Net packets go to this address only, given with --artnet-target for this run; "
    "it is not saved";

constexpr const char* kBroadcast10 = "10.255.255.255";
constexpr const char* kBroadcast2 = "2.255.255.255";
constexpr const char* kLimitedBroadcast = "255.255.255.255";
}  // namespace

ArtNetNode::ArtNetNode(DeskContext& context, UdpSocket* socket, MainDesk& main_desk)
    : context_(context),
      main_desk_(main_desk),
      socket_(socket),
      art_time_(context.scheduler().create_timer(true)) {
  art_time_->on_tick([this] { Art_Time_Tick(); });
  if (socket_ != nullptr) {
    // Datagrams become desk events of their own, whatever thread the socket uses.
    socket_->on_datagram([this](std::span<const std::uint8_t> datagram) {
      context_.scheduler().post(
          [this, bytes = std::vector<std::uint8_t>(datagram.begin(), datagram.end())] {
            Art_Receive(bytes);
          });
    });
  }
  if (Settings* settings = context.settings()) {
    const std::string stored = settings->read(kDestinationSetting).value_or("");
    switch (check_destination(stored)) {
      case DestinationCheck::Accepted: destination_ = stored; break;
      case DestinationCheck::NotAnAddress: Art_Log(kLogBadSetting + stored); break;
      case DestinationCheck::Broadcast: Art_Log(kLogBroadcastSetting + stored); break;
    }
  }
  show_destination_on_desk();
}

// The platform's socket outlives the console; it must not call into a node that is gone.
ArtNetNode::~ArtNetNode() {
  if (socket_ != nullptr) socket_->on_datagram(nullptr);
}

void ArtNetNode::send_rows(const DmxFrame& frame) {
  const Store& store = context_.store();
  for (int row = 0; row < 8; ++row) {
    if (store.Art_Universes[row].Enable) Art_Send_Dmx(store.Art_Universes[row].Universe, frame);
  }
}

// A failing send holds the indicator red; it blinks again once packets leave.
void ArtNetNode::blink() {
  if (!send_error_) {
    main_desk_.set_art_net_lamp(main_desk_.art_net_lamp() == Paint{kBlack} ? Paint{kGreen} : Paint{kBlack});
  }
}

void ArtNetNode::Art_Time_Tick() {
  if (context_.output_timing().smooth()) return;
  send_rows(context_.store().DMX_Out);
  blink();
}

void ArtNetNode::take_frame(const DmxFrame& frame) {
  if (!context_.output_timing().smooth() || !art_time_->enabled()) return;
  send_rows(frame);
  // The indicator keeps Art_Time's pace, whatever the frame rate.
  const double now = context_.scheduler().now_ms();
  if (now - last_blink_ms_ >= kArtInterval) {
    last_blink_ms_ = now;
    blink();
  }
}

std::string ArtNetNode::status() const {
  if (!art_time_->enabled()) return "Art-Net off";
  // Art_Net_OK only says whether the next opening of the set-up initialises
  // again; packets go out whenever there is a destination.
  if (art_broadcast_.empty() || socket_ == nullptr) return "Art-Net not started";
  if (send_error_) return "Art-Net sending to " + art_broadcast_ + " fails: " + *send_error_;
  return "Art-Net sending to " + art_broadcast_;
}

void ArtNetNode::Art_Log(const std::string& text) {
  if (std::ostream* out = context_.diagnostics()) *out << text << std::endl;
}

int ArtNetNode::Art_Init() {
  art_broadcast_.clear();
  automatic_broadcast_.clear();
  if (socket_ == nullptr) {
    Art_Log(std::string(kLogInitError) + kNoSocket);
    return 0;
  }
  // Broadcast stays off until a broadcast destination is chosen below.
  socket_->set_broadcast(false);
  if (const auto error = socket_->bind(artnet::kPort)) {
    Art_Log(kLogInitError + *error);
    return 0;
  }
  socket_->set_remote_port(artnet::kPort);
  const std::string local = socket_->local_address();
  const std::string first = local.substr(0, local.find('.'));
  if (first == "10") {
    automatic_broadcast_ = kBroadcast10;
    Art_Log(kLogNet10 + automatic_broadcast_);
  } else if (first == "2") {
    automatic_broadcast_ = kBroadcast2;
    Art_Log(kLogNet2 + automatic_broadcast_);
  } else {
    Art_Log(kLogNotConfigured);
    Art_Log(kLogSetAddress);
    automatic_broadcast_ = kLimitedBroadcast;
  }
  apply_destination();
  Art_Log(kLogStarted);
  return 1;
}

void ArtNetNode::apply_destination() {
  show_destination_on_desk();
  if (automatic_broadcast_.empty()) return;  // not started: nothing is sent
  const std::string& destination = destination_in_force();
  if (destination.empty()) {
    art_broadcast_ = automatic_broadcast_;
    socket_->set_broadcast(true);
  } else {
    art_broadcast_ = destination;
    socket_->set_broadcast(false);
    Art_Log(kLogDestination + destination);
  }
  socket_->set_remote_host(art_broadcast_);
}

void ArtNetNode::show_destination_on_desk() {
  const std::string& destination = destination_in_force();
  if (destination.empty()) {
    main_desk_.set_Art_Destination({}, {});
  } else if (run_destination_) {
    main_desk_.set_Art_Destination(kDeskDestination + destination + kDeskThisRun, kDeskThisRunTip);
  } else {
    main_desk_.set_Art_Destination(kDeskDestination + destination, kDeskDestinationTip);
  }
}

ArtNetNode::DestinationCheck ArtNetNode::check_destination(const std::string& text) const {
  if (text.empty()) return DestinationCheck::Accepted;
  if (is_known_broadcast(text)) return DestinationCheck::Broadcast;
  if (!is_unicast_target(text)) return DestinationCheck::NotAnAddress;
  if (socket_ != nullptr) {
    const auto broadcasts = socket_->broadcast_addresses();
    if (std::find(broadcasts.begin(), broadcasts.end(), text) != broadcasts.end()) {
      return DestinationCheck::Broadcast;
    }
  }
  return DestinationCheck::Accepted;
}

ArtNetNode::DestinationCheck ArtNetNode::set_destination(const std::string& text) {
  const DestinationCheck check = check_destination(text);
  if (check != DestinationCheck::Accepted) return check;
  destination_ = text;
  run_destination_.reset();
  if (Settings* settings = context_.settings()) {
    if (text.empty()) {
      settings->remove(kDestinationSetting);
    } else {
      settings->write(kDestinationSetting, text);
    }
  }
  apply_destination();
  return check;
}

ArtNetNode::DestinationCheck ArtNetNode::set_run_destination(const std::string& text) {
  const DestinationCheck check = check_destination(text);
  if (check != DestinationCheck::Accepted) return check;
  run_destination_ = text;
  apply_destination();
  return check;
}

void ArtNetNode::send(std::span<const std::uint8_t> packet) {
  if (art_broadcast_.empty() || socket_ == nullptr) return;
  socket_->set_remote_host(art_broadcast_);
  note_send_result(socket_->send(packet));
}

// The operator hears of a failing send once, when it starts, and once when
// packets leave again; the node keeps trying on every tick meanwhile.
void ArtNetNode::note_send_result(std::optional<std::string> error) {
  const bool was_failing = send_error_.has_value();
  send_error_ = std::move(error);
  if (send_error_ && !was_failing) {
    context_.status().show_both(kSendFailed + *send_error_);
    main_desk_.set_art_net_lamp(kRed);
    main_desk_.set_art_net_lamp_tooltip(kIndicatorFailed + *send_error_);
  } else if (!send_error_ && was_failing) {
    context_.status().show_both(kSendingAgain);
    main_desk_.set_art_net_lamp(kBlack);
    main_desk_.set_art_net_lamp_tooltip(MainDesk::kArtNetLampToolTip);
  }
}

void ArtNetNode::forget_send_error() {
  if (!send_error_) return;
  send_error_.reset();
  main_desk_.set_art_net_lamp_tooltip(MainDesk::kArtNetLampToolTip);
}

void ArtNetNode::Art_Send_Dmx(int universe, const std::array<std::uint8_t, kDmxSlots + 1>& frame) {
  const auto packet = artnet::build_dmx(static_cast<std::uint8_t>(universe),
                                        std::span<const std::uint8_t, artnet::dmx::kSlots>(
                                            frame.data(), artnet::dmx::kSlots));
  send(packet);
}

void ArtNetNode::Art_Send_Poll_Reply() {
  artnet::PollReplyFields fields;
  fields.node_address = art_node_address_;
  fields.short_name = kShortName;
  fields.long_name = main_desk_.caption();
  fields.node_report = kNodeReport;
  fields.node_universe = art_node_universe_;
  send(artnet::build_poll_reply(fields));
}

void ArtNetNode::Art_Receive(std::span<const std::uint8_t> packet) {
  if (packet.size() < artnet::header::kSize || !artnet::has_id(packet)) return;
  const std::uint16_t op = artnet::opcode(packet);
  if (packet.size() < artnet::minimum_size(op)) return;
  art_packet_seen_ = true;
  if (op == artnet::kOpPoll) {
    Art_Log(kLogPoll);
    last_poll_.fill(0);
    std::copy_n(packet.begin(), std::min(packet.size(), last_poll_.size()), last_poll_.begin());
    Art_Send_Poll_Reply();
  } else if (op == artnet::kOpDmx) {
    if (artnet::dmx_universe(packet) == art_node_universe_) art_dmx_seen_ = true;
  } else {
    Art_Log(kLogUnknownOpCode + std::to_string(static_cast<std::int16_t>(op)));
  }
}

}  // namespace lumaris
