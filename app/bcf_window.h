#pragma once

#include "app/desk_window.h"
#include "app/widgets/tool_window.h"

class QLineEdit;
class QPushButton;

namespace lumaris {

class DeskApp;
class BCF;

// "BCF2000 Control": the connection, the mode with its two step buttons, and the
// monitor box that shows the surface's buttons as they are pressed.
class BcfWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit BcfWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "bcf2000"; }
  void sync() override;

  QLineEdit* monitor_box() const { return monitor_box_; }
  QLineEdit* connection_box() const { return connection_box_; }
  QLineEdit* mode_box() const { return mode_box_; }
  QPushButton* previous_mode_button() const { return previous_mode_button_; }
  QPushButton* next_mode_button() const { return next_mode_button_; }

 private:
  BCF& surface();

  DeskApp& app_;
  QLineEdit* monitor_box_ = nullptr;
  QLineEdit* connection_box_ = nullptr;
  QLineEdit* mode_box_ = nullptr;
  QPushButton* previous_mode_button_ = nullptr;
  QPushButton* next_mode_button_ = nullptr;
};

}  // namespace lumaris
