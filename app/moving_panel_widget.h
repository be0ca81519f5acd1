#pragma once

#include <QWidget>
#include <array>
#include <vector>

#include "core/store.h"
#include "fixtures/moving_desk.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;

namespace lumaris {

class DeskApp;
class ColourBox;
class LevelSlider;
class XyPad;

// The moving desk panel beside the sequence desk's channels: Fixture_Sel, the
// preset button families move1..move4 with their indicators, the four sliders
// and the XY pad.
class MovingPanelWidget final : public QWidget {
 public:
  MovingPanelWidget(DeskApp& app, QWidget* parent);
  void sync();

  QComboBox* Fixture_Sel() const { return fixture_sel_; }
  QPushButton* move(int k, int j) const { return families_[k][j].button; }
  ColourBox* indicator(int k, int j) const { return families_[k][j].indicator; }
  LevelSlider* slider(MovingSlider slider) const { return sliders_[static_cast<int>(slider)]; }
  XyPad* pad() const { return pad_; }
  QLineEdit* X_text() const { return x_text_; }
  QLineEdit* Y_text() const { return y_text_; }
  QMenu* popup_menu() const { return popup_; }

 private:
  struct Preset {
    QPushButton* button = nullptr;
    ColourBox* indicator = nullptr;
  };
  MovingDesk& desk();
  QWidget* build_family(int k);
  QWidget* build_sliders();

  DeskApp& app_;
  QComboBox* fixture_sel_ = nullptr;
  std::array<std::vector<Preset>, kFixtureButtonFunctions> families_;
  std::array<QLabel*, kFixtureButtonFunctions> function_txt_{};
  std::array<LevelSlider*, kMovingSliders> sliders_{};
  XyPad* pad_ = nullptr;
  QLineEdit* x_text_ = nullptr;
  QLineEdit* y_text_ = nullptr;
  QMenu* popup_ = nullptr;
};

// The XY pad: a frame inside a margin. Presses and held moves go to the model
// with their position; the model decides what lies inside the frame.
class XyPad final : public QWidget {
 public:
  static constexpr int kMargin = 8;
  static constexpr int kSide = 160;
  XyPad(DeskApp& app, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  DeskApp& app_;
};

}  // namespace lumaris
