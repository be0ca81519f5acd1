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

// The cue editor `namedit` ("Edit Cues"): the list of screens on the left, the
// selected screen's settings and what it holds on the right, with Slider1 to
// change a level in place.
class CueEditorWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit CueEditorWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "cue-editor"; }
  void sync() override;
  void prepare_screenshot() override;

  // Widgets by control name, for the wiring tests.
  QListWidget* List1() const { return list1_; }
  QListWidget* List2() const { return list2_; }
  QComboBox* Next_Scn() const { return next_scn_; }
  QLineEdit* Text1() const { return text1_; }
  LevelSlider* Slider1() const { return slider1_; }
  QLineEdit* Text5() const { return text5_; }
  QPushButton* Update() const { return command3_; }
  QPushButton* Save_and_Exit() const { return command1_; }

 private:
  CueEditor& editor();
  template <typename Work>
  void handle(Work work);

  DeskApp& app_;
  QListWidget* list1_ = nullptr;
  QLineEdit* text1_ = nullptr;
  QLineEdit* text2_ = nullptr;
  QComboBox* next_scn_ = nullptr;
  QScrollBar* screen_delay_ = nullptr;
  QLabel* delay_label_ = nullptr;
  QCheckBox* check1_ = nullptr;
  QCheckBox* check2_ = nullptr;
  ColourBox* picture1_ = nullptr;
  QListWidget* list2_ = nullptr;
  QLabel* text3_ = nullptr;
  LevelSlider* slider1_ = nullptr;
  QLineEdit* text5_ = nullptr;
  QPushButton* command1_ = nullptr;
  QPushButton* command2_ = nullptr;
  QPushButton* command3_ = nullptr;
  QPushButton* command4_ = nullptr;
  QPushButton* command5_ = nullptr;
  QPushButton* command6_ = nullptr;
};

}  // namespace lumaris
