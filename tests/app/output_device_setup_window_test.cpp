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

}  // namespace lumaris
