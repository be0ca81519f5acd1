#include <gtest/gtest.h>

#include <tuple>

#include "console/window_registry.h"
#include "core/main_desk.h"
#include "core/project_info.h"
#include "output/output_device_setup.h"
#include "tests/support/fake_d2xx.h"
#include "tests/support/fake_port_io.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

constexpr int kOki = 2;
constexpr int kOpenDmx = 3;

struct WindowsTest : ::testing::Test {
  FakeD2xx device;
  FakePortIo port;
  TestConsole test;

  void SetUp() override {
    test.services.d2xx = &device;
    test.services.port_io = &port;
    test.build();
  }
  void menu(const std::string& name) { test.console->main_desk().Menu_Click(name); }
  OutputDeviceSetup& setup() { return test.console->output_device_setup(); }
};

TEST_F(WindowsTest, ReopeningTheOutputSetupNeverTouchesTheAdapterAgain) {
  test.store().Adapter = kOpenDmx;
  menu("output-device-setup");
  const std::size_t device_calls = device.calls().size();
  ASSERT_GT(device_calls, 0u) << "the first opening searches for the device";
  setup().cancel_clicked();

  menu("output-device-setup");
  EXPECT_EQ(device.calls().size(), device_calls) << "looking at the window must not reopen the USB";
  EXPECT_TRUE(setup().visible());
  EXPECT_EQ(setup().Adapter_Name(), OutputDeviceSetup::kAdapterNames[kOpenDmx]);

  // A show loaded meanwhile chose the OKI adapter: the window shows it, and the
  // port gets no wake-up pulse from looking.
  setup().cancel_clicked();
  test.store().Adapter = kOki;
  const std::size_t port_writes = port.events.size();
  const std::string status = test.console->status().main();
  menu("output-device-setup");
  EXPECT_EQ(setup().Adapter_Name(), OutputDeviceSetup::kAdapterNames[kOki]);
  EXPECT_EQ(setup().adapter_list_index(), kOki);
  EXPECT_FALSE(setup().control(OutputDeviceSetup::RateBox).visible);
  EXPECT_TRUE(setup().control(OutputDeviceSetup::Lpt1Option).visible);
  EXPECT_EQ(std::tuple(port.events.size(), test.console->status().main()), std::tuple(port_writes, status));
}

TEST_F(WindowsTest, EveryWindowLoadsOnceAndLaterOpensShowTheStoreOfNow) {
  WindowRegistry& windows = test.console->windows();
  EXPECT_FALSE(windows.loaded("project-info"));
  menu("project-info");
  EXPECT_TRUE(windows.loaded("project-info"));
  test.console->project_info().CancelButton_Click();
  test.store().Project_Name = "Loaded meanwhile";
  menu("project-info");
  EXPECT_EQ(test.console->project_info().Prj_Name(), "Loaded meanwhile");

  int loads = 0;
  int refreshes = 0;
  struct Plain : Window {
    Plain() : Window("plain") {}
  } plain;
  windows.add("plain", {&plain, [&loads] { ++loads; }, [&refreshes] { ++refreshes; }});
  windows.open("plain");
  windows.open("plain");
  plain.Hide();
  windows.open("plain");
  EXPECT_EQ(std::tuple(loads, refreshes, plain.visible()), std::tuple(1, 2, true));
  EXPECT_FALSE(windows.can_open("no_such_window")) << "a window that does not exist cannot be opened";
}

}  // namespace
}  // namespace lumaris
