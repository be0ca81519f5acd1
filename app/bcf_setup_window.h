#pragma once

#include "app/desk_window.h"
#include "app/widgets/tool_window.h"

class QLineEdit;
class QPushButton;

namespace lumaris {

class DeskApp;
class BcfSetup;

// "BCF Setup": the connect button and how the connection went.
class BcfSetupWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit BcfSetupWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "bcf2000-setup"; }
  void sync() override;
  void prepare_screenshot() override;

  QLineEdit* connection_box() const { return connection_box_; }
  QPushButton* connect_button() const { return connect_button_; }
  QPushButton* control_button() const { return control_button_; }

 private:
  BcfSetup& setup();

  DeskApp& app_;
  QLineEdit* connection_box_ = nullptr;
  QPushButton* connect_button_ = nullptr;
  QPushButton* control_button_ = nullptr;
  QPushButton* close_button_ = nullptr;
};

}  // namespace lumaris
