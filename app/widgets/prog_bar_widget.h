#pragma once

#include <QWidget>
#include <functional>

#include "controls/prog_bar.h"

namespace lumaris {

// Paints a ProgBar model. sync() repaints only when the model changed since the
// last paint, so a monitor of 144 bars costs nothing while the frame stands still.
class ProgBarWidget : public QWidget {
 public:
  explicit ProgBarWidget(const ProgBar& model, QWidget* parent = nullptr);

  void sync();
  void on_click(std::function<void()> click) { click_ = std::move(click); }
  const ProgBar& model() const { return *model_; }
  // The paints so far; a wiring test counts them.
  int paint_count() const { return paint_count_; }

  // The colour a model colour stands for on this widget: the two system colours
  // are the palette's button face and highlight, anything else is 0x00BBGGRR.
  QColor colour(std::uint32_t model_colour) const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  const ProgBar* model_;
  unsigned painted_revision_;
  int paint_count_ = 0;
  std::function<void()> click_;
};

}  // namespace lumaris
