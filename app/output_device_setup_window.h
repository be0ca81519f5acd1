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
  QComboBox* Combo1() const { return combo1_; }
  QLabel* Adapter_Name() const { return adapter_name_; }
  QRadioButton* Option1() const { return option1_; }
  QRadioButton* Option2() const { return option2_; }
  QLineEdit* Text1() const { return text1_; }
  QScrollBar* HScroll1() const { return hscroll1_; }
  QLineEdit* Text2() const { return text2_; }
  QCheckBox* Smooth_Check() const { return smooth_check_; }
  QPushButton* Command1() const { return command1_; }
  QPushButton* Command2() const { return command2_; }

 private:
  OutputDeviceSetup& setup();
  QWidget* control_widget(OutputDeviceSetup::Control control) const;

  DeskApp& app_;
  QComboBox* combo1_ = nullptr;
  QLabel* adapter_name_ = nullptr;
  std::array<QLabel*, 2> label1_{};
  QLabel* label2_ = nullptr;
  QRadioButton* option1_ = nullptr;
  QRadioButton* option2_ = nullptr;
  QLabel* label3_ = nullptr;
  QLineEdit* text1_ = nullptr;
  QScrollBar* hscroll1_ = nullptr;
  QLineEdit* text2_ = nullptr;
  QCheckBox* smooth_check_ = nullptr;
  QPushButton* command1_ = nullptr;
  QPushButton* command2_ = nullptr;
};

}  // namespace lumaris
