#include "app/widgets/screen_fit.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace lumaris {

void ScreenFit::watch(QWidget* window) { window->installEventFilter(new ScreenFit(window)); }

void ScreenFit::fit_into(QWidget* window, const QRect& area) {
  // The frame is known once the window has been on screen; before that only
  // the client area counts.
  const QRect frame = window->frameGeometry();
  const QRect client = window->geometry();
  const int frame_width = frame.width() - client.width();
  const int frame_height = frame.height() - client.height();
  const QSize size(std::min(client.width(), area.width() - frame_width),
                   std::min(client.height(), area.height() - frame_height));
  if (size != client.size()) window->resize(size);
  const QSize outer(size.width() + frame_width, size.height() + frame_height);
  const QPoint at(std::clamp(frame.left(), area.left(), area.left() + area.width() - outer.width()),
                  std::clamp(frame.top(), area.top(), area.top() + area.height() - outer.height()));
  if (at != frame.topLeft()) window->move(at);
}

std::unique_ptr<QTemporaryFile> use_offscreen_screen(QSize size) {
  if (qgetenv("QT_QPA_PLATFORM").startsWith("offscreen:")) return nullptr;
  auto file = std::make_unique<QTemporaryFile>();
  if (!file->open()) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return nullptr;
  }
  file->write(QStringLiteral(R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": %1, "height": %2}]})")
                  .arg(size.width())
                  .arg(size.height())
                  .toUtf8());
  file->flush();
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file->fileName().toLocal8Bit());
  return file;
}

bool ScreenFit::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show) {
    auto* window = static_cast<QWidget*>(watched);
    if (const QScreen* screen = window->screen()) fit_into(window, screen->availableGeometry());
  }
  return false;
}

}  // namespace lumaris
