#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

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
  EXPECT_FALSE(window->HScroll1()->isVisibleTo(window->widget()));  // None

  window->Combo1()->setCurrentIndex(4);
  emit window->Combo1()->activated(4);
  EXPECT_EQ(window->Adapter_Name()->text(), QStringLiteral(" Manolator DMX Interface "));
  EXPECT_TRUE(window->HScroll1()->isVisibleTo(window->widget()));

  window->Option2()->click();
  EXPECT_EQ(app.console().store().Port_Address, 632);
  EXPECT_FALSE(window->Option1()->isChecked());

  window->HScroll1()->setValue(100);
  EXPECT_EQ(window->Text1()->text(), QStringLiteral(" 100 mS"));

  window->Command1()->click();
  EXPECT_EQ(app.console().store().Adapter, 4);
  EXPECT_EQ(app.console().output_cycle().output_timer().interval(), 100);
  EXPECT_FALSE(window->widget()->isVisible());
  app.console().shutdown();
}

}  // namespace lumaris
