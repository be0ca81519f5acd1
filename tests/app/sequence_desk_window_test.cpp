#include <gtest/gtest.h>

#include <QApplication>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QPushButton>
#include <QLineEdit>

#include "app/sequence_desk_window.h"
#include "app/desk_app.h"
#include "app/main_desk_window.h"
#include "app/moving_panel_widget.h"
#include "app/widgets/colour_box.h"
#include "app/widgets/log_slider_widget.h"
#include "app/widgets/prog_bar_widget.h"
#include "sequence/chase_runtime.h"
#include "tests/app/app_windows.h"

namespace lumaris {

namespace {

using ChasesWindowTest = DeskAppTest;

SequenceDeskWindow& chases_window(DeskApp& app) { return window_named<SequenceDeskWindow>(app, "sequence-desk"); }

QPushButton* button_with_text(QWidget* parent, const QString& text) {
  for (QPushButton* b : parent->findChildren<QPushButton*>()) {
    if (b->text() == text) return b;
  }
  return nullptr;
}

void press(QWidget* widget, QPointF at) {
  QMouseEvent event(QEvent::MouseButtonPress, at, widget->mapToGlobal(at), Qt::LeftButton,
                    Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(widget, &event);
}

}  // namespace

TEST_F(ChasesWindowTest, OpensFromTheMainDeskAndForwardsTheOperatorsEvents) {
  QPushButton* open = button_with_text(&app.main_window(), QStringLiteral("Sequence Desk"));
  ASSERT_NE(open, nullptr);
  ASSERT_TRUE(open->isEnabled());
  open->click();
  SequenceDeskWindow& window = chases_window(app);
  SequenceDesk& desk = app.console().sequence_desk();
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(window.Step_Display()->text(), QStringLiteral("1"));

  window.fader(3)->setValue(120);  // on screen: the level
  EXPECT_EQ(app.console().store().Chase_Table[0].Data[1][3], 120);

  window.Ch_Function(5)->click();
  EXPECT_FALSE(window.fader(5)->isEnabled());

  window.channel_box(2)->setText(QStringLiteral("40"));
  emit window.channel_box(2)->textEdited(QStringLiteral("40"));
  EXPECT_EQ(app.console().store().Chase_Table[0].Channels[2], 39);

  window.speed_slider()->resize(60, 300);
  press(window.speed_slider(), QPointF(40, 0));  // above the axis: the maximum
  EXPECT_EQ(app.console().store().Chase_Table[0].Speed[1], 240.0);

  window.Chase_Go_Button()->click();
  EXPECT_TRUE(desk.runtime().Chase_Running());
  EXPECT_EQ(window.Chase_Go_Button()->text(), QStringLiteral("Stop"));
  window.Chase_Go_Button()->click();

  window.close();
  EXPECT_FALSE(desk.visible());
}

TEST_F(ChasesWindowTest, ShowMovingWidensTheDeskAndThePadAimsTheMovingLight) {
  SequenceDesk& desk = app.console().sequence_desk();
  SequenceDeskWindow& window = chases_window(app);
  app.handle([&] {
    ChaseRec& c = app.console().store().Chase_Table[0];
    c.Fade[1][22] = c.Fade[1][23] = kChaseFade;
    desk.Show();
  });
  const int narrow = window.width();
  EXPECT_FALSE(window.moving_panel()->isVisible());
  EXPECT_FALSE(window.menu_action("load-fixture")->isEnabled());

  window.Show_Moving()->click();
  EXPECT_TRUE(window.moving_panel()->isVisible());
  EXPECT_GT(window.width(), narrow);
  EXPECT_EQ(window.Show_Moving()->text(), QStringLiteral("Hide Moving"));
  EXPECT_TRUE(window.menu_action("load-fixture")->isEnabled());

  XyPad* pad = window.moving_panel()->pad();
  press(pad, QPointF(XyPad::kMargin, XyPad::kMargin));  // the frame's top-left corner
  EXPECT_EQ(app.console().store().Chase_Table[0].Data[1][22], 255);
  EXPECT_EQ(app.console().store().Chase_Table[0].Data[1][23], 255);
  EXPECT_EQ(window.moving_panel()->X_text()->text(), QStringLiteral("0"));
  EXPECT_EQ(window.moving_panel()->slider(MovingSlider::Movement)->model_value(), 0);
  press(pad, QPointF(XyPad::kMargin + XyPad::kSide, XyPad::kMargin + 10));  // right edge
  EXPECT_EQ(window.moving_panel()->slider(MovingSlider::Movement)->model_value(), 0);

  window.Show_Moving()->click();
  QCoreApplication::processEvents();
  EXPECT_FALSE(window.moving_panel()->isVisible());
  EXPECT_EQ(window.width(), narrow);
}

TEST_F(ChasesWindowTest, ARunningChasesTicksRewriteEveryPartTheyChangedAndLeaveTheRest) {
  SequenceDesk& desk = app.console().sequence_desk();
  SequenceDeskWindow& window = chases_window(app);
  // Two steps of 5 s; chase channel 1 fades 0 -> 255 over the first second of each.
  app.handle([&] {
    ChaseRec& c = app.console().store().Chase_Table[0];
    c.Steps = 2;
    for (int step = 1; step <= 2; ++step) {
      c.Speed[step] = 5;
      c.Time[step] = 1;
      c.Fade[step][1] = kChaseFade;
    }
    c.Data[1][1] = 0;
    c.Data[2][1] = 255;
    desk.Show();
  });
  window.Chase_Go_Button()->click();
  ASSERT_TRUE(desk.runtime().Chase_Running());
  int source = 0;
  auto tick = [&](void (ChaseRuntime::*timer)()) {
    app.scheduler().run_event([&] { (desk.runtime().*timer)(); }, &source);
  };
  // The bars paint the runtime's own bars: what counts is that they repaint.
  auto repainted = [](ProgBarWidget* bar, int& painted) {
    QApplication::processEvents();
    const bool more = bar->paint_count() > painted;
    painted = bar->paint_count();
    return more;
  };
  int fade_painted = 0;
  int step_painted = 0;
  repainted(window.Fade_Bar(), fade_painted);
  repainted(window.Step_Bar(), step_painted);
  // A field no tick changes: a tick that walked it would put the model back.
  window.Chase_Name()->setText(QStringLiteral("not from the model"));

  tick(&ChaseRuntime::Advance_Step);  // into step 2: 0 -> 255
  for (int i = 0; i < 4; ++i) tick(&ChaseRuntime::Fade_Tick);
  const ChaseRuntime& run = desk.runtime();
  EXPECT_EQ(window.Step_Display()->text(), QStringLiteral("2"));
  const Rgb fading = desk.channels()[1].indicator;
  ASSERT_NE(fading, kWhite);
  EXPECT_EQ(window.indicator(1)->palette().color(QPalette::Window), QColor(fading.r, fading.g, fading.b));
  EXPECT_EQ(window.Chase_Name()->text().toStdString(), "not from the model");
  ASSERT_GT(run.Fade_Bar().Value(), 0);
  EXPECT_TRUE(repainted(window.Fade_Bar(), fade_painted));
  EXPECT_TRUE(repainted(window.Step_Bar(), step_painted));

  tick(&ChaseRuntime::Advance_Step);  // back to step 1
  EXPECT_EQ(window.Step_Display()->text(), QStringLiteral("1"));
  EXPECT_TRUE(repainted(window.Fade_Bar(), fade_painted));
  EXPECT_TRUE(repainted(window.Step_Bar(), step_painted));

  window.Chase_Go_Button()->click();  // the operator's event walks everything
  EXPECT_EQ(window.Chase_Go_Button()->text(), QStringLiteral("Go"));
  EXPECT_NE(window.Chase_Name()->text().toStdString(), "not from the model");
}

}  // namespace lumaris
