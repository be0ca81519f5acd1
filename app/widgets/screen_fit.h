#pragma once

#include <QObject>
#include <QRect>
#include <QSize>
#include <QTemporaryFile>
#include <memory>

class QWidget;

namespace lumaris {

// Keeps a window inside its screen's available area (the screen less its panels
// and docks) every time it is shown: a window larger than the area shrinks to it
// (its layout then narrows or scrolls), and one that would open partly off the
// area moves in. A window that fits where it is stays where it is.
class ScreenFit final : public QObject {
 public:
  // Watches `window` for as long as it lives.
  static void watch(QWidget* window);
  // The placement rule itself, for any area.
  static void fit_into(QWidget* window, const QRect& area);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  using QObject::QObject;
};

// Selects Qt's offscreen platform with one screen of `size` (the platform's own
// screen is 800x600), unless the caller's QT_QPA_PLATFORM already names an
// offscreen set-up of its own. Call before the QApplication is made and keep
// the result until it is: it is the file that describes the screen.
std::unique_ptr<QTemporaryFile> use_offscreen_screen(QSize size);

}  // namespace lumaris
