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
constexpr const char* kLogBadSetting = "Art-Net destination setting ignored, not an address: ";
constexpr const char* kNoSocket = "no network socket on this computer";
constexpr const char* kSendFailed = " Art-Net Sending Failed: ";
constexpr const char* kSendingAgain = " Art-Net Sending Again";
constexpr const char* kIndicatorFailed = "Art-Net sending fails: ";

constexpr const char* kLogBroadcastSetting =
    "Art-Net destination setting ignored, a broadcast address: ";
constexpr const char* kPortTaken = " Art-Net cannot use port 6454: ";
constexpr const char* kPortTakenWhy =
    " (another program holds it and does not share it); trying again every 3 s";
constexpr const char* kPortFree = " Art-Net port 6454 is free again: Art-Net started";

constexpr const char* kBroadcast10 = "10.255.255.255";
constexpr const char* kBroadcast2 = "2.255.255.255";
constexpr const char* kLimitedBroadcast = "255.255.255.255";
}  // namespace

ArtNetNode::ArtNetNode(DeskContext& context, UdpSocket* socket, MainDesk& main_desk)
    : context_(context),
      main_desk_(main_desk),
      socket_(socket),
      art_time_(context.scheduler().create_timer(true)),
      bind_retry_(context.scheduler().create_timer()) {
  art_time_->on_tick([this] { Art_Time_Tick(); });
  bind_retry_->set_interval(kBindRetryInterval);
  bind_retry_->on_tick([this] {
    if (Art_Init() == 1) set_Art_Net_OK(true);
  });
  if (socket_ != nullptr) {
    // Datagrams become desk events of their own, whatever thread the socket uses.
    socket_->on_datagram([this](std::span<const std::uint8_t> datagram, const std::string& sender) {
      context_.scheduler().post(
          [this, sender, bytes = std::vector<std::uint8_t>(datagram.begin(), datagram.end())] {
            Art_Receive(bytes, sender);
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
  if (Settings* settings = context.settings()) {
    const std::string stored = settings->read(kInterfaceSetting).value_or("");
    if (stored.empty() || parse_ipv4(stored)) interface_ = stored;
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

// A failing send holds the indicator amber; it blinks again once packets leave.
void ArtNetNode::blink() {
  if (bind_error_) {
    main_desk_.set_art_net_lamp(kPortTakenLamp);
  } else if (!send_error_) {
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
  if (bind_error_) return "Art-Net waiting for port 6454: " + *bind_error_;
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
  const std::string& bound_to = interface_in_force();
  const auto error = socket_->bind(artnet::kPort, bound_to);
  note_bind_result(error);
  if (error) {
    Art_Log(kLogInitError + *error);
    return 0;
  }
  socket_->set_remote_port(artnet::kPort);
  // The automatic broadcast address follows the interface the node is bound to.
  const std::string local = bound_to.empty() ? socket_->local_address() : bound_to;
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

// A taken port is said once, and once when it is had again; meanwhile the lamp
// stays amber with the reason and binding is tried again on a timer of its own.
void ArtNetNode::note_bind_result(std::optional<std::string> error) {
  const bool was_taken = bind_error_.has_value();
  bind_error_ = std::move(error);
  bind_retry_->set_enabled(bind_error_.has_value());
  std::string said;
  if (bind_error_ && !was_taken) {
    said = kPortTaken + *bind_error_ + kPortTakenWhy;
    main_desk_.set_art_net_lamp(kPortTakenLamp);
    main_desk_.set_art_net_lamp_tooltip(said.substr(1));
  } else if (!bind_error_ && was_taken) {
    said = kPortFree;
    main_desk_.set_art_net_lamp(kBlack);
    main_desk_.set_art_net_lamp_tooltip(MainDesk::kArtNetLampToolTip);
  }
  if (said.empty()) return;
  context_.status().show_both(said);
  if (port_report_) port_report_(said.substr(1));
}

void ArtNetNode::stop_retrying() {
  bind_retry_->set_enabled(false);
  if (!bind_error_) return;
  bind_error_.reset();
  main_desk_.set_art_net_lamp_tooltip(MainDesk::kArtNetLampToolTip);
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
    main_desk_.set_art_net_lamp(MainDesk::kTroubleLamp);
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

void ArtNetNode::Art_Receive(std::span<const std::uint8_t> packet, const std::string& sender) {
  if (packet.size() < artnet::header::kSize || !artnet::has_id(packet)) return;
  const std::uint16_t op = artnet::opcode(packet);
  if (packet.size() < artnet::minimum_size(op)) return;
  art_packet_seen_ = true;
  if (op == artnet::kOpPoll) {
    Art_Log(kLogPoll);
    last_poll_.fill(0);
    std::copy_n(packet.begin(), std::min(packet.size(), last_poll_.size()), last_poll_.begin());
    if (may_answer_poll(sender)) Art_Send_Poll_Reply();
  } else if (op == artnet::kOpDmx) {
    if (artnet::dmx_universe(packet) == art_node_universe_) art_dmx_seen_ = true;
  } else {
    Art_Log(kLogUnknownOpCode + std::to_string(static_cast<std::int16_t>(op)));
  }
}

}  // namespace lumaris
