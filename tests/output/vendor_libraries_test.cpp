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

TEST(VendorLibraries, MissingLibrariesOrFunctionsAnswerAsAdaptersThatDoNotRespond) {
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

}  // namespace
}  // namespace lumaris
