#include "net/art_net_setup.h"

#include "core/desk_context.h"
#include "core/main_desk.h"
#include "net/art_net_node.h"
#include "platform/dialogs.h"
#include "platform/scheduler.h"

namespace lumaris {

namespace {
constexpr const char* kCaption = "Art Net Setup";
constexpr const char* kEnable = "Enable";
constexpr const char* kDisable = "Disable";
constexpr const char* kStateOk = " Art Net OK";
constexpr const char* kStatusOk = " ART NET OK ";
constexpr const char* kStateLoading = " Loading.......";
constexpr const char* kStatusLoading = " ART NET Loading.......";
constexpr const char* kStateFailed =
    " ! Art-Net Failed, Maybe another Art-Net program has the open?";
constexpr const char* kStatusFailed = " Art-Net Failed";
constexpr const char* kInitialized = " Art-Net Initialized";
constexpr const char* kNotSending = " Not sending";
constexpr const char* kSendingTo = " Sending to ";
constexpr const char* kOnPort = " port 6454";
constexpr const char* kAutomatic = " (automatic)";
constexpr const char* kBadDestination =
    "Not an IPv4 address: \"%\".\nType four numbers 0-255 separated by dots, such as "
    "127.0.0.1, or leave the field empty to send to the broadcast address automatically.";
constexpr const char* kBroadcastDestination =
    "\"%\" is a broadcast address, not one node.\nType the IPv4 address of the node that is to "
    "receive Art-Net, such as 127.0.0.1, or leave the field empty to broadcast to the whole "
    "network automatically.";
constexpr const char* kThisRun = " (this run only, --artnet-target)";
constexpr const char* kEveryAddress = "Every address (automatic)";
constexpr const char* kBindThisRun = " (this run only, --artnet-bind)";
// Rows 0..8 count, as they always have; only 0..7 have buttons.
constexpr int kRowsThatRun = 9;
}  // namespace

ArtNetSetup::ArtNetSetup(DeskContext& context, ArtNetNode& node, MainDesk& main_desk)
    : Window(kCaption), context_(context), node_(node), main_desk_(main_desk) {
  destination_text_ = node_.destination();
  list_interfaces();
}

void ArtNetSetup::Form_Load() {
  for (Row& row : rows_) row.caption = kEnable;
  Refresh_Buttons();
  destination_text_ = node_.destination();
  list_interfaces();
  start_node();
}

void ArtNetSetup::list_interfaces() {
  interface_choices_ = {""};
  for (const std::string& address : node_.local_addresses()) interface_choices_.push_back(address);
  // A kept or given address that is not up now still shows as the one chosen.
  const std::string& chosen = node_.interface_in_force();
  if (Interface_Index() < 0) interface_choices_.push_back(chosen);
  interface_items_.clear();
  for (const std::string& address : interface_choices_) {
    std::string item = address.empty() ? kEveryAddress : address;
    if (address == chosen && node_.interface_for_this_run()) item += kBindThisRun;
    interface_items_.push_back(item);
  }
}

int ArtNetSetup::Interface_Index() const {
  for (std::size_t i = 0; i < interface_choices_.size(); ++i) {
    if (interface_choices_[i] == node_.interface_in_force()) return static_cast<int>(i);
  }
  return -1;
}

void ArtNetSetup::Interface_Click(int index) {
  if (index < 0 || index >= static_cast<int>(interface_choices_.size())) return;
  node_.set_interface(interface_choices_[static_cast<std::size_t>(index)]);
  list_interfaces();
}

void ArtNetSetup::start_node() {
  ArtNetNode& node = node_;
  StatusLines& status = context_.status();
  if (node.Art_Net_OK()) {
    state_box_ = kStateOk;
    status.show_both(kStatusOk);
    return;
  }
  state_box_ = kStateLoading;
  status.show_both(kStatusLoading);
  if (node.Art_Init() == 0) {
    state_box_ = kStateFailed;
    status.show_both(kStatusFailed);
    node.set_Art_Net_OK(false);
  } else {
    state_box_ = kInitialized;
    status.show_both(kInitialized);
    node.set_Art_Net_OK(true);
  }
}

std::string ArtNetSetup::universe_box(int i) const {
  const ArtUniverse& row = context_.store().Art_Universes[i];
  return std::to_string(row.Enable ? row.Universe : i);
}

void ArtNetSetup::Refresh_Buttons() {
  const Store& store = context_.store();
  for (int i = 0; i < kRows; ++i) {
    const bool enabled = store.Art_Universes[i].Enable;
    rows_[i].caption = enabled ? kDisable : kEnable;
    rows_[i].colour = enabled ? kGreen : kRed;
  }
}

void ArtNetSetup::Update_Send_Timer() {
  const Store& store = context_.store();
  bool any = false;
  for (int i = 0; i < kRowsThatRun; ++i) any = any || store.Art_Universes[i].Enable;
  Timer& art_time = node_.Art_Time();
  MainDesk& desk = main_desk_;
  if (any) {
    art_time.set_interval(ArtNetNode::kArtInterval);
    art_time.set_enabled(true);
    desk.set_art_net_lamp(node_.idle_lamp());
    desk.set_Art_Label_enabled(true);
  } else {
    art_time.set_enabled(false);
    node_.forget_send_error();
    node_.stop_retrying();
    desk.set_art_net_lamp(Paint{});
    desk.set_Art_Label_enabled(false);
    node_.set_Art_Net_OK(false);  // the next opening initialises again
  }
}

void ArtNetSetup::enable_button_clicked(int index) {
  if (index < 0 || index >= kRows) return;
  ArtUniverse& row = context_.store().Art_Universes[index];
  if (row.Enable) {
    row.Enable = false;
  } else {
    row.Enable = true;
    row.Universe = static_cast<std::uint8_t>(index);
  }
  Refresh_Buttons();
  Update_Send_Timer();
}

void ArtNetSetup::close_clicked() { Hide(); }

void ArtNetSetup::Start_From_Show() {
  const Store& store = context_.store();
  bool any = false;
  for (int i = 0; i < kRowsThatRun; ++i) any = any || store.Art_Universes[i].Enable;
  Refresh_Buttons();
  if (any) start_node();
  Update_Send_Timer();
}

void ArtNetSetup::Destination_Set_Click() {
  ArtNetNode& node = node_;
  const auto first = destination_text_.find_first_not_of(" \t");
  const auto last = destination_text_.find_last_not_of(" \t");
  destination_text_ =
      first == std::string::npos ? std::string() : destination_text_.substr(first, last - first + 1);
  const ArtNetNode::DestinationCheck check = node.set_destination(destination_text_);
  if (check != ArtNetNode::DestinationCheck::Accepted) {
    std::string text =
        check == ArtNetNode::DestinationCheck::Broadcast ? kBroadcastDestination : kBadDestination;
    text.replace(text.find('%'), 1, destination_text_);
    context_.dialogs().message(
        {kDestinationTitle, text, MessageIcon::Exclamation, MessageButtons::Ok, MessageResult::Ok});
  }
  destination_text_ = node.destination();
}

std::string ArtNetSetup::Destination_Status() const {
  const ArtNetNode& node = node_;
  if (node.Art_Broadcast().empty()) return kNotSending;
  const char* origin = node.destination_in_force().empty() ? kAutomatic
                       : node.destination_for_this_run()     ? kThisRun
                                                             : "";
  return kSendingTo + node.Art_Broadcast() + kOnPort + origin;
}

}  // namespace lumaris
