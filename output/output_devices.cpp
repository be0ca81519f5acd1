#include "output/output_devices.h"

#include <cstdio>
#include <stdexcept>

#include "core/desk_context.h"
#include "output/adapter_numbers.h"
#include "output/parallel_frames.h"
#include "output/output_device_setup.h"
#include "platform/adapter_libraries.h"
#include "platform/dialogs.h"

namespace lumaris {

namespace {

constexpr const char* kDmxErrorTitle = " DMX ERROR";
constexpr const char* kOkiNotRespondingMessage = " 3-1 DMX Adapter Not Connected or Not Responding";
constexpr const char* kOkiNotRespondingStatus = " 3-1 Adapter Not connected ot not responding";
constexpr const char* kOksidNotResponding = " USB DMX Adapter Not Connected or Not Responding";
constexpr const char* kUsbConnectedStatus = " Open USB Connected";
constexpr const char* kUsbSearchingStatus = " Open USB Searching";
constexpr const char* kUsbConnectedState = "Connected";
constexpr const char* kUsbSearchingState = "Searching...";

constexpr std::int32_t kOksidSendDmx = 4;
constexpr const char* kNoDriver = "the FTDI driver is not installed";
constexpr const char* kNoDriverStatus = " driver not found";
constexpr std::int16_t kLibraryMissing = -1;

// An adapter's name as a sentence starts with it.
std::string adapter_name(int adapter) {
  std::string name = OutputDeviceSetup::kAdapterNames[adapter];
  const auto first = name.find_first_not_of(' ');
  const auto last = name.find_last_not_of(' ');
  return name.substr(first, last - first + 1);
}

std::string port_name(int address) {
  char text[16];
  std::snprintf(text, sizeof text, "%Xh", static_cast<unsigned>(address));
  return text;
}

}  // namespace

OutputDevices::OutputDevices(DeskContext& context, const AdapterSeams& seams)
    : context_(context), seams_(seams), opendmx_(context, seams.d2xx) {}

void OutputDevices::take_frame(const DmxFrame& /*frame*/) { Send_Frame(); }

std::string OutputDevices::status() const {
  const int adapter = context_.store().Adapter;
  if (adapter < 0 || adapter >= OutputDeviceSetup::kAdapterCount) return OutputDeviceSetup::kAdapterNames[0];
  std::string text = OutputDeviceSetup::kAdapterNames[adapter];
  if (adapter == kAdapterOpenDmx) {
    if (driver_missing_) {
      text += kNoDriverStatus;
    } else {
      text += usb_connected_ == 1 && opendmx_.USB_Open() ? " connected" : " searching";
    }
  }
  return text;
}

std::string OutputDevices::fault() const {
  const int adapter = context_.store().Adapter;
  switch (adapter) {
    case kAdapterNone:
      return failure_;
    case kAdapterParlex:
    case kAdapterManolator:
      if (!port_failed_) return {};
      return adapter_name(adapter) + ": the parallel port at " + port_name(context_.store().Port_Address) +
             " is missing or not accessible";
    case kAdapterOpenDmx:
      if (driver_missing_) return adapter_name(adapter) + ": " + kNoDriver;
      if (usb_connected_ != 1 || !opendmx_.USB_Open()) {
        return adapter_name(adapter) + " not found: searching for it at every output tick";
      }
      return {};
    default:
      return {};
  }
}

void OutputDevices::Send_Frame() {
  Store& store = context_.store();
  PortIo* port = seams_.port_io;
  if (store.Adapter != kAdapterNone) failure_.clear();  // chosen again since
  switch (store.Adapter) {
    case kAdapterParlex:
      port_failed_ = !Send_Parallel_Frame(port, store.Port_Address, store.DMX_Out, kParlexSlots);
      break;
    case kAdapterOki:
      send_oki();
      break;
    case kAdapterOpenDmx:
      send_open_dmx();
      break;
    case kAdapterManolator:
      port_failed_ = !Send_Parallel_Frame(port, store.Port_Address, store.DMX_Out, kManolatorSlots);
      break;
    case kAdapterOksidizer:
      send_oksidizer();
      break;
    default:
      break;
  }
}

void OutputDevices::send_oki() {
  Store& store = context_.store();
  AdapterLibraries* libraries = seams_.adapter_libraries;
  const std::int16_t read_status =
      libraries ? libraries->Okdmx31Read(store.Port_Address, 0, oki_in_.data()) : kLibraryMissing;
  if (read_status != 0) adapter_failed(kAdapterOki);
  const std::int16_t write_status =
      libraries ? libraries->Okdmx31Write(store.Port_Address, 0, store.DMX_Out.data())
                : kLibraryMissing;
  if (write_status != 0) adapter_failed(kAdapterOki);
}

void OutputDevices::send_oksidizer() {
  Store& store = context_.store();
  AdapterLibraries* libraries = seams_.adapter_libraries;
  // The library is handed the 512 bytes from element 1 on.
  const std::int32_t status =
      libraries ? libraries->OksidCommand(kOksidSendDmx, kDmxSlots, store.DMX_Out.data() + 1)
                : kLibraryMissing;
  if (status != 0) adapter_failed(kAdapterOksidizer);
}

void OutputDevices::send_open_dmx() {
  // Without the driver library there is nothing to call: the tick ends as a call
  // into a missing library does, and the output indicator goes dark.
  driver_missing_ = !opendmx_.driver_present();
  if (driver_missing_) throw std::runtime_error(kNoDriver);
  if (usb_searching_ == 1) {
    opendmx_.USB_Close_Device();
    opendmx_.USB_Reset_Device();
    opendmx_.USB_Open_Device();
    // Before quiet mode a failing open is only shown and leaves no code: the
    // device counts as connected only when it is open.
    if (opendmx_.USB_Get_Error(1) == 0 && opendmx_.USB_Open()) {
      if (setup_ && setup_->visible()) setup_->set_usb_state_box(kUsbConnectedState);
      context_.status().show_both(kUsbConnectedStatus);
      usb_connected_ = 1;
      usb_searching_ = 0;
    }
  }
  if (usb_connected_ == 1) {
    opendmx_.USB_Set_Start_Code(0);
    opendmx_.USB_Set_Data(context_.store().DMX_Out);
    opendmx_.USB_Send_Frame();
    if (opendmx_.USB_Get_Error(1) != 0 || !opendmx_.USB_Open()) {
      if (setup_ && setup_->visible()) setup_->set_usb_state_box(kUsbSearchingState);
      context_.status().show_both(kUsbSearchingStatus);
      usb_searching_ = 1;
      usb_connected_ = 0;
    }
  }
}

void OutputDevices::adapter_failed(int adapter) {
  context_.store().Adapter = kAdapterNone;
  const bool oki = adapter == kAdapterOki;
  context_.dialogs().message({kDmxErrorTitle, oki ? kOkiNotRespondingMessage : kOksidNotResponding,
                              MessageIcon::Exclamation, MessageButtons::Ok, MessageResult::Ok});
  context_.status().show_both(oki ? kOkiNotRespondingStatus : kOksidNotResponding);
  if (setup_ && setup_->visible()) setup_->adapter_list_clicked(0);
  failure_ = std::string(oki ? kOkiNotRespondingMessage : kOksidNotResponding).substr(1);
}

}  // namespace lumaris
