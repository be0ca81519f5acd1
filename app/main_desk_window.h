#pragma once

#include <QMainWindow>
#include <array>
#include <map>

#include "app/desk_window.h"
#include "app/widgets/level_slider.h"
#include "core/main_desk.h"

class QLineEdit;
class QPushButton;
class QLabel;
class QAction;
class QMenu;

namespace lumaris {

class DeskApp;
class ColourBox;

// The main desk: 32 channel strips, masters, submix controls, indicators, status line, menus.
class MainDeskWindow final : public QMainWindow, public DeskWindow {
 public:
  explicit MainDeskWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "main-desk"; }
  void sync() override;
  std::vector<ScreenshotVariant> screenshot_variants() override;

  // The controls, for the wiring tests.
  LevelSlider* channel_fader(int i) const { return strips_[i].slider; }
  QLineEdit* level_box(int i) const { return strips_[i].level; }
  QLineEdit* name_box(int i) const { return strips_[i].name; }
  QPushButton* max_button(int i) const { return strips_[i].max; }
  QPushButton* min_button(int i) const { return strips_[i].min; }
  QPushButton* Inc_Channel() const { return inc_channel_; }
  QPushButton* Dec_Channels() const { return dec_channels_; }
  QPushButton* Clearall() const { return clear_all_; }
  LevelSlider* channels() const { return channels_; }
  LevelSlider* Submix() const { return submix_master_; }
  LevelSlider* Main() const { return main_; }
  QLineEdit* Status() const { return status_; }
  QLineEdit* submix_number() const { return submix_number_; }
  QLineEdit* Submix_Text() const { return submix_text_; }
  QPushButton* Submix_Plus() const { return submix_plus_; }
  QPushButton* Submix_Prog() const { return submix_prog_; }
  QAction* menu_action(const std::string& name) const;

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  struct Strip {
    QLineEdit* name = nullptr;
    QLineEdit* level = nullptr;
    QPushButton* max = nullptr;
    LevelSlider* slider = nullptr;
    QPushButton* min = nullptr;
  };

  MainDesk& desk();
  QWidget* build_strips();
  QWidget* build_masters();
  QWidget* build_submix_row();
  QWidget* build_bottom_row();
  void build_menus();
  void build_recent_menu(QMenu* file_menu);
  void after_menu(const std::string& name);

  DeskApp& app_;
  std::array<Strip, MainDesk::kStrips> strips_{};
  LevelSlider* channels_ = nullptr;
  LevelSlider* submix_master_ = nullptr;
  LevelSlider* main_ = nullptr;
  QPushButton* inc_channel_ = nullptr;
  QPushButton* dec_channels_ = nullptr;
  QPushButton* clear_all_ = nullptr;
  QPushButton* sequence_button_ = nullptr;
  QPushButton* playback_button_ = nullptr;
  QLineEdit* submix_number_ = nullptr;
  QLineEdit* submix_text_ = nullptr;
  QPushButton* submix_plus_ = nullptr;
  QPushButton* submix_prog_ = nullptr;
  ColourBox* sub_colour_ = nullptr;
  ColourBox* dmx_lamp_ = nullptr;
  ColourBox* art_net_lamp_ = nullptr;
  QLabel* art_label_ = nullptr;
  QLabel* art_destination_ = nullptr;
  QLineEdit* status_ = nullptr;
  std::map<std::string, QAction*> actions_;
};

}  // namespace lumaris
