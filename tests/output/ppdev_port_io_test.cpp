#include "platform/linux/ppdev_port_io.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <unistd.h>

#include <fstream>
#include <sstream>
#include <string>

namespace lumaris {
namespace {

TEST(PpdevPortIo, PcAddressesNameTheDeviceAndRegister) {
  const auto expect = [](int port, int device, int offset) {
    const auto reg = PpdevPortIo::register_of(static_cast<std::uint16_t>(port));
    ASSERT_TRUE(reg.has_value()) << port;
    EXPECT_EQ(reg->device, device) << port;
    EXPECT_EQ(reg->offset, offset) << port;
  };
  expect(888, 0, 0);  // LPT1 data
  expect(890, 0, 2);  // LPT1 control
  expect(632, 1, 0);  // LPT2 data
  expect(634, 1, 2);  // LPT2 control
  EXPECT_FALSE(PpdevPortIo::register_of(889).has_value());  // status register: never written
  EXPECT_FALSE(PpdevPortIo::register_of(0x3BC).has_value());
}

TEST(PpdevPortIo, AMissingPortIsReportedOnceAndWritesGoNowhere) {
  std::ostringstream log;
  PpdevPortIo port(&log, "/nonexistent/lumaris-parport");
  EXPECT_FALSE(port.Out32(890, 3));
  for (int i = 0; i < 100; ++i) EXPECT_FALSE(port.Out32(888, 1));
  const std::string text = log.str();
  EXPECT_NE(text.find("/nonexistent/lumaris-parport0"), std::string::npos);
  EXPECT_EQ(text.find("lumaris:"), text.rfind("lumaris:"));  // one line only
}

TEST(PpdevPortIo, AFileThatIsNoParallelPortCannotBeClaimed) {
  char name[] = "/tmp/lumaris-parportXXXXXX";
  const int fd = mkstemp(name);
  ASSERT_GE(fd, 0);
  close(fd);
  const std::string base(name);
  // The seam appends the device number to its prefix.
  std::rename(name, (base + "1").c_str());
  std::ostringstream log;
  {
    PpdevPortIo port(&log, base);
    EXPECT_FALSE(port.Out32(632, 255));
  }
  std::remove((base + "1").c_str());
  EXPECT_NE(log.str().find("lumaris:"), std::string::npos);
}

}  // namespace
}  // namespace lumaris
