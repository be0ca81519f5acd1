#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>
#include <optional>

#include "controls/log_slider.h"

namespace lumaris {

// Draws a LogSlider: maximum label on top, minimum label below, the tick scale
// on the left and the thumb on the right. Presses and drags are handed to
// `on_position` with the pointer's height, which the owner passes to the model's
// Set_From_Position as an engine event; arrow keys, Page Up/Down and wheel
// notches are handed to `on_step` as a fraction of the travel (the model's
// Step_By).
class LogSliderWidget : public QWidget {
 public:
  static constexpr int kLabelHeight = 16;
  static constexpr int kThumbHeight = 10;

  explicit LogSliderWidget(LogSlider& model, QWidget* parent = nullptr);
  void on_position(std::function<void(double)> handler) { on_position_ = std::move(handler); }
  void on_step(std::function<void(double)> handler) { on_step_ = std::move(handler); }
  QSize sizeHint() const override { return {64, 220}; }
  // Repaints when what it draws of the model changed since its last sync.
  void sync();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void place_axis();

  LogSlider& model_;
  std::function<void(double)> on_position_;
  std::function<void(double)> on_step_;
  int wheel_angle_ = 0;  // eighths of a degree not yet taken as a notch
  std::optional<std::uint64_t> painted_;  // the drawn model values of the last sync
};

}  // namespace lumaris
