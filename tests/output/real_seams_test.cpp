// Adapters chosen on this machine's real seams. Where the hardware or its library
// is missing the desk must say so in its own words, once, and go on. (The OKI and
// Oksidizer fallbacks behind a library that does not answer: send_frame_test.)
#include <gtest/gtest.h>

#include <tuple>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <sstream>

#include "console/output_cycle.h"
#include "output/output_devices.h"
#include "output/output_device_setup.h"
#include "platform/linux/libftdi_d2xx.h"
#include "platform/linux/ppdev_port_io.h"
#include "platform/linux/shared_library.h"
#include "platform/linux/vendor_libraries.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

struct RealSeamsTest : ::testing::Test {
  LibftdiD2xx d2xx;
  std::ostringstream port_log;
  PpdevPortIo port{&port_log};
  TestConsole test;
  Console* console = nullptr;

  void SetUp() override {
    test.services.d2xx = &d2xx;
    test.services.port_io = &port;
    console = &test.build();
  }
  void choose_and_save(int adapter) {
    OutputDeviceSetup& setup = console->output_device_setup();
    setup.Form_Load();
    setup.Show();
    setup.adapter_list_clicked(adapter);
    setup.save_clicked();
  }
  void run_ticks(int n) {
    test.scheduler.advance(static_cast<long>(n) * console->output_cycle().output_timer().interval());
  }
};

TEST_F(RealSeamsTest, ParallelAdaptersAndOpenDmxRunWithOrWithoutTheirHardwareAndAskNothing) {
  choose_and_save(1);
  EXPECT_EQ(test.console->status().main(), " Parlex Adapter Running");
  run_ticks(5);
  choose_and_save(4);
  EXPECT_EQ(test.console->status().main(), " Manolator Connectd  70ms");
  run_ticks(5);
  EXPECT_EQ(std::tuple(test.store().Adapter, console->output_cycle().last_tick_failed()), std::tuple(4, false));

  choose_and_save(3);  // Open DMX USB searches quietly or says the driver is missing
  run_ticks(10);
  EXPECT_TRUE(test.dialogs.messages().empty());
  const std::string status = test.console->status().main();
  if (!d2xx.driver_present()) {
    EXPECT_EQ(status, " Open USB Not Found !");
  } else {
    EXPECT_TRUE(status == " Open USB Searching" || status == " Open USB Searching......." ||
                status == " Open USB Connected")
        << status;
  }
  console->shutdown();
}

TEST(VendorLibraries, LoadFromTheLoaderPathAndMissingLibrariesOrFunctionsAnswerAsAdaptersThatDoNotRespond) {
  SharedLibrary library;
  ASSERT_TRUE(library.load({"liblumaris-missing.so", "libm.so.6"}));
  const auto cosine = library.function<double (*)(double)>("cos");
  ASSERT_NE(cosine, nullptr);
  EXPECT_DOUBLE_EQ(cosine(0.0), 1.0);
  EXPECT_EQ(library.symbol("Okdmx31Read"), nullptr);
  EXPECT_EQ(SharedLibrary::program_folder().back(), '/');

  std::array<std::uint8_t, 513> buffer{};
  VendorLibraries missing({"liblumaris-no-oki.so"}, {"liblumaris-no-usb2dmx.so"});
  EXPECT_NE(missing.Okdmx31Read(888, 0, buffer.data()), 0);
  EXPECT_NE(missing.Okdmx31Write(888, 0, buffer.data()), 0);
  EXPECT_NE(missing.OksidCommand(4, 512, buffer.data() + 1), 0);
  VendorLibraries wrong({"libm.so.6"}, {"libm.so.6"});
  EXPECT_NE(wrong.Okdmx31Write(888, 0, buffer.data()), 0);
  EXPECT_NE(wrong.OksidCommand(4, 512, buffer.data() + 1), 0);
}

TEST(PpdevPortIo, PcAddressesNameTheDeviceAndRegister) {
  // LPT1 data and control, LPT2 data and control
  for (const auto& [port, device, offset] : {std::tuple(888, 0, 0), {890, 0, 2}, {632, 1, 0}, {634, 1, 2}}) {
    const auto reg = PpdevPortIo::register_of(static_cast<std::uint16_t>(port));
    ASSERT_TRUE(reg.has_value()) << port;
    EXPECT_EQ(std::tuple(reg->device, reg->offset), std::tuple(device, offset)) << port;
  }
  EXPECT_FALSE(PpdevPortIo::register_of(889).has_value());  // status register: never written
  EXPECT_FALSE(PpdevPortIo::register_of(0x3BC).has_value());
}

TEST(PpdevPortIo, AMissingPortIsReportedOnceAndAFileThatIsNoParallelPortCannotBeClaimed) {
  std::ostringstream log;
  {
    PpdevPortIo port(&log, "/nonexistent/lumaris-parport");
    EXPECT_FALSE(port.Out32(890, 3));
    for (int i = 0; i < 100; ++i) EXPECT_FALSE(port.Out32(888, 1));
  }
  const std::string text = log.str();
  EXPECT_NE(text.find("/nonexistent/lumaris-parport0"), std::string::npos);
  EXPECT_EQ(text.find("lumaris:"), text.rfind("lumaris:"));  // one line only

  char name[] = "/tmp/lumaris-parportXXXXXX";
  const int fd = mkstemp(name);
  ASSERT_GE(fd, 0);
  close(fd);
  const std::string base(name);
  std::rename(name, (base + "1").c_str());  // the seam appends the device number to its prefix
  std::ostringstream file_log;
  {
    PpdevPortIo port(&file_log, base);
    EXPECT_FALSE(port.Out32(632, 255));
  }
  std::remove((base + "1").c_str());
  EXPECT_NE(file_log.str().find("lumaris:"), std::string::npos);
}

}  // namespace
}  // namespace lumaris
