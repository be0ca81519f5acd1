#pragma once

#include "app/desk_window.h"
#include "app/widgets/tool_window.h"
#include "output/ola_setup.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace lumaris {

class DeskApp;

// "OLA Output": the olad universe, its Set button, Enable/Disable and the state.
class OlaSetupWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit OlaSetupWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "ola-setup"; }
  void sync() override;
  void prepare_screenshot() override;

  QLineEdit* Universe() const { return universe_; }
  QPushButton* Universe_Set() const { return set_; }
  QPushButton* Enable() const { return enable_; }
  QLabel* Status() const { return status_; }

 private:
  OlaSetup& config();

  DeskApp& app_;
  QLineEdit* universe_ = nullptr;
  QPushButton* set_ = nullptr;
  QPushButton* enable_ = nullptr;
  QLabel* status_ = nullptr;
  QPushButton* close_ = nullptr;
};

}  // namespace lumaris
