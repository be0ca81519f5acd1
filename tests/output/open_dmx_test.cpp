#include "output/open_dmx.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "output/output_devices.h"
#include "tests/support/fake_d2xx.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

using Calls = std::vector<std::string>;

const Calls kOpenSequence = {
    "FT_Open(0)",          "FT_ResetDevice",
    "FT_SetDivisor(12)",   // 3 MHz / 12 = 250 kbaud
    "FT_SetDataCharacteristics(8,2,0)",  // 8 bits, 2 stop bits, no parity
    "FT_SetFlowControl(0,0,0)",
    "FT_ClrRts",           // RS-485 driver to send
    "FT_Purge(2)",         // transmit buffer
    "FT_Purge(1)",         // receive buffer
};

struct OpenDmxTest : ::testing::Test {
  FakeD2xx device;
  TestConsole test;
  OpenDmx* usb = nullptr;

  void SetUp() override {
    test.services.d2xx = &device;
    usb = &test.build().output_devices().opendmx();
  }
};

TEST_F(OpenDmxTest, OpenConfiguresTheDeviceForDmx) {
  usb->USB_Open_Device();
  EXPECT_EQ(device.calls(), kOpenSequence);
  EXPECT_TRUE(usb->USB_Open());
  EXPECT_EQ(usb->USB_Get_Error(1), 0);
  const std::array<std::uint8_t, 512> blanks = [] {
    std::array<std::uint8_t, 512> a{};
    a.fill(' ');
    return a;
  }();
  EXPECT_EQ(usb->USB_Data(), blanks);
  EXPECT_TRUE(test.dialogs.messages().empty());
}

struct FailingStep {
  const char* call;
  int code;
  const char* message;
  const char* main_status;      // empty: the status lines are left alone
  const char* playback_status;
};

const FailingStep kSteps[] = {
    {"FT_Open", 1, "Open Failed!", "Open USB Device Failed! ", "Open USB Device Failed!"},
    {"FT_ResetDevice", 2, "Failed To Reset Device!", "Open USB Device Reset Failed! ",
     "Open USB Device Reset Failed!"},
    {"FT_SetDivisor(12)", 3, "Failed To Set Baud Rate!", "Open USB Device Baudrate Failed! ",
     "Open USB Device Baudrate Failed!"},
    {"FT_SetDataCharacteristics(8,2,0)", 4, "Failed To Set Data Characteristics!", "", ""},
    {"FT_SetFlowControl(0,0,0)", 5, "Failed to set flow control!", "", ""},
    {"FT_ClrRts", 6, "Failed to set RS485 to send!", "", ""},
    {"FT_Purge(2)", 7, "Failed to purge TX buffer!", "", ""},
    {"FT_Purge(1)", 8, "Failed to purge RX buffer!", "", ""},
};

TEST_F(OpenDmxTest, EachFailingOpenStepStopsAtItsOwnCodeQuietly) {
  for (std::size_t n = 0; n < std::size(kSteps); ++n) {
    SCOPED_TRACE(kSteps[n].call);
    FakeD2xx fresh;
    TestConsole t;
    t.services.d2xx = &fresh;
    OpenDmx& driver = t.build().output_devices().opendmx();
    fresh.fail(kSteps[n].call);
    const std::string status_before = t.console->status().main();

    driver.USB_Get_Error(1);
    driver.USB_Open_Device();

    // Nothing after the failing step was attempted, not even a close.
    const Calls expected(kOpenSequence.begin(), kOpenSequence.begin() + n + 1);
    EXPECT_EQ(fresh.calls(), expected);
    EXPECT_FALSE(driver.USB_Open());
    EXPECT_EQ(driver.USB_Get_Error(1), kSteps[n].code);
    EXPECT_TRUE(t.dialogs.messages().empty());
    EXPECT_EQ(t.console->status().main(), status_before);
  }
}

TEST_F(OpenDmxTest, EachFailingOpenStepShowsItsMessageWhenLoud) {
  for (const FailingStep& step : kSteps) {
    SCOPED_TRACE(step.call);
    FakeD2xx fresh;
    TestConsole t;
    t.services.d2xx = &fresh;
    OpenDmx& driver = t.build().output_devices().opendmx();
    fresh.fail(step.call);
    t.console->status().show("before ", "before");

    driver.USB_Open_Device();

    ASSERT_EQ(t.dialogs.messages().size(), 1u);
    EXPECT_EQ(t.dialogs.messages()[0].text, step.message);
    EXPECT_EQ(t.dialogs.messages()[0].title, "");
    EXPECT_EQ(t.dialogs.messages()[0].buttons, MessageButtons::Ok);
    EXPECT_FALSE(driver.USB_Open());
    // A loud failure is shown, not counted.
    EXPECT_EQ(driver.USB_Get_Error(0), 0);
    if (*step.main_status != '\0') {
      EXPECT_EQ(t.console->status().main(), step.main_status);
      EXPECT_EQ(t.console->status().playback(), step.playback_status);
    } else {
      EXPECT_EQ(t.console->status().main(), "before ");
    }
  }
}

TEST_F(OpenDmxTest, GetErrorSetsTheModeAndReportsThePreviousOperations) {
  EXPECT_FALSE(usb->USB_Quiet());
  device.unplug();
  EXPECT_EQ(usb->USB_Get_Error(1), 0);
  EXPECT_TRUE(usb->USB_Quiet());
  usb->USB_Open_Device();
  EXPECT_EQ(usb->USB_Get_Error(0), 1);
  EXPECT_FALSE(usb->USB_Quiet());
  EXPECT_TRUE(test.dialogs.messages().empty());
}

TEST_F(OpenDmxTest, SendFrameIsBreakStartCodeAndTheDataSlots) {
  usb->USB_Open_Device();
  std::array<std::uint8_t, 513> frame{};
  frame[0] = 10;
  frame[1] = 20;
  frame[511] = 255;
  frame[512] = 99;  // never transmitted
  usb->USB_Set_Start_Code(0);
  usb->USB_Set_Data(frame);
  device.clear();

  usb->USB_Send_Frame();

  EXPECT_EQ(device.calls(),
            (Calls{"FT_SetBreakOn", "FT_SetBreakOff", "FT_Write(1)", "FT_Write(512)"}));
  ASSERT_EQ(device.writes().size(), 2u);
  EXPECT_EQ(device.writes()[0], std::vector<std::uint8_t>{0x00});  // start code
  std::vector<std::uint8_t> slots(512, 0);
  slots[0] = 10;
  slots[1] = 20;
  slots[511] = 255;
  EXPECT_EQ(device.writes()[1], slots);
  EXPECT_EQ(usb->USB_Get_Error(1), 0);
}

TEST_F(OpenDmxTest, SetDataKeepsTheFirst512AndPadsShortFramesWithBlanks) {
  std::array<std::uint8_t, 513> frame{};
  for (int i = 0; i < 513; ++i) frame[i] = static_cast<std::uint8_t>(i % 251);
  usb->USB_Set_Data(frame);
  EXPECT_EQ(usb->USB_Data()[0], 0);
  EXPECT_EQ(usb->USB_Data()[250], 250);
  EXPECT_EQ(usb->USB_Data()[511], 511 % 251);

  const std::array<std::uint8_t, 3> short_frame = {1, 2, 3};
  usb->USB_Set_Data(short_frame);
  EXPECT_EQ(usb->USB_Data()[2], 3);
  EXPECT_EQ(usb->USB_Data()[3], ' ');
  EXPECT_EQ(usb->USB_Data()[511], ' ');
}

TEST_F(OpenDmxTest, SendOnAClosedDeviceWritesNothingAndKeepsTheCode) {
  device.fail("FT_Open");
  usb->USB_Get_Error(1);
  usb->USB_Open_Device();
  device.clear();
  usb->USB_Send_Frame();
  EXPECT_TRUE(device.calls().empty());
  EXPECT_EQ(usb->USB_Get_Error(1), 1);
}

TEST_F(OpenDmxTest, AFailingStartCodeWriteStillWritesTheData) {
  usb->USB_Open_Device();
  usb->USB_Get_Error(1);
  device.fail("FT_Write(1)");
  device.clear();
  usb->USB_Send_Frame();
  EXPECT_EQ(device.writes().size(), 2u);
  EXPECT_EQ(usb->USB_Get_Error(1), 10);
  EXPECT_TRUE(usb->USB_Open());  // a failing write leaves the device open

  device.fail("FT_Write(512)");
  usb->USB_Send_Frame();
  EXPECT_EQ(usb->USB_Get_Error(1), 11);

  device.heal("FT_Write(1)");
  device.heal("FT_Write(512)");
  usb->USB_Send_Frame();
  EXPECT_EQ(usb->USB_Get_Error(1), 0);
}

TEST_F(OpenDmxTest, FailingWritesShowBothMessagesWhenLoud) {
  usb->USB_Open_Device();
  device.fail("FT_Write(1)");
  device.fail("FT_Write(512)");
  usb->USB_Send_Frame();
  ASSERT_EQ(test.dialogs.messages().size(), 2u);
  EXPECT_EQ(test.dialogs.messages()[0].text, "Write Start Code Failed!");
  EXPECT_EQ(test.dialogs.messages()[1].text, "Write DMX Failed!");
}

TEST_F(OpenDmxTest, CloseDeviceClosesUnconditionallyAndKeepsTheOpenFlag) {
  usb->USB_Open_Device();
  device.clear();
  usb->USB_Close_Device();
  EXPECT_EQ(device.calls(), Calls{"FT_Close"});
  EXPECT_FALSE(device.device_open());
  EXPECT_TRUE(usb->USB_Open());

  usb->USB_Close_Device();  // the handle is gone now: a loud failure
  ASSERT_EQ(test.dialogs.messages().size(), 1u);
  EXPECT_EQ(test.dialogs.messages()[0].text, "Close Failed");
  EXPECT_EQ(test.console->status().main(), "Failed To Close USB Device! ");
  EXPECT_EQ(test.console->status().playback(), "Failed To Close USB Device!");
}

TEST_F(OpenDmxTest, ResetFailureIsShownOrCounted) {
  usb->USB_Reset_Device();  // no handle yet
  ASSERT_EQ(test.dialogs.messages().size(), 1u);
  EXPECT_EQ(test.dialogs.messages()[0].text, "Failed To Reset Device!");
  EXPECT_EQ(test.console->status().main(), "Failed To Reset USB Device! ");
  EXPECT_EQ(test.console->status().playback(), "Failed To Reset USB Device!");
  usb->USB_Get_Error(1);
  usb->USB_Reset_Device();
  EXPECT_EQ(usb->USB_Get_Error(1), 2);
  EXPECT_EQ(test.dialogs.messages().size(), 1u);
}

TEST_F(OpenDmxTest, CloseIfOpenClosesOnceAndClearsTheFlagEvenOnFailure) {
  usb->USB_Close_If_Open();
  EXPECT_TRUE(device.calls().empty());

  usb->USB_Open_Device();
  device.clear();
  usb->USB_Close_If_Open();
  usb->USB_Close_If_Open();
  EXPECT_EQ(device.calls(), Calls{"FT_Close"});
  EXPECT_FALSE(usb->USB_Open());

  usb->USB_Open_Device();
  usb->USB_Get_Error(1);
  device.fail("FT_Close");
  usb->USB_Close_If_Open();
  EXPECT_FALSE(usb->USB_Open());
  EXPECT_EQ(usb->USB_Get_Error(1), 9);
}

TEST(OpenDmxWithoutLibrary, BehavesAsADeviceThatDoesNotAnswer) {
  TestConsole t;  // no D2XX seam at all
  OpenDmx& usb = t.build().output_devices().opendmx();
  EXPECT_FALSE(usb.driver_present());
  usb.USB_Get_Error(1);
  usb.USB_Open_Device();
  EXPECT_EQ(usb.USB_Get_Error(1), 1);
  usb.USB_Send_Frame();
  EXPECT_EQ(usb.USB_Get_Error(1), 1);
  EXPECT_TRUE(t.dialogs.messages().empty());
}

TEST(OpenDmxExit, ShutdownClosesTheOpenDevice) {
  FakeD2xx device;
  TestConsole t;
  t.services.d2xx = &device;
  Console& console = t.build();
  console.output_devices().opendmx().USB_Open_Device();
  ASSERT_TRUE(device.device_open());
  console.shutdown();
  EXPECT_FALSE(device.device_open());
  EXPECT_FALSE(console.output_devices().opendmx().USB_Open());
}

}  // namespace
}  // namespace lumaris
