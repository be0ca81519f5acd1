#pragma once

#include <array>

#include "app/desk_window.h"
#include "app/widgets/tool_window.h"
#include "net/sacn_setup.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace lumaris {

class DeskApp;

// "sACN Setup": eight universe rows with Enable/Disable buttons, the stream's
// source name, priority, destination and interface, and the output's state.
class SacnSetupWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit SacnSetupWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "sacn-setup"; }
  void sync() override;
  void prepare_screenshot() override;

  QLineEdit* Universe(int i) const { return universe_[static_cast<std::size_t>(i)]; }
  QPushButton* Enable(int i) const { return enable_[static_cast<std::size_t>(i)]; }
  QLineEdit* Priority() const { return priority_; }
  QPushButton* Apply() const { return apply_; }
  QLabel* Status() const { return status_; }

 private:
  SacnSetup& config();

  DeskApp& app_;
  std::array<QLineEdit*, SacnSetup::kRows> universe_{};
  std::array<QPushButton*, SacnSetup::kRows> enable_{};
  QLineEdit* source_name_ = nullptr;
  QLineEdit* priority_ = nullptr;
  QLineEdit* destination_ = nullptr;
  QLineEdit* interface_ = nullptr;
  QPushButton* apply_ = nullptr;
  QLabel* status_ = nullptr;
  QPushButton* close_ = nullptr;
};

}  // namespace lumaris
