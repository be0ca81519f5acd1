#include <gtest/gtest.h>

#include <QApplication>
#include <QCoreApplication>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>
#include <cmath>
#include <functional>

#include "app/playback_desk_window.h"
#include "app/sequence_desk_window.h"
#include "app/widgets/log_slider_widget.h"
#include "playback/playback_desk.h"
#include "playback/screen_panel.h"
#include "tests/app/app_windows.h"

namespace lumaris {
namespace {

// Fade and step times typed in seconds and moved with the keys and the wheel,
// into the real boxes and sliders.
class FadeTimeKeys : public DeskAppTest {
 protected:
  template <typename W>
  W& shown(const std::function<void(Console&)>& open, const std::string& name) {
    app.handle([&] { open(app.console()); });
    auto& window = window_named<W>(app, name);
    QApplication::setActiveWindow(&window);
    return window;
  }
  static void type(QLineEdit* box, const char* keys) {
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, keys);
    QTest::keyClick(box, Qt::Key_Return);
    QCoreApplication::processEvents();
  }
  static void wheel(QWidget* widget, int angle) {
    const QPointF at(10, 10);
    QWheelEvent event(at, widget->mapToGlobal(at), QPoint(), QPoint(0, angle), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
  }
};

TEST_F(FadeTimeKeys, TheScreensFadeInTimeTakesTypedWholeSecondsClampedAndRefusesWords) {
  auto& window = shown<PlaybackDeskWindow>([](Console& c) { c.playback_desk().Show(); }, "playback-desk");
  const Screen& screen = store().Screens[1];
  const LogSlider& slider = app.console().playback_desk().screens().Screen_Fade_Time();
  QLineEdit* box = window.screen_intxt();

  type(box, "2.5");
  EXPECT_EQ(screen.Time, 2) << "a screen keeps whole seconds";
  EXPECT_EQ(box->text(), QStringLiteral("2"));
  EXPECT_EQ(slider.Value(), 2.0) << "the slider follows";
  type(box, "900");
  EXPECT_EQ(screen.Time, 240) << "clamped to the slider's range";
  type(box, "5 min");
  EXPECT_EQ(screen.Time, 240);
  EXPECT_EQ(box->text(), QStringLiteral("240")) << "a refused text gives way to the desk's value";

  type(box, "2");
  QTest::keyClick(window.Screen_Fade_Time(), Qt::Key_PageUp);  // 2 s x 2400^(1/8)
  EXPECT_EQ(screen.Time, 5);
  EXPECT_EQ(box->text(), QStringLiteral("5"));
}

TEST_F(FadeTimeKeys, TheChasesStepAndFadeTimesTakeTypedSecondsAndKeysStepEvenlyOnTheLogScale) {
  auto& window = shown<SequenceDeskWindow>([](Console& c) { c.sequence_desk().Show(); }, "sequence-desk");
  const ChaseRec& chase = store().Chase_Table[0];
  type(window.speed_box(), "2,5");
  EXPECT_EQ(chase.Speed[1], 2.5);
  type(window.fade_box(), "0.4");
  EXPECT_EQ(chase.Time[1], 0.4);
  type(window.fade_box(), "x");
  EXPECT_EQ(chase.Time[1], 0.4);
  EXPECT_EQ(window.fade_box()->text(), QStringLiteral("0.4"));

  // Even steps: a page is five arrows, a wheel notch one; both ends hold.
  LogSliderWidget* speed = window.speed_slider();
  QTest::keyClick(speed, Qt::Key_Up);
  const double arrow = chase.Speed[1] / 2.5;
  EXPECT_NEAR(arrow, 1.21, 0.01) << "about a fifth per arrow on the 0.1 s to 4 min scale";
  QTest::keyClick(speed, Qt::Key_PageDown);
  EXPECT_NEAR(chase.Speed[1], 2.5 / std::pow(arrow, 4), 1e-9);
  wheel(speed, 120);
  EXPECT_NEAR(chase.Speed[1], 2.5 / std::pow(arrow, 3), 1e-9);
  for (int i = 0; i < 10; ++i) QTest::keyClick(speed, Qt::Key_PageUp);
  EXPECT_EQ(chase.Speed[1], 240.0);
  EXPECT_EQ(window.speed_box()->text(), QStringLiteral("240"));
  QTest::keyClick(window.fade_slider(), Qt::Key_Down);
  EXPECT_NEAR(chase.Time[1], 0.4 / arrow, 1e-9);
}

}  // namespace
}  // namespace lumaris
