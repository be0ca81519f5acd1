#include "platform/linux/vendor_libraries.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "platform/linux/shared_library.h"

namespace lumaris {
namespace {

TEST(SharedLibrary, LoadsFromTheLoaderPathAndFindsSymbols) {
  SharedLibrary library;
  ASSERT_TRUE(library.load({"liblumaris-missing.so", "libm.so.6"}));
  const auto cosine = library.function<double (*)(double)>("cos");
  ASSERT_NE(cosine, nullptr);
  EXPECT_DOUBLE_EQ(cosine(0.0), 1.0);
  EXPECT_EQ(library.symbol("Okdmx31Read"), nullptr);
}

TEST(SharedLibrary, ProgramFolderIsWhereTheTestRuns) {
  const std::string folder = SharedLibrary::program_folder();
  ASSERT_FALSE(folder.empty());
  EXPECT_EQ(folder.back(), '/');
}

TEST(VendorLibraries, MissingLibrariesAnswerAsAdaptersThatDoNotRespond) {
  VendorLibraries libraries({"liblumaris-no-oki.so"}, {"liblumaris-no-usb2dmx.so"});
  std::array<std::uint8_t, 513> buffer{};
  EXPECT_NE(libraries.Okdmx31Read(888, 0, buffer.data()), 0);
  EXPECT_NE(libraries.Okdmx31Write(888, 0, buffer.data()), 0);
  EXPECT_NE(libraries.OksidCommand(4, 512, buffer.data() + 1), 0);
}

TEST(VendorLibraries, ALibraryWithoutTheFunctionsFailsToo) {
  VendorLibraries libraries({"libm.so.6"}, {"libm.so.6"});
  std::array<std::uint8_t, 513> buffer{};
  EXPECT_NE(libraries.Okdmx31Write(888, 0, buffer.data()), 0);
  EXPECT_NE(libraries.OksidCommand(4, 512, buffer.data() + 1), 0);
}

}  // namespace
}  // namespace lumaris
