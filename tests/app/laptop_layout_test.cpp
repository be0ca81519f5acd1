#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include "app/main_desk_window.h"
#include "app/playback_desk_window.h"
#include "core/main_desk.h"
#include "playback/playback_desk.h"
#include "tests/app/app_windows.h"

namespace lumaris {
namespace {

// The wiring tests run on a 1366x768 screen (tests/app/main.cpp).
using LaptopLayout = DeskAppTest;

QString described(const QWidget* w) {
  const auto* button = qobject_cast<const QAbstractButton*>(w);
  return QStringLiteral("%1 '%2' %3")
      .arg(QString::fromLatin1(w->metaObject()->className()), button ? button->text() : w->toolTip(), w->objectName());
}

// Every control of a shown window lies on the screen and inside its window;
// what sits in a scroll area only needs the scroll area to.
void expect_every_control_on_screen(QWidget* window) {
  const QRect screen = window->screen()->availableGeometry();
  ASSERT_EQ(screen.size(), QSize(1366, 768));
  EXPECT_TRUE(screen.contains(window->frameGeometry())) << window->frameGeometry().width() << "x"
                                                         << window->frameGeometry().height();
  const QRect shown = screen & window->geometry();
  for (QWidget* w : window->findChildren<QWidget*>()) {
    if (!w->isVisible() || w->isWindow()) continue;
    bool scrolled = false;
    for (QWidget* p = w->parentWidget(); p != window; p = p->parentWidget()) {
      scrolled = scrolled || qobject_cast<QScrollArea*>(p) != nullptr;
    }
    if (scrolled) continue;
    const QRect at(w->mapToGlobal(QPoint(0, 0)), w->size());
    EXPECT_TRUE(shown.contains(at)) << described(w).toStdString();
  }
}

TEST_F(LaptopLayout, TheMainAndPlaybackDesksShowEveryControlAndScrollToTheLastChannel) {
  app.handle([&] { app.console().playback_desk().Show(); });
  QCoreApplication::processEvents();
  auto& main = window_named<MainDeskWindow>(app, "main-desk");
  expect_every_control_on_screen(&main);
  expect_every_control_on_screen(&window_named<PlaybackDeskWindow>(app, "playback-desk"));

  auto* strips = main.findChild<QScrollArea*>(QStringLiteral("channel-strips"));
  ASSERT_NE(strips, nullptr);
  strips->horizontalScrollBar()->setValue(strips->horizontalScrollBar()->maximum());
  const QWidget* last = main.channel_fader(MainDesk::kStrips - 1);
  const QRect viewport(strips->viewport()->mapToGlobal(QPoint(0, 0)), strips->viewport()->size());
  EXPECT_TRUE(viewport.contains(QRect(last->mapToGlobal(QPoint(0, 0)), last->size())));
}

}  // namespace
}  // namespace lumaris
