#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

#include "app/output_device_setup_window.h"
#include "core/main_desk.h"
#include "console/output_cycle.h"
#include "tests/app/app_windows.h"

namespace lumaris {

TEST(OutputDeviceSetupWindow, OperatorChoicesReachTheDeskAndTheModelReachesTheWidgets) {
  DeskApp app;
  app.start();
  auto* window = &window_named<OutputDeviceSetupWindow>(app, "output-device-setup");
  app.handle([&] { app.console().main_desk().Menu_Click("output-device-setup"); });
  EXPECT_TRUE(window->widget()->isVisible());
  EXPECT_FALSE(window->rate_scroll()->isVisibleTo(window->widget()));  // None

  window->adapter_list()->setCurrentIndex(4);
  emit window->adapter_list()->activated(4);
  EXPECT_EQ(window->Adapter_Name()->text(), QStringLiteral(" Manolator DMX Interface "));
  EXPECT_TRUE(window->rate_scroll()->isVisibleTo(window->widget()));

  window->lpt2_option()->click();
  EXPECT_EQ(app.console().store().Port_Address, 632);
  EXPECT_FALSE(window->lpt1_option()->isChecked());

  window->rate_scroll()->setValue(100);
  EXPECT_EQ(window->rate_box()->text(), QStringLiteral(" 100 mS"));

  window->save_button()->click();
  EXPECT_EQ(app.console().store().Adapter, 4);
  EXPECT_EQ(app.console().output_cycle().output_timer().interval(), 100);
  EXPECT_FALSE(window->widget()->isVisible());
  app.console().shutdown();
}

// Choosing the Open DMX USB adapter acts at once; Cancel goes back to the adapter in force.
TEST(OutputDeviceSetupWindow, CancelPutsBackTheAdapterPickedWithTheMouse) {
  DeskApp app;
  app.start();
  app.console().store().Adapter = 4;
  auto& window = window_named<OutputDeviceSetupWindow>(app, "output-device-setup");
  app.handle([&] { app.console().main_desk().Menu_Click("output-device-setup"); });

  QComboBox* list = window.adapter_list();
  QTest::mouseClick(list, Qt::LeftButton);
  QAbstractItemView* entries = list->view();
  ASSERT_TRUE(entries->isVisible());
  const QPoint open_dmx = entries->visualRect(list->model()->index(3, 0)).center();
  QTest::mouseMove(entries->viewport(), open_dmx);  // the entry under the mouse is the one taken
  QTest::mouseClick(entries->viewport(), Qt::LeftButton, {}, open_dmx);
  ASSERT_EQ(app.console().store().Adapter, 3);
  QTest::mouseClick(window.cancel_button(), Qt::LeftButton);
  EXPECT_EQ(app.console().store().Adapter, 4);
  app.console().shutdown();
}

}  // namespace lumaris
