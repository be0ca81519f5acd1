#pragma once

#include <array>
#include <initializer_list>
#include <string>

#include "core/window.h"

namespace lumaris {

class DeskContext;
class OutputDevices;
class Timer;

// The output device set-up window: chooses the adapter, the parallel port and the
// refresh rate (the output timer's interval). The choices reach the desk on
// "Save and Exit", except the port and the Open DMX USB adapter, which act at once.
class OutputDeviceSetup : public Window {
 public:
  static constexpr int kAdapterCount = 6;
  // The rate scroll bar: the refresh rate in ms. The lower bound is 10 ms: a shorter
  // interval would leave the desk no time between frames.
  static constexpr int kScrollMin = 10;
  static constexpr int kScrollMax = 750;
  static constexpr int kScrollStep = 1;
  static constexpr int kScrollInitial = 75;

  // The controls whose visibility and enabled state the adapter choice sets.
  enum Control {
    Lpt1AddressLabel, Lpt2AddressLabel, PortLabel, Lpt1Option, Lpt2Option,
    RateLabel, RateBox, RateScroll, UsbStateBox,
  };
  static constexpr int kControls = 9;
  struct ControlState {
    bool visible = true;
    bool enabled = true;
  };

  static const std::array<const char*, kAdapterCount> kAdapterEntries;  // the adapter list, in order
  static const std::array<const char*, kAdapterCount> kAdapterNames;    // Adapter_Name captions

  // The output timer is the output cycle's: its interval is the refresh rate.
  OutputDeviceSetup(DeskContext& context, OutputDevices& devices, Timer& output_timer);
  bool available() const { return true; }

  // The first opening: reads the adapter and the output timer's interval and
  // selects the adapter, as choosing it in the list does.
  void Form_Load();
  // A later opening: shows the desk's adapter and refresh rate and changes
  // nothing, so looking at the window never interrupts the output.
  void Refresh();
  void adapter_list_clicked(int index);
  void lpt1_option_clicked();
  void lpt2_option_clicked();
  void rate_scroll_changed(int value);
  // "Smooth output": takes effect, and is kept with the computer's settings, on
  // "Save and Exit". With it on, the refresh rate can be set whatever the adapter,
  // so an Art-Net-only desk can run at 23 ms.
  void Smooth_Check_Click(bool checked);
  void save_clicked();    // "Save and Exit"
  // "Cancel", and closing the window: puts back the adapter, the port and the
  // refresh rate in force when the window opened.
  void cancel_clicked();

  // Written by the output cycle while the Open DMX USB adapter searches.
  void set_usb_state_box(std::string text) { usb_state_box_ = std::move(text); }

  int adapter_list_index() const { return list_index_; }
  const std::string& Adapter_Name() const { return adapter_name_; }
  bool lpt1_option_value() const { return lpt1_option_; }
  bool lpt2_option_value() const { return lpt2_option_; }
  const std::string& rate_box_text() const { return rate_box_; }
  int rate_scroll_value() const { return rate_scroll_; }
  bool Smooth_Check_Value() const { return smooth_; }
  const std::string& usb_state_box_text() const { return usb_state_box_; }
  const ControlState& control(Control which) const { return controls_[which]; }
  int chosen_adapter() const { return chosen_; }
  int refresh_rate() const { return rate_; }

 private:
  void selection_changed();
  void lay_out(int adapter);
  void show(std::initializer_list<Control> which);
  void hide(std::initializer_list<Control> which);
  void disable(std::initializer_list<Control> which);
  void show_rate();
  void port_option_from_address();
  void driver_search();
  void note_output_in_force();

  DeskContext& context_;
  OutputDevices& devices_;
  Timer& output_timer_;
  int list_index_ = -1;
  int chosen_ = 0;
  int rate_ = kScrollInitial;
  std::string adapter_name_;
  bool lpt1_option_ = true;
  bool lpt2_option_ = false;
  std::string rate_box_;
  int rate_scroll_ = kScrollInitial;
  std::string usb_state_box_;
  std::array<ControlState, kControls> controls_{};
  bool smooth_ = false;
  bool smooth_clicked_ = false;  // since the window opened
  struct InForce {
    int adapter = 0;
    int port = 0;
    int rate = 0;
  };
  InForce opened_with_;  // the output as the window found it
};

}  // namespace lumaris
