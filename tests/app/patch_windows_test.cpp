#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QToolTip>

#include "app/main_desk_window.h"
#include "app/output_monitor_window.h"
#include "app/patch_editor_window.h"
#include "app/widgets/prog_bar_widget.h"
#include "core/main_desk.h"
#include "console/output_cycle.h"
#include "tests/app/app_windows.h"

namespace lumaris {
namespace {

using PatchAndMonitorWindows = DeskAppTest;

TEST_F(PatchAndMonitorWindows, TypedPatchIsStoredAndPagingRedrawsTheBoxes) {
  auto& window = window_named<PatchEditorWindow>(app, "patch-editor");
  app.handle([&] { app.console().main_desk().Menu_Click("patch-editor"); });
  ASSERT_TRUE(window.isVisible());
  EXPECT_EQ(window.channel_box(0)->text(), QStringLiteral("1"));

  window.channel_box(0)->selectAll();
  QTest::keyClicks(window.channel_box(0), QStringLiteral("12"));
  QTest::mouseClick(window.Update(), Qt::LeftButton);
  EXPECT_EQ(store().Patch[0], 12);
  EXPECT_EQ(app.main_window().Status()->text(), QStringLiteral(" Patches Updated"));

  store().Patch[32] = 40;
  QTest::mouseClick(window.next_page(), Qt::LeftButton);
  EXPECT_EQ(window.channel_box(0)->text(), QStringLiteral("40"));
  EXPECT_EQ(window.channel_box(0)->toolTip(), QStringLiteral(" Select Desh Channel for DMX ch33"));
}

TEST_F(PatchAndMonitorWindows, MonitorBarsRepaintOnlyWhenTheFrameChanges) {
  auto& window = window_named<OutputMonitorWindow>(app, "output-monitor");
  app.handle([&] { app.console().main_desk().output_monitor_clicked(); });
  ASSERT_TRUE(window.isVisible());
  ProgBarWidget* bar = window.bar(0);
  QApplication::processEvents();
  const int painted = bar->paint_count();

  app.handle([&] { app.console().output_cycle().output_tick(); });  // frame unchanged
  QApplication::processEvents();
  EXPECT_EQ(bar->paint_count(), painted);

  app.handle([&] {
    app.console().main_desk().max_clicked(0);
    app.console().output_cycle().output_tick();
  });
  QApplication::processEvents();
  EXPECT_EQ(bar->model().Value(), 255);
  EXPECT_EQ(bar->paint_count(), painted + 1);
  EXPECT_EQ(window.bar(1)->paint_count(), painted);
  // The filled part is drawn in the highlight colour from the bottom up.
  const QImage image = bar->grab().toImage();
  EXPECT_EQ(image.pixelColor(image.width() / 2, image.height() / 2),
            bar->palette().color(QPalette::Highlight));
  window.next_page()->click();
  EXPECT_EQ(window.range_label()->text(), QStringLiteral(" Real DMX Output  Ch144   -  Ch287"));
  // The mouse resting on a bar of the page on show names its output.
  const QPoint centre = window.bar(1)->geometry().center();
  QHelpEvent help(QEvent::ToolTip, centre, window.mapToGlobal(centre));
  QApplication::sendEvent(&window, &help);
  EXPECT_EQ(QToolTip::text(), QStringLiteral(" Output 145 From Desk Channel 0"));
}

TEST(ProgBarWidget, PaintsTheModelAndReportsClicks) {
  ProgBar model;
  model.set_BackColor(0x0000FF);  // red
  model.set_BarColor(0xFF0000);   // blue
  model.set_Value(25);
  ProgBarWidget widget(model);
  widget.resize(100, 20);
  int clicks = 0;
  widget.on_click([&] { ++clicks; });
  const QImage image = widget.grab().toImage();
  EXPECT_EQ(image.pixelColor(10, 10), QColor(0, 0, 255));  // first quarter: bar
  EXPECT_EQ(image.pixelColor(60, 10), QColor(255, 0, 0));  // rest: empty colour
  QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), QPointF(5, 5), Qt::LeftButton,
                    Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&widget, &press);
  EXPECT_EQ(clicks, 1);

  // A monitor bar at level 1 of 255 still shows: one pixel from the bottom.
  model.set_Max(255);
  model.set_Vertical(true);
  model.set_BorderStyle(0);
  model.set_Value(1);
  widget.resize(14, 96);
  const QImage low = widget.grab().toImage();
  EXPECT_EQ(low.pixelColor(7, 95), QColor(0, 0, 255)) << "level 1 fills the bottom pixel";
  EXPECT_EQ(low.pixelColor(7, 94), QColor(255, 0, 0));
}

}  // namespace
}  // namespace lumaris
