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

  QLineEdit* Text1() const { return text1_; }
  QPushButton* Command1() const { return command1_; }
  QPushButton* Command2() const { return command2_; }

 private:
  BcfSetup& setup();

  DeskApp& app_;
  QLineEdit* text1_ = nullptr;
  QPushButton* command1_ = nullptr;
  QPushButton* command2_ = nullptr;
  QPushButton* command3_ = nullptr;
};

}  // namespace lumaris
