#pragma once

#include <array>
#include <functional>
#include <string>

#include "app/desk_window.h"
#include "app/widgets/level_slider.h"
#include "app/widgets/tool_window.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;
class QWidget;

namespace lumaris {

class DeskApp;
class ColourBox;
class ButtonSetup;
class FaderSetup;

// "Button Setup" and "Fader Setup": one layout for both, with Latch and
// "Preset Colour ?" for buttons and the Level / Step Time choice for faders.
// Shown modal over the playback desk.
class FunctionSetupWindow final : public ToolWindow, public DeskWindow {
 public:
  enum class Kind { Buttons, Faders };
  FunctionSetupWindow(DeskApp& app, Kind kind);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override;
  void sync() override;
  void prepare_screenshot() override;

  QComboBox* Fun_set() const { return fun_set_; }
  QLineEdit* Channel(int k) const { return channels_[k]; }
  QPushButton* OK() const { return ok_; }
  QPushButton* Plus() const { return plus_; }
  QLineEdit* Number() const { return number_; }
  QLineEdit* Element() const { return fader_num_; }
  QLabel* Level_readout() const { return level_readout_; }

 private:
  // Runs `work` on the model shown, whichever of the two it is.
  template <typename Work>
  void handle(Work work);

  DeskApp& app_;
  Kind kind_;
  QLabel* element_label_ = nullptr;
  QLineEdit* fader_num_ = nullptr;
  QLineEdit* f_name_ = nullptr;
  QComboBox* fun_set_ = nullptr;
  QComboBox* sequence_fun_ = nullptr;
  QLineEdit* number_ = nullptr;
  QPushButton* plus_ = nullptr;
  QPushButton* minus_ = nullptr;
  std::array<QLineEdit*, 3> channels_{};
  std::array<QLineEdit*, 3> colour_channels_{};
  std::array<QScrollBar*, 3> components_{};
  std::array<QLabel*, 3> component_labels_{};
  LevelSlider* level_fader_ = nullptr;
  QLabel* level_readout_ = nullptr;
  ColourBox* colour_box_ = nullptr;
  QCheckBox* latch_ = nullptr;
  QCheckBox* preset_col_ = nullptr;
  QPushButton* ok_ = nullptr;
  QPushButton* previous_button_ = nullptr;
  QPushButton* next_button_ = nullptr;
  QWidget* value_row_ = nullptr;
  QWidget* channel_row_ = nullptr;
  QWidget* colour_rows_ = nullptr;
  QWidget* level_box_ = nullptr;
};

}  // namespace lumaris
