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

  QLineEdit* Text1() const { return text1_; }
  QLineEdit* Text2() const { return text2_; }
  QLineEdit* Text3() const { return text3_; }
  QPushButton* Pannel_Dec() const { return pannel_dec_; }
  QPushButton* Pannel_Inc() const { return pannel_inc_; }

 private:
  BCF& surface();

  DeskApp& app_;
  QLineEdit* text1_ = nullptr;
  QLineEdit* text2_ = nullptr;
  QLineEdit* text3_ = nullptr;
  QPushButton* pannel_dec_ = nullptr;
  QPushButton* pannel_inc_ = nullptr;
};

}  // namespace lumaris
