#pragma once

#include <array>

#include "app/desk_window.h"
#include "app/widgets/tool_window.h"
#include "net/art_net_setup.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace lumaris {

class DeskApp;

// "Art Net Setup": eight output rows with their Enable/Disable buttons, the node's
// state, and the Destination field.
class ArtNetSetupWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit ArtNetSetupWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "art-net-setup"; }
  void sync() override;
  void prepare_screenshot() override;

  // Widgets by control name, for the wiring tests.
  QLineEdit* Text1(int i) const { return text1_[i]; }
  QPushButton* Button1(int i) const { return button1_[i]; }
  QLineEdit* Text2() const { return text2_; }
  QLineEdit* Destination() const { return destination_; }
  QPushButton* Destination_Set() const { return destination_set_; }
  QPushButton* Command1() const { return command1_; }

 private:
  ArtNetSetup& config();

  DeskApp& app_;
  std::array<QLineEdit*, ArtNetSetup::kRows> text1_{};
  std::array<QPushButton*, ArtNetSetup::kRows> button1_{};
  QLineEdit* text2_ = nullptr;
  QLineEdit* destination_ = nullptr;
  QPushButton* destination_set_ = nullptr;
  QLabel* destination_status_ = nullptr;
  QPushButton* command1_ = nullptr;
};

}  // namespace lumaris
