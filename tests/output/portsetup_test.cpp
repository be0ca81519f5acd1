#include "output/portsetup.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "console/output_cycle.h"
#include "output/output_devices.h"
#include "tests/support/fake_d2xx.h"
#include "tests/support/fake_port_io.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

using C = Portsetup::Control;

struct PortsetupTest : ::testing::Test {
  FakeD2xx device;
  FakePortIo port;
  TestConsole test;
  Console* console = nullptr;
  Portsetup* setup = nullptr;

  void SetUp() override {
    test.services.d2xx = &device;
    test.services.port_io = &port;
    console = &test.build();
    setup = &console->port_setup();
  }
  void open() {
    setup->Form_Load();
    setup->Show();
  }
  bool shown(C c) const { return setup->control(c).visible; }
  bool enabled(C c) const { return setup->control(c).enabled; }
  int timer_interval() { return console->output_cycle().Timer1().interval(); }
};

TEST_F(PortsetupTest, OpeningShowsTheSavedAdapterAndNoneHidesEverything) {
  test.store().Adapter = 1;
  open();
  EXPECT_EQ(setup->Adapter_Name(), " Parlex DMX Adapter ");
  EXPECT_EQ(setup->Text1_Text(), " 70 mS");
  EXPECT_TRUE(shown(C::HScroll1));
  EXPECT_FALSE(shown(C::Text2));
  EXPECT_EQ(test.console->status().main(), " Parlex Adapter Running");
  setup->Combo1_Click(0);
  for (C c : {C::Label1_0, C::Label1_1, C::Label2, C::Option1, C::Option2, C::Label3, C::Text1,
              C::HScroll1, C::Text2}) {
    EXPECT_FALSE(shown(c)) << c;
  }
  EXPECT_EQ(test.console->status().playback(), " NO DMX OUT");
}

TEST_F(PortsetupTest, ManolatorShowsItsRateAndTheScrollBarStaysInRange) {
  open();
  setup->HScroll1_Change(55);
  setup->Combo1_Click(4);
  EXPECT_EQ(test.console->status().main(), " Manolator Connectd  55ms");
  setup->HScroll1_Change(5000);
  EXPECT_EQ(setup->Text1_Text(), " 750 mS");
  setup->HScroll1_Change(1);
  EXPECT_EQ(setup->refresh_rate(), Portsetup::kScrollMin);
}

TEST_F(PortsetupTest, OkiSendsTheWakeUpPulseOnEachSelectionAndForces70ms) {
  open();
  setup->Option2_Click();
  port.writes.clear();
  setup->HScroll1_Change(200);
  setup->Combo1_Click(2);
  EXPECT_EQ(port.writes, (std::vector<std::pair<int, int>>{{0x27A, 3}, {0x27A, 1}, {0x278, 255}}));
  EXPECT_EQ(setup->refresh_rate(), 70);
  EXPECT_EQ(test.console->status().main(), " OKI 3-1 Adapter - NO DMX OUT");
  EXPECT_FALSE(shown(C::HScroll1));
  setup->Command2_Click();
  port.writes.clear();
  test.store().Adapter = 2;
  open();
  EXPECT_EQ(port.writes.size(), 6u) << "opening on the OKI adapter selects it twice";
}

TEST_F(PortsetupTest, OpenDmxConnectsAtOnceSearchesWithoutTheDevice) {
  open();
  setup->Combo1_Click(3);
  EXPECT_EQ(test.store().Adapter, 3);  // without Save and Exit
  EXPECT_EQ(setup->Text2_Text(), "Connected");
  EXPECT_EQ(test.console->status().main(), " Open USB Connected");
  EXPECT_EQ(setup->refresh_rate(), 40);
  EXPECT_TRUE(console->output_devices().opendmx().USB_Quiet());

  device.unplug();
  setup->Combo1_Click(0);
  setup->Combo1_Click(3);
  EXPECT_EQ(setup->Text2_Text(), "Searching...");
  EXPECT_EQ(test.console->status().main(), " Open USB Searching.......");
  EXPECT_TRUE(test.dialogs.messages().empty());
}

TEST_F(PortsetupTest, OpenDmxWithoutTheDriverSendsNothing) {
  device.set_driver_present(false);
  open();
  setup->Combo1_Click(3);
  EXPECT_EQ(setup->Text2_Text(), "USB Driver not Found");
  EXPECT_EQ(test.console->status().main(), " Open USB Not Found !");
  device.clear();
  test.scheduler.advance(70 * 5);
  EXPECT_TRUE(device.calls().empty());
  EXPECT_TRUE(console->output_cycle().last_tick_failed());  // the indicator is dark
  EXPECT_TRUE(test.dialogs.messages().empty());
  EXPECT_EQ(test.console->status().main(), " Open USB Not Found !");
}

TEST_F(PortsetupTest, Lpt2ThenCancelKeeps632) {
  test.store().Adapter = 1;
  open();
  setup->Option2_Click();
  setup->Command2_Click();
  EXPECT_FALSE(setup->visible());
  EXPECT_EQ(test.store().Port_Address, 632);
  EXPECT_FALSE(test.store().Project_Changed);
  open();
  EXPECT_TRUE(setup->Option2_Value());
  setup->Option1_Click();
  EXPECT_EQ(test.store().Port_Address, 888);
}

TEST_F(PortsetupTest, CancelKeepsAndSaveAndExitSetsAdapterRateAndMarksTheProjectChanged) {
  open();
  setup->Combo1_Click(1);
  setup->HScroll1_Change(300);
  setup->Command2_Click();
  EXPECT_EQ(test.store().Adapter, 0);
  EXPECT_EQ(timer_interval(), 70);
  EXPECT_FALSE(test.store().Project_Changed);

  open();
  setup->Combo1_Click(4);
  setup->HScroll1_Change(25);
  setup->Command1_Click();
  EXPECT_EQ(test.store().Adapter, 4);
  EXPECT_EQ(timer_interval(), 25);
  EXPECT_TRUE(test.store().Project_Changed);
  EXPECT_FALSE(setup->visible());
}

}  // namespace
}  // namespace lumaris
