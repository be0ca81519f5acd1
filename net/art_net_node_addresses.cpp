// Where the node's packets go and which address it uses: the destination and
// the interface, kept with this computer's settings or given for one run, and
// which senders' polls it answers.
#include <algorithm>

#include "core/desk_context.h"
#include "core/main_desk.h"
#include "net/art_net_node.h"
#include "net/ipv4_address.h"
#include "platform/scheduler.h"
#include "platform/settings.h"
#include "platform/udp_socket.h"

namespace lumaris {

namespace {
constexpr const char* kLogDestination = "Art-Net destination: ";
constexpr const char* kDeskDestination = "to ";
constexpr const char* kDeskThisRun = " (this run)";
constexpr const char* kDeskDestinationTip =
    "Art-Net packets go to this address only (Setup > Art-Net Setup > Destination)";
constexpr const char* kDeskThisRunTip =
    "Art-Net packets go to this address only, given with --artnet-target for this run; "
    "it is not saved";
}  // namespace

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

bool ArtNetNode::set_interface(const std::string& address) {
  if (!address.empty() && !parse_ipv4(address)) return false;
  interface_ = address;
  run_interface_.reset();
  if (Settings* settings = context_.settings()) {
    if (address.empty()) {
      settings->remove(kInterfaceSetting);
    } else {
      settings->write(kInterfaceSetting, address);
    }
  }
  if (art_net_ok_ || bind_error_) art_net_ok_ = Art_Init() == 1;
  return true;
}

bool ArtNetNode::set_run_interface(const std::string& address) {
  if (!address.empty() && !parse_ipv4(address)) return false;
  run_interface_ = address;
  if (art_net_ok_ || bind_error_) art_net_ok_ = Art_Init() == 1;
  return true;
}

std::vector<std::string> ArtNetNode::local_addresses() const {
  std::vector<std::string> addresses;
  if (socket_ == nullptr) return addresses;
  for (const LocalNetwork& network : socket_->local_networks()) {
    if (std::find(addresses.begin(), addresses.end(), network.address) == addresses.end()) {
      addresses.push_back(network.address);
    }
  }
  return addresses;
}

bool ArtNetNode::may_answer_poll(const std::string& sender) {
  if (socket_ == nullptr) return false;
  const auto from = parse_ipv4(sender);
  if (!from) return false;
  bool own = false;
  for (const LocalNetwork& network : socket_->local_networks()) {
    const auto address = parse_ipv4(network.address);
    const auto mask = parse_ipv4(network.netmask);
    if (!address || !mask) continue;
    bool same = true;
    for (int i = 0; i < 4; ++i) same = same && (((*from)[i] ^ (*address)[i]) & (*mask)[i]) == 0;
    own = own || same;
  }
  if (!own) return false;
  const double now = context_.scheduler().now_ms();
  const std::size_t oldest = static_cast<std::size_t>(poll_replies_ % kPollRepliesPerSecond);
  if (poll_replies_ >= kPollRepliesPerSecond && now - poll_reply_times_[oldest] < 1000) return false;
  poll_reply_times_[oldest] = now;
  ++poll_replies_;
  return true;
}

}  // namespace lumaris
