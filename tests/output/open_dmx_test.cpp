#include "output/open_dmx.h"

#include <gtest/gtest.h>

#include <array>
#include <tuple>
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

// A console whose Open DMX USB driver talks to a fake device.
struct Rig {
  FakeD2xx device;
  TestConsole test;
  OpenDmx* usb = nullptr;
  Rig() {
    test.services.d2xx = &device;
    usb = &test.build().output_devices().opendmx();
  }
  const std::vector<MessageBoxSpec>& messages() const { return test.dialogs.messages(); }
  std::string main_status() const { return test.console->status().main(); }
};

struct OpenDmxTest : ::testing::Test, Rig {};

struct FailingStep {
  const char* call;
  int code;
  const char* message;
  const char* main_status;  // empty: the status lines are left alone
};

const FailingStep kSteps[] = {
    {"FT_Open", 1, "Open Failed!", "Open USB Device Failed! "},
    {"FT_ResetDevice", 2, "Failed To Reset Device!", "Open USB Device Reset Failed! "},
    {"FT_SetDivisor(12)", 3, "Failed To Set Baud Rate!", "Open USB Device Baudrate Failed! "},
    {"FT_SetDataCharacteristics(8,2,0)", 4, "Failed To Set Data Characteristics!", ""},
    {"FT_SetFlowControl(0,0,0)", 5, "Failed to set flow control!", ""},
    {"FT_ClrRts", 6, "Failed to set RS485 to send!", ""},
    {"FT_Purge(2)", 7, "Failed to purge TX buffer!", ""},
    {"FT_Purge(1)", 8, "Failed to purge RX buffer!", ""},
};

TEST(OpenDmxOpen, EachFailingStepStopsAtItsOwnCodeQuietlyOrShowsItsMessage) {
  for (std::size_t n = 0; n < std::size(kSteps); ++n) {
    SCOPED_TRACE(kSteps[n].call);
    Rig quiet;
    quiet.device.fail(kSteps[n].call);
    const std::string status_before = quiet.main_status();
    quiet.usb->USB_Get_Error(1);
    quiet.usb->USB_Open_Device();
    // Nothing after the failing step was attempted, not even a close.
    EXPECT_EQ(quiet.device.calls(), Calls(kOpenSequence.begin(), kOpenSequence.begin() + n + 1));
    EXPECT_FALSE(quiet.usb->USB_Open());
    EXPECT_EQ(quiet.usb->USB_Get_Error(1), kSteps[n].code);
    EXPECT_EQ(std::tuple(quiet.messages().empty(), quiet.main_status()), std::tuple(true, status_before));

    Rig loud;
    loud.device.fail(kSteps[n].call);
    loud.test.console->status().show("before ", "before");
    loud.usb->USB_Open_Device();
    ASSERT_EQ(loud.messages().size(), 1u);
    EXPECT_EQ(loud.messages()[0].text, kSteps[n].message);
    EXPECT_EQ(loud.usb->USB_Get_Error(0), 0) << "a loud failure is shown, not counted";
    EXPECT_EQ(loud.main_status(), *kSteps[n].main_status ? kSteps[n].main_status : "before ");
  }
}

TEST_F(OpenDmxTest, OpenConfiguresTheDeviceAndAFrameIsBreakStartCodeAndTheFirst512Slots) {
  usb->USB_Open_Device();
  EXPECT_EQ(device.calls(), kOpenSequence);
  EXPECT_TRUE(usb->USB_Open());
  EXPECT_EQ(usb->USB_Get_Error(1), 0);
  std::array<std::uint8_t, 513> frame{};
  frame[0] = 10;
  frame[511] = 255;
  frame[512] = 99;  // never transmitted
  usb->USB_Set_Start_Code(0);
  usb->USB_Set_Data(frame);
  device.clear();
  usb->USB_Send_Frame();
  EXPECT_EQ(device.calls(), (Calls{"FT_SetBreakOn", "FT_SetBreakOff", "FT_Write(1)", "FT_Write(512)"}));
  std::vector<std::uint8_t> slots(512, 0);
  slots[0] = 10;
  slots[511] = 255;
  EXPECT_EQ(device.writes(), (std::vector<std::vector<std::uint8_t>>{{0x00}, slots}));  // start code, slots
  EXPECT_TRUE(messages().empty());
  test.console->shutdown();
  EXPECT_FALSE(device.device_open()) << "shutting down closes the open device";

  const std::array<std::uint8_t, 3> short_frame = {1, 2, 3};
  usb->USB_Set_Data(short_frame);
  EXPECT_EQ(std::tuple(usb->USB_Data()[2], usb->USB_Data()[3]),
            std::tuple(3, ' ')) << "short frames are padded with blanks";
}

TEST_F(OpenDmxTest, QuietModeCountsFailuresAndASendOnAClosedDeviceWritesNothing) {
  device.fail("FT_Open");
  EXPECT_EQ(usb->USB_Get_Error(1), 0);
  EXPECT_TRUE(usb->USB_Quiet());
  usb->USB_Open_Device();
  device.clear();
  usb->USB_Send_Frame();
  EXPECT_TRUE(device.calls().empty());
  EXPECT_EQ(usb->USB_Get_Error(0), 1);
  EXPECT_FALSE(usb->USB_Quiet());
  EXPECT_TRUE(messages().empty());

  TestConsole t;  // no D2XX seam at all: a device that does not answer
  OpenDmx& without_library = t.build().output_devices().opendmx();
  without_library.USB_Get_Error(1);
  without_library.USB_Open_Device();
  without_library.USB_Send_Frame();
  EXPECT_EQ(without_library.USB_Get_Error(1), 1);
  EXPECT_TRUE(t.dialogs.messages().empty());
}

TEST_F(OpenDmxTest, AFailingWriteStillWritesTheDataAndEndsWithTenOrEleven) {
  usb->USB_Open_Device();
  device.fail("FT_Write(1)");
  device.fail("FT_Write(512)");
  usb->USB_Send_Frame();  // loud
  ASSERT_EQ(messages().size(), 2u);
  EXPECT_EQ(messages()[0].text, "Write Start Code Failed!");
  EXPECT_EQ(messages()[1].text, "Write DMX Failed!");

  usb->USB_Get_Error(1);
  device.heal("FT_Write(512)");
  device.clear();
  usb->USB_Send_Frame();
  EXPECT_EQ(device.writes().size(), 2u);
  EXPECT_EQ(usb->USB_Get_Error(1), 10);
  EXPECT_TRUE(usb->USB_Open()) << "a failing write leaves the device open";
  device.fail("FT_Write(512)");
  usb->USB_Send_Frame();
  EXPECT_EQ(usb->USB_Get_Error(1), 11);
  device.heal("FT_Write(1)");
  device.heal("FT_Write(512)");
  usb->USB_Send_Frame();
  EXPECT_EQ(usb->USB_Get_Error(1), 0);
}

TEST_F(OpenDmxTest, CloseAndResetFailuresAreShownOrCountedAndCloseIfOpenClosesOnce) {
  usb->USB_Reset_Device();  // no handle yet
  ASSERT_EQ(messages().size(), 1u);
  EXPECT_EQ(messages()[0].text, "Failed To Reset Device!");
  EXPECT_EQ(main_status(), "Failed To Reset USB Device! ");
  usb->USB_Get_Error(1);
  usb->USB_Reset_Device();
  EXPECT_EQ(usb->USB_Get_Error(0), 2);

  usb->USB_Open_Device();
  device.clear();
  usb->USB_Close_Device();
  EXPECT_EQ(device.calls(), Calls{"FT_Close"});
  EXPECT_TRUE(usb->USB_Open()) << "closing keeps the open flag";
  usb->USB_Close_Device();  // the handle is gone now: a loud failure
  ASSERT_EQ(messages().size(), 2u);
  EXPECT_EQ(messages()[1].text, "Close Failed");
  EXPECT_EQ(main_status(), "Failed To Close USB Device! ");

  usb->USB_Open_Device();
  device.clear();
  usb->USB_Close_If_Open();
  usb->USB_Close_If_Open();
  EXPECT_EQ(device.calls(), Calls{"FT_Close"});
  EXPECT_FALSE(usb->USB_Open());
  usb->USB_Close_If_Open();  // closed: nothing to do
  EXPECT_EQ(device.calls(), Calls{"FT_Close"});
  usb->USB_Open_Device();
  usb->USB_Get_Error(1);
  device.fail("FT_Close");
  usb->USB_Close_If_Open();
  EXPECT_FALSE(usb->USB_Open()) << "the flag is cleared even on failure";
  EXPECT_EQ(usb->USB_Get_Error(1), 9);
}

}  // namespace
}  // namespace lumaris
