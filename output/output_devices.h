#pragma once

#include <array>
#include <cstdint>

#include "core/output_sink.h"
#include "core/store.h"
#include "output/open_dmx.h"

namespace lumaris {

class DeskContext;
class OutputDeviceSetup;
class PortIo;
class AdapterLibraries;

// The hardware the adapters reach; a missing seam behaves as hardware that does
// not answer.
struct AdapterSeams {
  D2xx* d2xx = nullptr;
  PortIo* port_io = nullptr;
  AdapterLibraries* adapter_libraries = nullptr;
};

// Hands each finished frame to the selected adapter: the parallel-port adapters,
// the OKI DMX 3-1, the Open DMX USB with its search/connect cycle, and the
// Oksidizer USB2DMX. Adapter failures never raise; they fall back to None.
class OutputDevices final : public OutputSink {
 public:
  OutputDevices(DeskContext& context, const AdapterSeams& seams);
  // The set-up window shows the Open DMX USB link state while it is open.
  void set_setup_window(OutputDeviceSetup& setup) { setup_ = &setup; }
  const AdapterSeams& seams() const { return seams_; }

  // One sink of the output cycle: the frame goes to the selected adapter.
  void take_frame(const DmxFrame& frame) override;
  void start() override {}
  void stop() override { USB_Close_If_Open(); }
  std::string status() const override;
  // Why the chosen adapter takes no frames: not found, failing, or switched off
  // after it failed (until the operator chooses an adapter again).
  std::string fault() const override;
  void forget_failure() { failure_.clear(); }

  // Sends DMX_Out, complete after an output tick, on the selected adapter.
  void Send_Frame();
  // Called on every exit path of the program.
  void USB_Close_If_Open() { opendmx_.USB_Close_If_Open(); }

  OpenDmx& opendmx() { return opendmx_; }
  const OpenDmx& opendmx() const { return opendmx_; }

  // The Open DMX USB link state; both 1 at start, so the first tick opens and sends.
  int USB_Connected() const { return usb_connected_; }
  int USB_Searching() const { return usb_searching_; }
  void set_USB_Connected(int value) { usb_connected_ = value; }

 private:
  void send_oki();
  void send_open_dmx();
  void send_oksidizer();
  void adapter_failed(int adapter);

  DeskContext& context_;
  AdapterSeams seams_;
  OutputDeviceSetup* setup_ = nullptr;
  OpenDmx opendmx_;
  int usb_connected_ = 1;
  int usb_searching_ = 1;
  bool driver_missing_ = false;  // the last Open DMX USB tick found no driver library
  bool port_failed_ = false;     // the last parallel frame did not reach the port
  std::string failure_;          // why the last adapter was switched off
  std::array<std::uint8_t, kDmxSlots + 1> oki_in_{};  // OKI_In: filled by the adapter, not read
};

}  // namespace lumaris
