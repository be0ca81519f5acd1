#include "app/widgets/log_slider_widget.h"

#include "app/widgets/sync.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QWheelEvent>
#include <algorithm>

namespace lumaris {

LogSliderWidget::LogSliderWidget(LogSlider& model, QWidget* parent)
    : QWidget(parent), model_(model) {
  setMinimumSize(56, 140);
  setFocusPolicy(Qt::StrongFocus);
  place_axis();
}

void LogSliderWidget::place_axis() {
  // The axis leaves room for the labels and for half a thumb at each end.
  const double top = kLabelHeight + kThumbHeight / 2.0;
  model_.set_thumb_height(kThumbHeight);
  model_.set_axis(top, std::max(0.0, height() - 2.0 * top));
}

void LogSliderWidget::resizeEvent(QResizeEvent* event) {
  place_axis();
  QWidget::resizeEvent(event);
}

void LogSliderWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QPalette& pal = palette();
  const int w = width();
  const int ticks_width = w / 2;
  painter.setPen(pal.color(QPalette::WindowText));
  painter.drawText(QRect(0, 0, w, kLabelHeight), Qt::AlignCenter, QString::fromStdString(model_.lblMax()));
  painter.drawText(QRect(0, height() - kLabelHeight, w, kLabelHeight), Qt::AlignCenter,
                   QString::fromStdString(model_.lblMin()));
  for (const LogSlider::Tick& tick : model_.ticks()) {
    const int y = static_cast<int>(tick.position);
    painter.drawLine(0, y, tick.decade ? ticks_width : ticks_width / 2, y);
  }
  // The travel, then the thumb on it.
  const int axis_x = ticks_width + (w - ticks_width) / 2;
  const int top = static_cast<int>(model_.axis_top());
  const int bottom = static_cast<int>(model_.axis_top() + model_.axis_height());
  painter.setPen(QPen(pal.color(QPalette::Highlight), 3));
  painter.drawLine(axis_x, top, axis_x, bottom);
  const QRect thumb(ticks_width + 2, static_cast<int>(model_.thumb_top()), w - ticks_width - 4,
                    static_cast<int>(model_.thumb_height()));
  // The thumb the keys move is outlined.
  painter.setPen(hasFocus() ? QPen(pal.color(QPalette::Highlight), 2) : QPen(pal.color(QPalette::Dark)));
  painter.setBrush(pal.color(QPalette::Button));
  painter.drawRect(thumb);
}

void LogSliderWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && on_position_) on_position_(event->position().y());
}

void LogSliderWidget::mouseMoveEvent(QMouseEvent* event) {
  if ((event->buttons() & Qt::LeftButton) && on_position_) on_position_(event->position().y());
}

void LogSliderWidget::keyPressEvent(QKeyEvent* event) {
  double fraction = 0.0;
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Right:
      fraction = LogSlider::kArrowStep;
      break;
    case Qt::Key_Down:
    case Qt::Key_Left:
      fraction = -LogSlider::kArrowStep;
      break;
    case Qt::Key_PageUp:
      fraction = LogSlider::kPageStep;
      break;
    case Qt::Key_PageDown:
      fraction = -LogSlider::kPageStep;
      break;
    default:
      QWidget::keyPressEvent(event);
      return;
  }
  if (on_step_) on_step_(fraction);
}

// A notch is 120 eighths of a degree; a touchpad sends smaller pieces, which
// add up to notches.
void LogSliderWidget::wheelEvent(QWheelEvent* event) {
  wheel_angle_ += event->angleDelta().y();
  const int notches = wheel_angle_ / 120;
  wheel_angle_ -= notches * 120;
  if (notches != 0 && on_step_) on_step_(notches * LogSlider::kArrowStep);
  event->accept();
}

void LogSliderWidget::focusInEvent(QFocusEvent* event) {
  update();
  QWidget::focusInEvent(event);
}

void LogSliderWidget::focusOutEvent(QFocusEvent* event) {
  update();
  QWidget::focusOutEvent(event);
}

}  // namespace lumaris

namespace lumaris {

void LogSliderWidget::sync() {
  sync::repaint(this, painted_, {model_.Value(), model_.MinValue(), model_.MaxValue(), model_.ScaleFactor(),
                       model_.logAxis() ? 1.0 : 0.0, model_.thumb_top(), model_.thumb_height(),
                       model_.axis_top(), model_.axis_height()});
}

}  // namespace lumaris
