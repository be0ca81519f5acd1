#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "console/output_cycle.h"
#include "output/output_devices.h"
#include "output/parallel_frames.h"
#include "output/output_device_setup.h"
#include "tests/support/fake_adapter_libraries.h"
#include "tests/support/fake_d2xx.h"
#include "tests/support/fake_port_io.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

struct SendFrameTest : ::testing::Test {
  FakeD2xx device;
  FakePortIo port;
  FakeAdapterLibraries libraries;
  TestConsole test;
  Console* console = nullptr;

  void SetUp() override {
    test.services.d2xx = &device;
    test.services.port_io = &port;
    test.services.adapter_libraries = &libraries;
    console = &test.build();
    for (int s = 0; s <= 512; ++s) test.store().DMX_Out[s] = static_cast<std::uint8_t>(s);
    test.store().Patch.fill(0);  // the output cycle leaves the frame all zero
  }
  int count(const std::string& call) const {
    return static_cast<int>(std::count(device.calls().begin(), device.calls().end(), call));
  }
  void tick() { test.scheduler.advance(console->output_cycle().output_timer().interval()); }
};

using Events = std::vector<std::pair<int, int>>;
constexpr int kWait = FakePortIo::kWait;

// A parallel adapter's frame as it sees it on the port at `base`, counting loops included.
Events expected_parallel_frame(int base, int slots) {
  const int control = base + 2;
  Events e = {
      {control, 3},  // start pulse
      {kWait, 50},   //   held for 50 rounds
      {control, 1},  //   released
  };
  for (int s = 0; s < slots; ++s) {
    e.push_back({base, (s * 7 + 1) % 256});  // slot s+1 on the data register
    e.push_back({control, 0});               // strobe low
    e.push_back({kWait, 20});                //   held low for 20 rounds
    e.push_back({control, 1});               // strobe released
    e.push_back({kWait, 20});                //   held high for 20 rounds
  }
  e.push_back({control, 1});  // closing release
  return e;
}

TEST_F(SendFrameTest, ParlexSends65SlotsAndManolator255OnTheChosenPortAndNothingFailsWithoutAPort) {
  // A frame whose slots all differ: slot s carries (s * 7 + 1) mod 256.
  for (int s = 0; s <= 512; ++s) test.store().DMX_Out[s] = static_cast<std::uint8_t>((s * 7 + 1) % 256);
  for (const auto& [adapter, port_address, slots] : {std::tuple(1, 888, 65), std::tuple(4, 632, 255)}) {
    SCOPED_TRACE(adapter);
    test.store().Adapter = static_cast<std::int16_t>(adapter);
    test.store().Port_Address = static_cast<std::int16_t>(port_address);
    port.events.clear();
    console->output_devices().Send_Frame();
    EXPECT_EQ(port.events, expected_parallel_frame(port_address, slots));
  }

  TestConsole without_port;  // no port seam: nothing is written and nothing fails
  Console& other = without_port.build();
  without_port.store().Adapter = 4;
  without_port.scheduler.advance(70);
  EXPECT_FALSE(other.output_cycle().last_tick_failed());
  EXPECT_TRUE(without_port.dialogs.messages().empty());
}

TEST_F(SendFrameTest, OkiReadsThenWritesTheFrameOnThePortAndEachFailingCallShowsTheMessage) {
  test.store().Adapter = 2;
  test.store().Port_Address = 632;
  console->output_devices().Send_Frame();
  ASSERT_EQ(libraries.calls.size(), 2u);
  for (const auto& call : libraries.calls) {
    EXPECT_EQ(std::tuple(call.port_or_command, call.second), std::tuple(632, 0)) << call.name << " on LPT2";
  }
  EXPECT_EQ(std::tuple(libraries.calls[0].name, libraries.calls[1].name),
            std::tuple("Okdmx31Read", "Okdmx31Write"));
  EXPECT_EQ(libraries.calls[1].data, (std::vector<std::uint8_t>{0, 1, 2, 3, 4, 5, 6, 7}));
  EXPECT_TRUE(test.dialogs.messages().empty());

  libraries.read_status = 1;  // the read fails, and the write is tried all the same
  libraries.write_status = -5;
  console->output_devices().Send_Frame();
  ASSERT_EQ(libraries.calls.size(), 4u);
  ASSERT_EQ(test.dialogs.messages().size(), 2u);
  for (const MessageBoxSpec& box : test.dialogs.messages()) {
    EXPECT_EQ(box.title, " DMX ERROR");
    EXPECT_EQ(box.text, " 3-1 DMX Adapter Not Connected or Not Responding");
  }
  EXPECT_EQ(test.store().Adapter, 0);
  EXPECT_EQ(test.console->status().main(), " 3-1 Adapter Not connected ot not responding");

  libraries.calls.clear();
  tick();
  EXPECT_TRUE(libraries.calls.empty()) << "None from the next tick";
}

TEST_F(SendFrameTest, OksidizerIsHandedThe512BytesFromElementOneAndAFailureSetsNone) {
  test.store().Adapter = 5;
  console->output_devices().Send_Frame();
  ASSERT_EQ(libraries.calls.size(), 1u);
  const auto& call = libraries.calls[0];
  EXPECT_EQ(std::tuple(call.name, call.port_or_command, call.second), std::tuple("OksidCommand", 4, 512));
  EXPECT_EQ(libraries.calls[0].data, (std::vector<std::uint8_t>{1, 2, 3, 4, 5, 6, 7, 8}));

  libraries.oksid_status = 1;  // with the set-up window closed the status says why
  console->output_devices().Send_Frame();
  ASSERT_EQ(test.dialogs.messages().size(), 1u);
  EXPECT_EQ(std::tuple(test.dialogs.messages()[0].text, test.console->status().main(), test.store().Adapter),
            std::tuple(" USB DMX Adapter Not Connected or Not Responding",
                       " USB DMX Adapter Not Connected or Not Responding", 0));

  OutputDeviceSetup& setup = console->output_device_setup();  // an open window follows to None
  setup.Form_Load();
  setup.adapter_list_clicked(5);
  setup.Show();
  test.store().Adapter = 5;
  console->output_devices().Send_Frame();
  EXPECT_EQ(std::tuple(setup.adapter_list_index(), setup.Adapter_Name()), std::tuple(0, " None "));
  EXPECT_EQ(test.console->status().main(), " NO DMX OUT");  // the None selection speaks last
}

// A headless log is the status line's history: it must never say the device is
// connected while it is not.
TEST_F(SendFrameTest, OpenDmxFromALoadedShowWithoutTheDeviceSearchesAndNeverSaysConnected) {
  device.unplug();
  std::vector<std::string> said;
  test.console->status().on_main_change([&](const std::string& text) { said.push_back(text); });
  test.store().Adapter = 3;
  EXPECT_EQ(console->output_devices().status(), " Open DMX USB Adapter  searching")
      << "not connected before the first open";
  tick();
  ASSERT_EQ(test.dialogs.messages().size(), 3u);  // shown once, before quiet mode
  EXPECT_EQ(test.dialogs.messages()[2].text, "Open Failed!");
  EXPECT_EQ(said, (std::vector<std::string>{"Failed To Close USB Device! ",
                                            "Failed To Reset USB Device! ",
                                            "Open USB Device Failed! ", " Open USB Searching"}));
  EXPECT_EQ(console->output_devices().status(), " Open DMX USB Adapter  searching");
  device.plug();  // searching goes on quietly: see the thousand unplugs below
  said.clear();
  tick();
  EXPECT_EQ(std::tuple(said, test.dialogs.messages().size(), console->output_devices().status()),
            std::tuple(std::vector<std::string>{" Open USB Connected"}, 3u, " Open DMX USB Adapter  connected"));
}

// A flaky cable: the device drops out and comes back a thousand times, for one to
// four ticks each time. It is searched for on every tick after the failing send,
// the frame is back on the wire in the very tick the device answers, and nothing
// else is said than the link status.
TEST_F(SendFrameTest, AThousandUnplugsSearchEveryTickAndSendInTheTickTheDeviceAnswers) {
  OutputDeviceSetup& setup = console->output_device_setup();
  setup.Form_Load();
  setup.Show();
  setup.adapter_list_clicked(3);
  test.store().Patch[0] = 1;
  tick();
  EXPECT_EQ(setup.usb_state_box_text(), "Connected");
  for (int cycle = 0; cycle < 1000; ++cycle) {
    SCOPED_TRACE(cycle);
    device.unplug();
    device.clear();
    const int away = 1 + cycle % 4;
    for (int n = 0; n < away; ++n) tick();
    ASSERT_EQ(count("FT_Open(0)"), away - 1) << "the failure is noticed by the send";
    ASSERT_EQ(std::tuple(test.console->status().main(), setup.usb_state_box_text()),
              std::tuple(" Open USB Searching", "Searching..."));
    ASSERT_FALSE(device.device_open());

    device.plug();
    device.clear();
    test.store().Desk_Level[0] = static_cast<std::int16_t>(cycle % 256);
    tick();
    ASSERT_EQ(count("FT_Open(0)"), 1);
    ASSERT_EQ(std::tuple(test.console->status().main(), setup.usb_state_box_text()),
              std::tuple(" Open USB Connected", "Connected"));
    ASSERT_EQ(device.writes().size(), 2u);
    ASSERT_EQ(device.writes()[0], std::vector<std::uint8_t>{0});
    ASSERT_EQ(device.writes()[1][0], cycle % 256);  // this tick's frame
    ASSERT_FALSE(console->output_cycle().last_tick_failed());
  }
  EXPECT_TRUE(test.dialogs.messages().empty());
  console->shutdown();
  EXPECT_FALSE(device.device_open());
}

}  // namespace
}  // namespace lumaris
