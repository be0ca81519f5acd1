#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>

#include "app/bcf_setup_window.h"
#include "app/bcf_window.h"
#include "core/main_desk.h"
#include "tests/app/app_windows.h"
#include "tests/support/fake_midi.h"

namespace lumaris {

TEST(BcfWindows, ConnectFromTheSetupThenPlayAFaderAndStepTheMode) {
  FakeMidi midi;
  midi.set_ports({"BCF2000:BCF2000 Port 1 20:0"}, {"BCF2000:BCF2000 Port 1 20:0"});
  PlatformServices services;
  services.midi = &midi;
  DeskApp app(services);
  app.start();
  app.handle([&] { app.console().main_desk().Menu_Click("bcf2000-setup"); });
  auto& setup = window_named<BcfSetupWindow>(app, "bcf2000-setup");
  auto& control = window_named<BcfWindow>(app, "bcf2000");
  EXPECT_TRUE(setup.isVisible());
  EXPECT_EQ(setup.windowTitle(), QStringLiteral("BCF Setup"));

  setup.connect_button()->click();
  EXPECT_EQ(setup.connection_box()->text(), QStringLiteral(" Connection Made"));
  EXPECT_FALSE(control.isVisible());
  setup.control_button()->click();
  ASSERT_TRUE(control.isVisible());
  EXPECT_EQ(control.mode_box()->text(), QStringLiteral(" Main Desk"));
  EXPECT_FALSE(control.previous_mode_button()->isEnabled());

  midi.deliver({0xB0, 81, 100});  // fader 1 at 100: level 200, once the event loop runs
  QCoreApplication::processEvents();
  EXPECT_EQ(app.console().store().Desk_Level[0], 200);

  control.next_mode_button()->click();
  EXPECT_EQ(control.mode_box()->text(), QStringLiteral(" Playback Desk"));
  app.console().shutdown();
}

}  // namespace lumaris
