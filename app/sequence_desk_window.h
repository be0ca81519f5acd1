#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>

#include <QSize>

#include "app/desk_window.h"
#include "app/widgets/level_slider.h"
#include "app/widgets/tool_window.h"
#include "sequence/sequence_desk.h"

class QAction;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QScrollBar;
class QLabel;

namespace lumaris {

class DeskApp;
class ColourBox;
class LogSliderWidget;
class ProgBarWidget;
class MovingPanelWidget;

// The sequence desk: chase selection, 24 chase channels, step times, loops, the
// step clipboard and Go/Stop.
class SequenceDeskWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit SequenceDeskWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "sequence-desk"; }
  void sync() override;
  int sync_parts() const override { return kSyncParts; }
  void sync_part(int part) override;

  // Widgets by control name, for the wiring tests.
  QComboBox* Chase_Sel() const { return chase_sel_; }
  QLineEdit* Step_Display() const { return step_display_; }
  QPushButton* Chase_Plus() const { return chase_plus_; }
  LevelSlider* fader(int i) const { return channels_[i].slider; }
  QLineEdit* channel_box(int i) const { return channels_[i].text; }
  QPushButton* Ch_Function(int i) const { return channels_[i].function; }
  QPushButton* Chase_Go_Button() const { return go_; }
  LogSliderWidget* speed_slider() const { return speed_slider_; }
  LogSliderWidget* fade_slider() const { return fade_slider_; }
  QLineEdit* speed_box() const { return speed_text_; }
  QLineEdit* fade_box() const { return fade_text_; }
  QLineEdit* Chase_Name() const { return chase_name_; }
  ColourBox* indicator(int i) const { return channels_[i].indicator; }
  ProgBarWidget* Fade_Bar() const { return fade_bar_; }
  ProgBarWidget* Step_Bar() const { return step_bar_; }
  QAction* menu_action(const std::string& name) const;
  QPushButton* Show_Moving() const { return show_moving_; }
  MovingPanelWidget* moving_panel() const { return moving_panel_; }
  std::vector<ScreenshotVariant> screenshot_variants() override;

 private:
  struct Channel {
    QLineEdit* text = nullptr;
    QPushButton* function = nullptr;
    ColourBox* indicator = nullptr;
    QPushButton* full = nullptr;
    LevelSlider* slider = nullptr;
    QPushButton* zero = nullptr;
  };

  SequenceDesk& desk();
  void handle(const std::function<void(SequenceDesk&)>& work);
  QWidget* build_top_row();
  QWidget* build_channels();
  QWidget* build_times();
  QWidget* build_bottom_row();
  void build_menus(QWidget* owner);
  // The parts of the walk, apart because a running chase changes its controls,
  // bars and indicators on every level tick, its step fields on every step and
  // the rest only when the operator edits.
  enum SyncPart { kRunning, kPictures, kSteps, kRest, kSyncParts };
  void sync_running();
  void sync_pictures();
  void sync_steps();
  void sync_channel_steps();
  void sync_rest();

  DeskApp& app_;
  std::array<Channel, kChaseChannels> channels_{};
  QComboBox* chase_sel_ = nullptr;
  QLineEdit* chase_name_ = nullptr;
  ColourBox* chase_colour_ = nullptr;
  QLineEdit* steps_ = nullptr;
  QLineEdit* step_display_ = nullptr;
  QPushButton* chase_plus_ = nullptr;
  QPushButton* function_all_ = nullptr;
  QCheckBox* global_fade_sw_ = nullptr;
  QCheckBox* auto_increment_ = nullptr;
  LogSliderWidget* speed_slider_ = nullptr;
  LogSliderWidget* fade_slider_ = nullptr;
  QLineEdit* speed_text_ = nullptr;
  QLineEdit* fade_text_ = nullptr;
  QCheckBox* global_speed_ = nullptr;
  QCheckBox* global_fade_ = nullptr;
  QCheckBox* speed_fade_lock_ = nullptr;
  QCheckBox* loop_box_ = nullptr;
  QScrollBar* loop_times_ = nullptr;
  QLineEdit* loop_times_txt_ = nullptr;
  LevelSlider* master_fader_ = nullptr;
  QPushButton* go_ = nullptr;
  QCheckBox* live_mode_ = nullptr;
  ProgBarWidget* fade_bar_ = nullptr;
  ProgBarWidget* step_bar_ = nullptr;
  QPushButton* show_moving_ = nullptr;
  MovingPanelWidget* moving_panel_ = nullptr;
  QSize narrow_size_;
  std::map<std::string, QAction*> actions_;
};

}  // namespace lumaris
