#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "app/desk_window.h"
#include "app/widgets/tool_window.h"

class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace lumaris {

class DeskApp;
class FixtureProperties;

// "Fixture Propertises": the fixture, function and button selections, their
// names, the button's description, output or range, Enabled and colour.
class FixturePropertiesWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit FixturePropertiesWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "fixture-properties"; }
  void sync() override;
  void prepare_screenshot() override;

  QComboBox* Fixture_Sel() const { return fixture_sel_; }
  QComboBox* Function_Sel() const { return function_sel_; }
  QLineEdit* Fixture_txt() const { return fixture_txt_; }
  QLineEdit* Button() const { return button_; }
  QLineEdit* Output() const { return output_; }
  QLineEdit* min_txt() const { return min_txt_; }
  QLineEdit* max_txt() const { return max_txt_; }
  QCheckBox* enabled_box() const { return enabled_box_; }
  QPushButton* preset(int j) const { return presets_[j]; }
  QPushButton* close_button() const { return close_button_; }

 private:
  FixtureProperties& prop();
  void handle(const std::function<void(FixtureProperties&)>& work);
  QLineEdit* edit(void (FixtureProperties::*change)(const std::string&));
  void fill(QComboBox* box, const std::vector<std::string>& entries, int current);

  DeskApp& app_;
  QComboBox* fixture_sel_ = nullptr;
  QLineEdit* fixture_txt_ = nullptr;
  QComboBox* function_sel_ = nullptr;
  QLineEdit* function_txt_ = nullptr;
  std::vector<QPushButton*> presets_;
  QLineEdit* button_ = nullptr;
  QLabel* output_label_ = nullptr;
  QLineEdit* output_ = nullptr;
  QCheckBox* enabled_box_ = nullptr;
  QLabel* min_label_ = nullptr;
  QLineEdit* min_txt_ = nullptr;
  QLabel* max_label_ = nullptr;
  QLineEdit* max_txt_ = nullptr;
  QPushButton* colour_bx_ = nullptr;
  QPushButton* close_button_ = nullptr;
  std::map<std::string, QAction*> actions_;
};

}  // namespace lumaris
