#include "app/widgets/prog_bar_widget.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace lumaris {

ProgBarWidget::ProgBarWidget(const ProgBar& model, QWidget* parent)
    : QWidget(parent), model_(&model), painted_revision_(model.revision()) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void ProgBarWidget::sync() {
  if (model_->revision() == painted_revision_) return;
  painted_revision_ = model_->revision();
  update();
}

QColor ProgBarWidget::colour(std::uint32_t model_colour) const {
  if (model_colour == kSystemButtonFace) return palette().color(QPalette::Button);
  if (model_colour == kSystemHighlight) return palette().color(QPalette::Highlight);
  return QColor(static_cast<int>(model_colour & 0xFF), static_cast<int>((model_colour >> 8) & 0xFF),
                static_cast<int>((model_colour >> 16) & 0xFF));
}

void ProgBarWidget::paintEvent(QPaintEvent*) {
  ++paint_count_;
  painted_revision_ = model_->revision();
  QPainter painter(this);
  QRect area = rect();
  if (model_->BorderStyle() == 1) {
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(area.adjusted(0, 0, -1, -1));
    area = area.adjusted(1, 1, -1, -1);
  }
  painter.fillRect(area, colour(model_->BackColor()));
  const double fraction = model_->filled_fraction();
  if (fraction <= 0.0) return;
  // A value of one step or more always shows: at least one pixel is filled.
  QRect bar = area;
  if (model_->Vertical()) {
    const int length = std::max(1, static_cast<int>(std::lround(area.height() * fraction)));
    bar.setTop(area.bottom() - length + 1);
  } else {
    const int length = std::max(1, static_cast<int>(std::lround(area.width() * fraction)));
    bar.setWidth(length);
  }
  painter.fillRect(bar, colour(model_->BarColor()));
}

void ProgBarWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && click_) click_();
}

}  // namespace lumaris
