#pragma once

#include <string>

#include "app/desk_window.h"
#include "app/widgets/level_slider.h"
#include "app/widgets/tool_window.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QScrollBar;

namespace lumaris {

class DeskApp;
class ColourBox;
class CueEditor;

// The cue editor ("Edit Cues"): the list of screens on the left, the
// selected screen's settings and what it holds on the right, with the level
// fader to change a level in place.
class CueEditorWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit CueEditorWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "cue-editor"; }
  void sync() override;
  void prepare_screenshot() override;

  // Widgets by what they are, for the wiring tests.
  QListWidget* screen_list() const { return screen_list_; }
  QListWidget* content_list() const { return content_list_; }
  QComboBox* Next_Scn() const { return next_scn_; }
  QLineEdit* name_box() const { return name_box_; }
  LevelSlider* level_fader() const { return level_fader_; }
  QLineEdit* level_box() const { return level_box_; }
  QPushButton* Update() const { return update_button_; }
  QPushButton* Save_and_Exit() const { return save_and_exit_button_; }

 private:
  CueEditor& editor();
  template <typename Work>
  void handle(Work work);

  DeskApp& app_;
  QListWidget* screen_list_ = nullptr;
  QLineEdit* name_box_ = nullptr;
  QLineEdit* fade_time_box_ = nullptr;
  QComboBox* next_scn_ = nullptr;
  QScrollBar* screen_delay_ = nullptr;
  QLabel* delay_label_ = nullptr;
  QCheckBox* instant_box_ = nullptr;
  QCheckBox* auto_box_ = nullptr;
  ColourBox* colour_box_ = nullptr;
  QListWidget* content_list_ = nullptr;
  QLabel* item_label_ = nullptr;
  LevelSlider* level_fader_ = nullptr;
  QLineEdit* level_box_ = nullptr;
  QPushButton* save_and_exit_button_ = nullptr;
  QPushButton* copy_button_ = nullptr;
  QPushButton* update_button_ = nullptr;
  QPushButton* paste_button_ = nullptr;
  QPushButton* insert_button_ = nullptr;
  QPushButton* delete_button_ = nullptr;
};

}  // namespace lumaris
