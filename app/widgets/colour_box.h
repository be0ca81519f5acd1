#pragma once

#include <QFrame>
#include <QMouseEvent>
#include <functional>

namespace lumaris {

// A picture box used as a coloured indicator or a colour swatch; clickable.
class ColourBox : public QFrame {
 public:
  explicit ColourBox(QWidget* parent = nullptr) : QFrame(parent) {
    setFrameShape(QFrame::Box);
    setAutoFillBackground(true);
    setMinimumSize(18, 18);
  }
  void on_click(std::function<void()> click) { click_ = std::move(click); }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton && click_) click_();
  }

 private:
  std::function<void()> click_;
};

}  // namespace lumaris
