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
// Set_From_Position as an engine event.
class LogSliderWidget : public QWidget {
 public:
  static constexpr int kLabelHeight = 16;
  static constexpr int kThumbHeight = 10;

  explicit LogSliderWidget(LogSlider& model, QWidget* parent = nullptr);
  void on_position(std::function<void(double)> handler) { on_position_ = std::move(handler); }
  QSize sizeHint() const override { return {64, 220}; }
  // Repaints when what it draws of the model changed since its last sync.
  void sync();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void place_axis();

  LogSlider& model_;
  std::function<void(double)> on_position_;
  std::optional<std::uint64_t> painted_;  // the drawn model values of the last sync
};

}  // namespace lumaris
