#include "net/sacn_setup.h"

#include <algorithm>

#include "core/desk_context.h"
#include "net/ipv4_address.h"
#include "net/sacn_output.h"
#include "platform/dialogs.h"

namespace lumaris {

namespace {
constexpr const char* kEnable = "Enable";
constexpr const char* kDisable = "Disable";
constexpr const char* kMessageTitle = " sACN Setup";

std::string trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// A whole number in decimal digits; nothing for anything else (or absurdly long text).
std::optional<int> whole_number(const std::string& text) {
  if (text.empty() || text.size() > 6) return std::nullopt;
  if (!std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; })) {
    return std::nullopt;
  }
  return std::stoi(text);
}
}  // namespace

SacnSetup::SacnSetup(DeskContext& context, SacnOutput& output)
    : Window(kCaption), context_(context), output_(output) {
  refresh_rows();
  refresh_fields();
}

void SacnSetup::Form_Load() {
  refresh_rows();
  refresh_fields();
}

void SacnSetup::refresh_rows() {
  for (int i = 0; i < kRows; ++i) {
    const SacnOutput::Row& row = output_.row(i);
    Row& shown = rows_[static_cast<std::size_t>(i)];
    shown.universe = std::to_string(row.universe);
    shown.caption = row.enabled ? kDisable : kEnable;
    shown.colour = row.enabled ? kGreen : kRed;
  }
}

void SacnSetup::refresh_fields() {
  source_name_ = output_.source_name();
  priority_ = std::to_string(output_.priority());
  destination_ = output_.destination();
  interface_ = output_.interface_address();
}

void SacnSetup::complain(const std::string& text) {
  context_.dialogs().message(
      {kMessageTitle, text, MessageIcon::Exclamation, MessageButtons::Ok, MessageResult::Ok});
}

void SacnSetup::Universe_Change(int i, const std::string& text) {
  if (i < 0 || i >= kRows) return;
  rows_[static_cast<std::size_t>(i)].universe = text;
}

void SacnSetup::Enable_Click(int i) {
  if (i < 0 || i >= kRows) return;
  const SacnOutput::Row current = output_.row(i);
  const std::string text = trimmed(rows_[static_cast<std::size_t>(i)].universe);
  const auto universe = whole_number(text);
  std::optional<std::string> error;
  if (current.enabled) {
    error = output_.set_row(i, current.universe, false);
  } else if (!universe) {
    error = "Not a universe number: \"" + text + "\". Type a number from 1 to 63999.";
  } else {
    error = output_.set_row(i, *universe, true);
  }
  if (error) complain(*error);
  refresh_rows();
}

void SacnSetup::Apply_Click() {
  const std::string name = trimmed(source_name_);
  const std::string priority_text = trimmed(priority_);
  const std::string destination = trimmed(destination_);
  const std::string interface_address = trimmed(interface_);
  const auto priority = whole_number(priority_text);
  // Every field is checked before any is applied: one bad field changes nothing.
  std::optional<std::string> error;
  if (!priority) {
    error = "Not a priority: \"" + priority_text + "\". Type a number from 0 to 200.";
  } else if (*priority > 200) {
    error = "The sACN priority runs from 0 to 200; " + priority_text + " is not one.";
  } else if (name.empty() || name.size() > 63) {
    error = "The source name must have 1 to 63 bytes.";
  }
  const auto bad_address = [](const std::string& text) {
    return !text.empty() && !is_unicast_target(text);
  };
  if (!error && bad_address(destination)) {
    error = "Not an IPv4 address: \"" + destination +
            "\". Type four numbers 0-255 separated by dots, such as 127.0.0.1, or leave the "
            "destination empty to multicast each universe to 239.255.hi.lo.";
  } else if (!error && bad_address(interface_address)) {
    error = "Not an IPv4 address: \"" + interface_address +
            "\". Type the address this computer has on the network to send on, or leave the "
            "interface empty to let the computer choose.";
  }
  if (error) {
    complain(*error);
    refresh_fields();
    return;
  }
  output_.set_source_name(name);
  output_.set_priority(*priority);
  output_.set_destination(destination);
  output_.set_interface(interface_address);
  refresh_fields();
}

std::string SacnSetup::Status() const { return output_.status(); }

}  // namespace lumaris
