#include "output/output_device_setup.h"

#include <algorithm>

#include "core/desk_context.h"
#include "output/adapter_numbers.h"
#include "base/number_text.h"
#include "output/output_devices.h"
#include "output/parallel_frames.h"
#include "platform/scheduler.h"

namespace lumaris {

namespace {

constexpr const char* kNoDmxOut = " NO DMX OUT";
constexpr const char* kParlexRunning = " Parlex Adapter Running";
constexpr const char* kOkiNoDmxOut = " OKI 3-1 Adapter - NO DMX OUT";
constexpr const char* kManolatorConnected = " Manolator Connectd ";
constexpr const char* kOksidizerConnecting = " Oksidizer USB2DMX Connecting.....";
constexpr const char* kUsbConnected = " Open USB Connected";
constexpr const char* kUsbSearching = " Open USB Searching.......";
constexpr const char* kUsbNotFound = " Open USB Not Found !";
constexpr const char* kDriverFound = "Driver Found";
constexpr const char* kConnected = "Connected";
constexpr const char* kSearching = "Searching...";
constexpr const char* kDriverNotFound = "USB Driver not Found";

constexpr int kOkiRate = 70;
constexpr int kOpenDmxRate = 40;

}  // namespace

const std::array<const char*, OutputDeviceSetup::kAdapterCount> OutputDeviceSetup::kAdapterEntries = {
    "None",
    "Parlex's Adapter",
    "DMX 3-1 Adapter",
    "Open DMX USB Adapter",
    "Manolator DMX Interface",
    "Oksidizer USB2DMX",
};

const std::array<const char*, OutputDeviceSetup::kAdapterCount> OutputDeviceSetup::kAdapterNames = {
    " None ",
    " Parlex DMX Adapter ",
    " OKI DMX 3-1 Adapter ",
    " Open DMX USB Adapter ",
    " Manolator DMX Interface ",
    " Oksidizer USB2DMX ",
};

OutputDeviceSetup::OutputDeviceSetup(DeskContext& context, OutputDevices& devices, Timer& output_timer)
    : Window("Set DMX Output Device"),
      context_(context),
      devices_(devices),
      output_timer_(output_timer) {}

void OutputDeviceSetup::note_output_in_force() {
  const Store& store = context_.store();
  opened_with_ = {store.Adapter, store.Port_Address, output_timer_.interval()};
}

void OutputDeviceSetup::Form_Load() {
  note_output_in_force();
  const int adapter = context_.store().Adapter;
  chosen_ = adapter >= 0 && adapter < kAdapterCount ? adapter : 0;
  rate_ = output_timer_.interval();
  smooth_ = context_.output_timing().smooth();
  smooth_clicked_ = false;
  // Selecting the entry raises the list's own click, and loading runs the
  // handling once more.
  adapter_list_clicked(chosen_);
  selection_changed();
}

void OutputDeviceSetup::Refresh() {
  // Opening it again while it is open keeps what Cancel goes back to.
  if (!visible()) note_output_in_force();
  const int adapter = context_.store().Adapter;
  chosen_ = adapter >= 0 && adapter < kAdapterCount ? adapter : 0;
  list_index_ = chosen_;
  adapter_name_ = kAdapterNames[chosen_];
  rate_ = output_timer_.interval();
  smooth_ = context_.output_timing().smooth();
  smooth_clicked_ = false;
  lay_out(chosen_);
  show_rate();
  port_option_from_address();
}

void OutputDeviceSetup::adapter_list_clicked(int index) {
  list_index_ = std::clamp(index, 0, kAdapterCount - 1);
  selection_changed();
}

void OutputDeviceSetup::show(std::initializer_list<Control> which) {
  for (const Control c : which) controls_[c] = {true, true};
}

void OutputDeviceSetup::hide(std::initializer_list<Control> which) {
  for (const Control c : which) controls_[c].visible = false;
}

void OutputDeviceSetup::disable(std::initializer_list<Control> which) {
  for (const Control c : which) controls_[c].enabled = false;
}

void OutputDeviceSetup::show_rate() {
  rate_box_ = str_number(rate_) + " mS";
  rate_scroll_ = std::clamp(rate_, kScrollMin, kScrollMax);
}

void OutputDeviceSetup::port_option_from_address() {
  const int address = context_.store().Port_Address;
  if (address == kLpt1Address) {
    lpt1_option_ = true;
    lpt2_option_ = false;
  } else if (address == kLpt2Address) {
    lpt1_option_ = false;
    lpt2_option_ = true;
  }
}

// Which controls the adapter needs.
void OutputDeviceSetup::lay_out(int adapter) {
  switch (adapter) {
    case kAdapterNone:
      hide({Lpt1AddressLabel, Lpt2AddressLabel, PortLabel, Lpt1Option, Lpt2Option,
            RateLabel, RateBox, RateScroll, UsbStateBox});
      disable({RateBox, RateScroll});
      break;
    case kAdapterParlex:
    case kAdapterManolator:
      show({Lpt1AddressLabel, Lpt2AddressLabel, PortLabel, Lpt1Option, Lpt2Option,
            RateLabel, RateBox, RateScroll});
      hide({UsbStateBox});
      break;
    case kAdapterOki:
      show({Lpt1AddressLabel, Lpt2AddressLabel, PortLabel, Lpt1Option, Lpt2Option});
      hide({RateLabel, RateBox, UsbStateBox, RateScroll});
      disable({RateBox, RateScroll});
      break;
    case kAdapterOpenDmx:
      show({UsbStateBox});
      hide({Lpt1AddressLabel, Lpt2AddressLabel, PortLabel, Lpt1Option, Lpt2Option,
            RateLabel, RateBox, RateScroll});
      disable({Lpt1AddressLabel, Lpt2AddressLabel, PortLabel, Lpt1Option, Lpt2Option,
               RateLabel, RateBox, RateScroll});
      break;
    case kAdapterOksidizer:
      show({UsbStateBox});
      hide({Lpt1AddressLabel, Lpt2AddressLabel, PortLabel, Lpt1Option, Lpt2Option,
            RateLabel, RateBox, RateScroll});
      disable({RateScroll});
      break;
    default:
      break;
  }
  if (smooth_ && adapter == kAdapterNone) {
    show({RateLabel, RateBox, RateScroll});
    show_rate();
  }
}

void OutputDeviceSetup::Smooth_Check_Click(bool checked) {
  smooth_ = checked;
  smooth_clicked_ = true;
  lay_out(chosen_);
}

void OutputDeviceSetup::selection_changed() {
  chosen_ = list_index_;
  adapter_name_ = kAdapterNames[chosen_];
  lay_out(chosen_);
  StatusLines& status = context_.status();
  switch (chosen_) {
    case kAdapterNone:
      status.show_both(kNoDmxOut);
      break;
    case kAdapterParlex:
    case kAdapterManolator:
      show_rate();
      status.show_both(chosen_ == kAdapterParlex ? kParlexRunning
                                    : kManolatorConnected + str_number(rate_) + "ms");
      port_option_from_address();
      break;
    case kAdapterOki:
      status.show_both(kOkiNoDmxOut);
      Oki_Wake_Up(devices_.seams().port_io, context_.store().Port_Address);
      port_option_from_address();
      rate_ = kOkiRate;
      break;
    case kAdapterOpenDmx:
      rate_ = kOpenDmxRate;
      driver_search();
      break;
    case kAdapterOksidizer:
      status.show_both(kOksidizerConnecting);
      break;
    default:
      break;
  }
}

void OutputDeviceSetup::driver_search() {
  OutputDevices& devices = devices_;
  OpenDmx& usb = devices.opendmx();
  StatusLines& status = context_.status();
  if (usb.driver_present()) {
    devices.set_USB_Connected(1);
    usb_state_box_ = kDriverFound;
    usb.USB_Get_Error(1);
    usb.USB_Open_Device();
    if (usb.USB_Get_Error(1) == 0) {
      usb_state_box_ = kConnected;
      status.show_both(kUsbConnected);
    } else {
      usb_state_box_ = kSearching;
      status.show_both(kUsbSearching);
    }
  } else {
    usb_state_box_ = kDriverNotFound;
    status.show_both(kUsbNotFound);
    devices.set_USB_Connected(0);
  }
  context_.store().Adapter = kAdapterOpenDmx;
}

void OutputDeviceSetup::lpt1_option_clicked() {
  context_.store().Port_Address = kLpt1Address;
  lpt1_option_ = true;
  lpt2_option_ = false;
}

void OutputDeviceSetup::lpt2_option_clicked() {
  context_.store().Port_Address = kLpt2Address;
  lpt2_option_ = true;
  lpt1_option_ = false;
}

void OutputDeviceSetup::rate_scroll_changed(int value) {
  rate_scroll_ = std::clamp(value, kScrollMin, kScrollMax);
  rate_ = rate_scroll_;
  rate_box_ = str_number(rate_) + " mS";
}

void OutputDeviceSetup::save_clicked() {
  context_.store().Adapter = static_cast<std::int16_t>(chosen_);
  devices_.forget_failure();  // the operator has seen it and chosen
  output_timer_.set_interval(rate_);
  OutputTiming& timing = context_.output_timing();
  // Only the operator's click is kept: a box that shows --smooth for this run
  // saves nothing while it is left alone.
  if (smooth_clicked_ && (smooth_ != timing.smooth() || smooth_ != timing.smooth_setting())) {
    timing.set_smooth(smooth_, context_.settings());
  }
  context_.store().Project_Changed = true;
  Hide();
}

// The port and the Open DMX USB adapter act as soon as they are chosen, so that
// the operator sees the light; Cancel must not leave them in force.
void OutputDeviceSetup::cancel_clicked() {
  Store& store = context_.store();
  if (store.Adapter == kAdapterOpenDmx && opened_with_.adapter != kAdapterOpenDmx) {
    devices_.USB_Close_If_Open();
  }
  store.Adapter = static_cast<std::int16_t>(opened_with_.adapter);
  store.Port_Address = static_cast<std::int16_t>(opened_with_.port);
  if (output_timer_.interval() != opened_with_.rate) output_timer_.set_interval(opened_with_.rate);
  Hide();
}

}  // namespace lumaris
