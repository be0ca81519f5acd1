#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>

#include "app/desk_window.h"
#include "app/widgets/level_slider.h"
#include "app/widgets/tool_window.h"
#include "core/store.h"

class QAction;
class QString;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;
class QSpinBox;
class QTextEdit;

namespace lumaris {

class DeskApp;
class ColourBox;
class LogSliderWidget;
class PlaybackDesk;

// The playback desk: screen panel, pages, 16 buttons and 12 faders of the page
// on show, the Main and Preset masters, Clear All, Clear and the status line.
class PlaybackDeskWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit PlaybackDeskWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "playback-desk"; }
  void sync() override;
  std::vector<ScreenshotVariant> screenshot_variants() override;

  // Widgets by what they are, for the wiring tests.
  QPushButton* button(int i) const { return buttons_[i].button; }
  QPushButton* function_button(int i) const { return buttons_[i].function_button; }
  LevelSlider* fader(int i) const { return faders_[i].slider; }
  QLabel* fader_caption(int i) const { return faders_[i].caption; }
  QPushButton* Screen_Prog() const { return screen_prog_; }
  QSpinBox* Screen_Num_sel() const { return screen_sel_; }
  QLineEdit* screen_txt() const { return screen_txt_; }
  QLineEdit* screen_intxt() const { return screen_intxt_; }
  LogSliderWidget* Screen_Fade_Time() const { return fade_time_; }
  QLineEdit* Status() const { return status_; }
  QPushButton* Run_Switch() const { return run_switch_; }
  QPushButton* Run_Autotake() const { return run_autotake_; }
  QSlider* Run_Crossfade() const { return run_crossfade_; }
  QSpinBox* Run_screen_sel() const { return run_screen_sel_; }
  QLabel* Run_A() const { return run_a_; }
  QLabel* Run_B() const { return run_b_; }
  QLabel* Run_Fade_Time() const { return run_fade_time_; }
  QPushButton* Instant_screens() const { return instant_screens_; }
  QPushButton* Inc_Page(int k) const { return inc_page_[k]; }
  QLineEdit* Page_Details() const { return page_details_; }
  QAction* menu_action(const std::string& name) const;

 private:
  struct Button {
    QPushButton* button = nullptr;
    QPushButton* function_button = nullptr;
    ColourBox* lamp = nullptr;
  };
  struct Fader {
    QLabel* function_label = nullptr;
    QLabel* caption = nullptr;
    LevelSlider* slider = nullptr;
    QLabel* step_time_note = nullptr;
  };

  PlaybackDesk& desk();
  void handle(const std::function<void(PlaybackDesk&)>& work);
  QWidget* build_screen_panel();
  QWidget* build_page_row();
  QWidget* build_buttons();
  QWidget* build_faders();
  QWidget* build_bottom_row();
  QWidget* build_run_row();
  void sync_run_row();
  void build_menus();
  static QPushButton* plain_button(const QString& caption, QWidget* parent, const QString& tooltip = {});

  DeskApp& app_;
  std::array<Button, kButtonsPerPage> buttons_{};
  std::array<Fader, kFadersPerPlaybackPage> faders_{};
  QSpinBox* screen_sel_ = nullptr;
  QLineEdit* screen_num_ = nullptr;
  QLineEdit* screen_txt_ = nullptr;
  LogSliderWidget* fade_time_ = nullptr;
  QLineEdit* screen_intxt_ = nullptr;
  QCheckBox* auto_next_ = nullptr;
  QCheckBox* instant_ = nullptr;
  ColourBox* cue_colour_ = nullptr;
  QPushButton* screen_prog_ = nullptr;
  QPushButton* screen_recall_ = nullptr;
  std::array<QPushButton*, 2> inc_page_{};
  std::array<QPushButton*, 2> dec_page_{};
  QLineEdit* page_details_ = nullptr;
  QLineEdit* page_number_ = nullptr;
  QTextEdit* page_text_ = nullptr;
  LevelSlider* main_ = nullptr;
  LevelSlider* preset_ = nullptr;
  QLineEdit* status_ = nullptr;
  QPushButton* run_switch_ = nullptr;
  QPushButton* run_autotake_ = nullptr;
  QPushButton* instant_screens_ = nullptr;
  QLabel* run_a_ = nullptr;
  QLabel* run_b_ = nullptr;
  QSlider* run_crossfade_ = nullptr;
  QSpinBox* run_screen_sel_ = nullptr;
  QLabel* run_fade_time_ = nullptr;
  std::map<std::string, QAction*> actions_;
};

}  // namespace lumaris
