#pragma once

#include <array>

#include "app/desk_window.h"
#include "app/widgets/tool_window.h"
#include "output/output_device_setup.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollBar;

namespace lumaris {

class DeskApp;

// "Set DMX Output Device": adapter list, parallel port, refresh rate, link status.
class OutputDeviceSetupWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit OutputDeviceSetupWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "output-device-setup"; }
  void sync() override;
  void prepare_screenshot() override;

  // Widgets by control name, for the wiring tests.
  QComboBox* adapter_list() const { return adapter_list_; }
  QLabel* Adapter_Name() const { return adapter_name_; }
  QRadioButton* lpt1_option() const { return lpt1_option_; }
  QRadioButton* lpt2_option() const { return lpt2_option_; }
  QLineEdit* rate_box() const { return rate_box_; }
  QScrollBar* rate_scroll() const { return rate_scroll_; }
  QLineEdit* usb_state_box() const { return usb_state_box_; }
  QCheckBox* Smooth_Check() const { return smooth_check_; }
  QPushButton* save_button() const { return save_button_; }
  QPushButton* cancel_button() const { return cancel_button_; }

 private:
  OutputDeviceSetup& setup();
  QWidget* control_widget(OutputDeviceSetup::Control control) const;

  DeskApp& app_;
  QComboBox* adapter_list_ = nullptr;
  QLabel* adapter_name_ = nullptr;
  std::array<QLabel*, 2> lpt_address_labels_{};
  QLabel* port_label_ = nullptr;
  QRadioButton* lpt1_option_ = nullptr;
  QRadioButton* lpt2_option_ = nullptr;
  QLabel* rate_label_ = nullptr;
  QLineEdit* rate_box_ = nullptr;
  QScrollBar* rate_scroll_ = nullptr;
  QLineEdit* usb_state_box_ = nullptr;
  QCheckBox* smooth_check_ = nullptr;
  QPushButton* save_button_ = nullptr;
  QPushButton* cancel_button_ = nullptr;
};

}  // namespace lumaris
