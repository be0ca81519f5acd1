#include "net/sacn_output.h"

#include <algorithm>
#include <ostream>
#include <random>

#include "core/desk_context.h"
#include "core/status_lines.h"
#include "net/ipv4_address.h"
#include "platform/settings.h"
#include "platform/udp_socket.h"

namespace lumaris {

namespace {
constexpr const char* kNoSocket = "no network socket on this computer";
constexpr const char* kSendFailed = " sACN sending failed: ";
constexpr const char* kSendingAgain = " sACN sending again";

std::string row_key(int i, const char* field) {
  return "sacn/row" + std::to_string(i + 1) + "/" + field;
}

std::optional<int> parse_int(const std::string& text) {
  if (text.empty() || text.size() > 9) return std::nullopt;
  if (!std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; })) {
    return std::nullopt;
  }
  return std::stoi(text);
}

// A version 4 (random) UUID.
sacn::Cid make_cid() {
  std::random_device random;
  sacn::Cid cid{};
  for (auto& byte : cid) byte = static_cast<std::uint8_t>(random() & 0xFF);
  cid[6] = static_cast<std::uint8_t>((cid[6] & 0x0F) | 0x40);
  cid[8] = static_cast<std::uint8_t>((cid[8] & 0x3F) | 0x80);
  return cid;
}

std::string universe_error(int universe) {
  return "sACN universes run from " + std::to_string(sacn::kMinUniverse) + " to " +
         std::to_string(sacn::kMaxUniverse) + "; " + std::to_string(universe) + " is not one.";
}
}  // namespace

SacnOutput::SacnOutput(DeskContext& context, UdpSocket* socket) : context_(context), socket_(socket) {
  for (int i = 0; i < kRows; ++i) rows_[static_cast<std::size_t>(i)].universe = i + 1;
  load_settings();
}

// Settings written by hand or by another version are read with the same checks
// as the window's; a value that fails keeps the default.
void SacnOutput::load_settings() {
  Settings* settings = context_.settings();
  if (settings == nullptr) {
    cid_ = make_cid();
    return;
  }
  if (!sacn::parse_cid(settings->read(kCidSetting).value_or(""), cid_)) {
    cid_ = make_cid();
    settings->write(kCidSetting, sacn::cid_text(cid_));
  }
  for (int i = 0; i < kRows; ++i) {
    Row& row = rows_[static_cast<std::size_t>(i)];
    const auto universe = parse_int(settings->read(row_key(i, "universe")).value_or(""));
    if (universe && *universe >= sacn::kMinUniverse && *universe <= sacn::kMaxUniverse) {
      row.universe = *universe;
    }
    row.enabled = settings->read(row_key(i, "enabled")).value_or("") == "true";
  }
  // Two rows on one universe would be one stream sent twice: the later row stays off.
  for (int i = 0; i < kRows; ++i) {
    for (int j = 0; j < i; ++j) {
      if (rows_[static_cast<std::size_t>(i)].enabled && rows_[static_cast<std::size_t>(j)].enabled &&
          rows_[static_cast<std::size_t>(i)].universe == rows_[static_cast<std::size_t>(j)].universe) {
        rows_[static_cast<std::size_t>(i)].enabled = false;
      }
    }
  }
  if (const auto name = settings->read(kSourceNameSetting); name && !name->empty()) {
    source_name_ = name->substr(0, sacn::kSourceNameSize - 1);
  }
  if (const auto priority = parse_int(settings->read(kPrioritySetting).value_or(""));
      priority && *priority <= sacn::kMaxPriority) {
    priority_ = *priority;
  }
  const std::string destination = settings->read(kDestinationSetting).value_or("");
  if (is_unicast_target(destination)) destination_ = destination;
  const std::string interface_address = settings->read(kInterfaceSetting).value_or("");
  if (is_unicast_target(interface_address)) interface_ = interface_address;
}

void SacnOutput::save_row(int i) {
  Settings* settings = context_.settings();
  if (settings == nullptr) return;
  const Row& r = row(i);
  settings->write(row_key(i, "universe"), std::to_string(r.universe));
  settings->write(row_key(i, "enabled"), r.enabled ? "true" : "false");
}

std::optional<std::string> SacnOutput::set_row(int i, int universe, bool enabled) {
  if (i < 0 || i >= kRows) return "There is no sACN row " + std::to_string(i + 1) + ".";
  if (universe < sacn::kMinUniverse || universe > sacn::kMaxUniverse) return universe_error(universe);
  if (enabled) {
    for (int j = 0; j < kRows; ++j) {
      if (j != i && row(j).enabled && row(j).universe == universe) {
        return "Universe " + std::to_string(universe) + " is already sent by row " +
               std::to_string(j + 1) + ".";
      }
    }
  }
  rows_[static_cast<std::size_t>(i)] = Row{universe, enabled};
  save_row(i);
  end_unwanted();
  return std::nullopt;
}

std::optional<std::string> SacnOutput::set_source_name(const std::string& name) {
  if (name.empty()) return "The source name cannot be empty: receivers show it to their operators.";
  if (name.size() >= sacn::kSourceNameSize) {
    return "The source name is too long: at most " + std::to_string(sacn::kSourceNameSize - 1) +
           " bytes.";
  }
  source_name_ = name;
  if (Settings* settings = context_.settings()) settings->write(kSourceNameSetting, name);
  return std::nullopt;
}

std::optional<std::string> SacnOutput::set_priority(int priority) {
  if (priority < 0 || priority > sacn::kMaxPriority) {
    return "The sACN priority runs from 0 to " + std::to_string(sacn::kMaxPriority) + "; " +
           std::to_string(priority) + " is not one.";
  }
  priority_ = priority;
  if (Settings* settings = context_.settings()) {
    settings->write(kPrioritySetting, std::to_string(priority));
  }
  return std::nullopt;
}

std::optional<std::string> SacnOutput::set_destination(const std::string& address) {
  if (!address.empty() && !is_unicast_target(address)) {
    return "Not an IPv4 address: \"" + address +
           "\". Type four numbers 0-255 separated by dots, such as 127.0.0.1, or leave the "
           "field empty to multicast each universe to 239.255.hi.lo.";
  }
  destination_ = address;
  if (Settings* settings = context_.settings()) {
    if (address.empty()) {
      settings->remove(kDestinationSetting);
    } else {
      settings->write(kDestinationSetting, address);
    }
  }
  end_unwanted();
  return std::nullopt;
}

std::optional<std::string> SacnOutput::set_interface(const std::string& address) {
  if (!address.empty() && !is_unicast_target(address)) {
    return "Not an IPv4 address: \"" + address +
           "\". Type the address this computer has on the network to send on, or leave the "
           "field empty to let the computer choose.";
  }
  if (address == interface_) return std::nullopt;
  // The streams end on the old interface before the socket moves.
  const bool was_running = running_;
  running_ = false;
  end_unwanted();
  running_ = was_running;
  if (socket_ != nullptr && socket_open_) socket_->close();
  socket_open_ = false;
  interface_ = address;
  if (Settings* settings = context_.settings()) {
    if (address.empty()) {
      settings->remove(kInterfaceSetting);
    } else {
      settings->write(kInterfaceSetting, address);
    }
  }
  return std::nullopt;
}

void SacnOutput::set_run_target(const std::string& address) {
  run_target_ = address;
  end_unwanted();
}

std::string SacnOutput::target_of(int universe) const {
  if (run_target_) return *run_target_;
  if (!destination_.empty()) return destination_;
  return sacn::multicast_address(universe);
}

std::map<int, std::string> SacnOutput::wanted_streams() const {
  std::map<int, std::string> wanted;
  if (!running_) return wanted;
  for (const Row& r : rows_) {
    if (r.enabled) wanted[r.universe] = target_of(r.universe);
  }
  if (wanted.empty() && run_target_) wanted[1] = *run_target_;
  return wanted;
}

void SacnOutput::end_unwanted() {
  const auto wanted = wanted_streams();
  for (auto it = live_.begin(); it != live_.end();) {
    const auto found = wanted.find(it->first);
    if (found != wanted.end() && found->second == it->second) {
      ++it;
      continue;
    }
    for (int n = 0; n < sacn::kTerminationPackets; ++n) send_packet(it->first, it->second, true);
    it = live_.erase(it);
  }
}

void SacnOutput::take_frame(const DmxFrame& frame) {
  std::copy_n(frame.begin(), sacn::kSlots, last_slots_.begin());
  end_unwanted();
  for (const auto& [universe, host] : wanted_streams()) {
    send_packet(universe, host, false);
    live_[universe] = host;
  }
}

void SacnOutput::start() { running_ = true; }

void SacnOutput::stop() {
  running_ = false;
  end_unwanted();
  if (socket_ != nullptr && socket_open_) socket_->close();
  socket_open_ = false;
  error_.reset();
}

bool SacnOutput::open_socket() {
  if (socket_open_) return true;
  if (socket_ == nullptr) {
    note_error(kNoSocket);
    return false;
  }
  socket_->set_broadcast(false);
  if (auto error = socket_->bind(0, interface_)) {
    note_error(*error);
    return false;
  }
  socket_->set_remote_port(sacn::kPort);
  socket_open_ = true;
  return true;
}

void SacnOutput::send_packet(int universe, const std::string& host, bool terminated) {
  if (!open_socket()) return;
  sacn::StreamFields fields;
  fields.cid = cid_;
  fields.source_name = source_name_;
  fields.priority = static_cast<std::uint8_t>(priority_);
  fields.universe = static_cast<std::uint16_t>(universe);
  fields.sequence = sequence_[universe]++;  // per universe, wrapping 255 -> 0
  fields.terminated = terminated;
  const auto packet = sacn::build_data(fields, last_slots_);
  socket_->set_remote_host(host);
  note_error(socket_->send(packet));
}

// The operator hears once when sending starts failing and once when it recovers.
void SacnOutput::note_error(std::optional<std::string> error) {
  const bool was_failing = error_.has_value();
  error_ = std::move(error);
  if (error_ && !was_failing) {
    context_.status().show_both(kSendFailed + *error_);
    if (std::ostream* out = context_.diagnostics()) *out << kSendFailed << *error_ << std::endl;
  } else if (!error_ && was_failing) {
    context_.status().show_both(kSendingAgain);
  }
}

std::string SacnOutput::status() const {
  const auto wanted = wanted_streams();
  if (wanted.empty()) return running_ ? "sACN off" : "sACN stopped";
  std::string where;
  if (run_target_) {
    where = *run_target_ + " (this run only)";
  } else if (!destination_.empty()) {
    where = destination_;
  } else {
    where = "multicast";
  }
  std::string universes;
  for (const auto& entry : wanted) {
    universes += (universes.empty() ? "" : ", ") + std::to_string(entry.first);
  }
  std::string text = "sACN universe" + std::string(wanted.size() > 1 ? "s " : " ") + universes +
                     " to " + where;
  if (error_) text += " fails: " + *error_;
  return text;
}

}  // namespace lumaris
