#include "app/widgets/log_slider_widget.h"

#include "app/widgets/sync.h"

#include <QMouseEvent>
#include <algorithm>
#include <QPainter>
#include <QPalette>

namespace lumaris {

LogSliderWidget::LogSliderWidget(LogSlider& model, QWidget* parent)
    : QWidget(parent), model_(model) {
  setMinimumSize(56, 140);
  setFocusPolicy(Qt::NoFocus);
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
  painter.setPen(pal.color(QPalette::Dark));
  painter.setBrush(pal.color(QPalette::Button));
  painter.drawRect(thumb);
}

void LogSliderWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && on_position_) on_position_(event->position().y());
}

void LogSliderWidget::mouseMoveEvent(QMouseEvent* event) {
  if ((event->buttons() & Qt::LeftButton) && on_position_) on_position_(event->position().y());
}

}  // namespace lumaris

namespace lumaris {

void LogSliderWidget::sync() {
  sync::repaint(this, painted_, {model_.Value(), model_.MinValue(), model_.MaxValue(), model_.ScaleFactor(),
                       model_.logAxis() ? 1.0 : 0.0, model_.thumb_top(), model_.thumb_height(),
                       model_.axis_top(), model_.axis_height()});
}

}  // namespace lumaris
