#include "output/output_device_setup.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>
#include <utility>
#include <vector>

#include "console/output_cycle.h"
#include "core/desk_context.h"
#include "output/output_devices.h"
#include "tests/support/fake_d2xx.h"
#include "tests/support/fake_port_io.h"
#include "tests/support/memory_settings.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

using C = OutputDeviceSetup::Control;

struct OutputDeviceSetupTest : ::testing::Test {
  FakeD2xx device;
  FakePortIo port;
  TestConsole test;
  Console* console = nullptr;
  OutputDeviceSetup* setup = nullptr;

  void SetUp() override {
    test.services.d2xx = &device;
    test.services.port_io = &port;
    console = &test.build();
    setup = &console->output_device_setup();
  }
  void open() {
    setup->Form_Load();
    setup->Show();
  }
  bool shown(C c) const { return setup->control(c).visible; }
  bool enabled(C c) const { return setup->control(c).enabled; }
  int timer_interval() { return console->output_cycle().output_timer().interval(); }
};

// Each choice shows its own controls and says what it did; the others are hidden.
TEST_F(OutputDeviceSetupTest, EachAdapterShowsItsControlsAndItsStatus) {
  const std::vector<C> all = {C::Lpt1AddressLabel, C::Lpt2AddressLabel, C::PortLabel, C::Lpt1Option, C::Lpt2Option,
                              C::RateLabel,   C::RateBox,    C::RateScroll, C::UsbStateBox};
  const std::vector<C> port_and_rate = {C::Lpt1AddressLabel, C::Lpt2AddressLabel, C::PortLabel, C::Lpt1Option,
                                        C::Lpt2Option,  C::RateLabel,   C::RateBox,  C::RateScroll};
  struct Case {
    int index;
    std::vector<C> shown;
    std::vector<C> disabled;
    const char* status;
  };
  const Case cases[] = {
      {0, {}, {C::RateBox, C::RateScroll}, " NO DMX OUT"},
      {1, port_and_rate, {}, " Parlex Adapter Running"},
      {2, {C::Lpt1AddressLabel, C::Lpt2AddressLabel, C::PortLabel, C::Lpt1Option, C::Lpt2Option}, {C::RateBox, C::RateScroll},
       " OKI 3-1 Adapter - NO DMX OUT"},
      {3, {C::UsbStateBox}, port_and_rate, " Open USB Connected"},
      {4, port_and_rate, {}, " Manolator Connectd  40ms"},  // the rate Open DMX USB set
      {5, {C::UsbStateBox}, {C::RateScroll}, " Oksidizer USB2DMX Connecting....."},
  };
  open();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.index);
    setup->adapter_list_clicked(1);  // every control shown and enabled first
    setup->adapter_list_clicked(c.index);
    for (const C control : all) {
      const bool expected = std::find(c.shown.begin(), c.shown.end(), control) != c.shown.end();
      EXPECT_EQ(shown(control), expected) << "control " << control;
    }
    for (const C control : c.disabled) EXPECT_FALSE(enabled(control)) << "control " << control;
    EXPECT_EQ(test.console->status().main(), c.status);
    EXPECT_EQ(test.console->status().playback(), c.status);
  }
}

TEST_F(OutputDeviceSetupTest, OkiSendsTheWakeUpPulseOnEachSelectionAndForces70ms) {
  open();
  setup->lpt2_option_clicked();
  port.events.clear();
  setup->rate_scroll_changed(200);
  setup->adapter_list_clicked(2);
  EXPECT_EQ(port.events, (std::vector<std::pair<int, int>>{
                             {0x27A, 3},                // control register: pulse
                             {FakePortIo::kWait, 50},   // held for 50 rounds
                             {0x27A, 1},                // released
                             {0x278, 255},              // data register
                         }));
  EXPECT_EQ(setup->refresh_rate(), 70);
  setup->cancel_clicked();
  port.events.clear();
  test.store().Adapter = 2;
  open();
  EXPECT_EQ(port.events.size(), 8u) << "opening on the OKI adapter selects it twice";
}

TEST_F(OutputDeviceSetupTest, OpenDmxConnectsAtOnceSearchesWithoutTheDeviceAndSendsNothingWithoutTheDriver) {
  open();
  setup->adapter_list_clicked(3);
  EXPECT_EQ(test.store().Adapter, 3);  // without Save and Exit
  EXPECT_EQ(std::tuple(setup->usb_state_box_text(), setup->refresh_rate()), std::tuple("Connected", 40));
  EXPECT_TRUE(console->output_devices().opendmx().USB_Quiet());

  device.unplug();
  setup->adapter_list_clicked(0);
  setup->adapter_list_clicked(3);
  EXPECT_EQ(std::tuple(setup->usb_state_box_text(), test.console->status().main()),
            std::tuple("Searching...", " Open USB Searching......."));

  device.set_driver_present(false);  // without the driver nothing is sent, nothing asked
  setup->adapter_list_clicked(0);
  setup->adapter_list_clicked(3);
  EXPECT_EQ(setup->usb_state_box_text(), "USB Driver not Found");
  device.clear();
  test.scheduler.advance(70 * 5);
  EXPECT_TRUE(device.calls().empty());
  EXPECT_TRUE(console->output_cycle().last_tick_failed());  // the indicator is dark
  EXPECT_TRUE(test.dialogs.messages().empty());
  EXPECT_EQ(test.console->status().main(), " Open USB Not Found !");
  EXPECT_EQ(console->output_devices().status(), " Open DMX USB Adapter  driver not found");
}

TEST_F(OutputDeviceSetupTest, CancelPutsBackTheOutputInForceAndSaveAndExitSetsAdapterAndRateAndMarksTheProjectChanged) {
  open();
  setup->adapter_list_clicked(3);  // acts at once, as the port does
  setup->lpt2_option_clicked();
  setup->rate_scroll_changed(300);
  setup->cancel_clicked();
  EXPECT_FALSE(setup->visible());
  EXPECT_EQ(std::tuple(test.store().Adapter, test.store().Port_Address, timer_interval()),
            std::tuple(0, 888, 70));
  EXPECT_FALSE(device.device_open());
  EXPECT_FALSE(test.store().Project_Changed);

  open();
  setup->lpt2_option_clicked();
  EXPECT_EQ(test.store().Port_Address, 632);
  setup->adapter_list_clicked(4);
  setup->rate_scroll_changed(5000);  // the scroll bar stays in its range
  EXPECT_EQ(setup->rate_box_text(), " 750 mS");
  setup->rate_scroll_changed(1);
  EXPECT_EQ(setup->refresh_rate(), OutputDeviceSetup::kScrollMin);
  setup->rate_scroll_changed(25);
  setup->save_clicked();
  EXPECT_EQ(std::tuple(test.store().Adapter, timer_interval()), std::tuple(4, 25));
  EXPECT_TRUE(test.store().Project_Changed);
  EXPECT_FALSE(setup->visible());
}

TEST(PortsetupSmooth, SmoothOutputIsKeptOnSaveAndOpensTheRateForArtNetOnly) {
  MemorySettings settings;
  TestConsole with_settings;
  with_settings.services.settings = &settings;
  Console& c = with_settings.build();
  OutputDeviceSetup& window = c.output_device_setup();
  window.Form_Load();
  window.adapter_list_clicked(0);  // no adapter: the rate is hidden
  EXPECT_FALSE(window.control(C::RateScroll).visible);
  window.Smooth_Check_Click(true);
  EXPECT_TRUE(window.control(C::RateScroll).visible);
  window.rate_scroll_changed(OutputTiming::kFastestRefresh);
  window.cancel_clicked();  // Cancel keeps nothing
  EXPECT_FALSE(c.context().output_timing().smooth());
  EXPECT_FALSE(settings.read(OutputTiming::kSmoothSetting).has_value());

  window.Refresh();
  EXPECT_FALSE(window.Smooth_Check_Value());
  window.Smooth_Check_Click(true);
  window.rate_scroll_changed(OutputTiming::kFastestRefresh);
  window.save_clicked();
  EXPECT_TRUE(c.context().output_timing().smooth());
  EXPECT_EQ(settings.read(OutputTiming::kSmoothSetting), "1");
  EXPECT_EQ(c.output_cycle().output_timer().interval(), 23);
  c.output_cycle().output_timer().set_interval(45);
  window.Form_Load();
  EXPECT_EQ(window.rate_box_text(), " 45 mS") << "opening shows the output timer's rate";

  TestConsole next_start;  // the next start on this computer
  next_start.services.settings = &settings;
  EXPECT_TRUE(next_start.build().context().output_timing().smooth());
}

}  // namespace
}  // namespace lumaris
