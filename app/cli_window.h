#pragma once

#include "app/desk_window.h"
#include "app/widgets/tool_window.h"
#include "keypad/cli.h"

class QCheckBox;
class QLabel;
class QComboBox;
class QKeyEvent;
class QLineEdit;
class QPushButton;

namespace lumaris {

class ColourBox;
class DeskApp;

// The command line window: the line being typed, the status lamp, the history
// and the hide button. Its keys go to the model; no control takes the focus
// from the window, so every key reaches the line.
class CliWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit CliWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "command-line"; }
  void sync() override;
  void prepare_screenshot() override;
  std::vector<ScreenshotVariant> screenshot_variants() override;

  QLineEdit* String_In() const { return string_in_; }
  QLabel* refusal() const { return refusal_; }
  ColourBox* CLI_Status() const { return lamp_; }
  QComboBox* history_list() const { return history_list_; }
  QPushButton* hide_button() const { return hide_button_; }
  QCheckBox* Laptop_Keys() const { return laptop_keys_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  CLI& cli();

  DeskApp& app_;
  QLineEdit* string_in_ = nullptr;
  ColourBox* lamp_ = nullptr;
  QLabel* refusal_ = nullptr;
  QComboBox* history_list_ = nullptr;
  QPushButton* hide_button_ = nullptr;
  QCheckBox* laptop_keys_ = nullptr;
};

}  // namespace lumaris
