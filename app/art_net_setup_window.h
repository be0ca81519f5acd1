#pragma once

#include <array>

#include "app/desk_window.h"
#include "app/widgets/tool_window.h"
#include "net/art_net_setup.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace lumaris {

class DeskApp;

// "Art Net Setup": eight output rows with their Enable/Disable buttons, the node's
// state, the Destination field and the Interface list.
class ArtNetSetupWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit ArtNetSetupWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "art-net-setup"; }
  void sync() override;
  void prepare_screenshot() override;

  // Widgets by control name, for the wiring tests.
  QLineEdit* universe_box(int i) const { return universe_boxes_[i]; }
  QPushButton* enable_button(int i) const { return enable_buttons_[i]; }
  QLineEdit* state_box() const { return state_box_; }
  QLineEdit* Destination() const { return destination_; }
  QPushButton* Destination_Set() const { return destination_set_; }
  QComboBox* interface_list() const { return interface_list_; }
  QPushButton* close_button() const { return close_button_; }

 private:
  ArtNetSetup& config();

  DeskApp& app_;
  std::array<QLineEdit*, ArtNetSetup::kRows> universe_boxes_{};
  std::array<QPushButton*, ArtNetSetup::kRows> enable_buttons_{};
  QLineEdit* state_box_ = nullptr;
  QLineEdit* destination_ = nullptr;
  QPushButton* destination_set_ = nullptr;
  QLabel* destination_status_ = nullptr;
  QComboBox* interface_list_ = nullptr;
  QPushButton* close_button_ = nullptr;
};

}  // namespace lumaris
