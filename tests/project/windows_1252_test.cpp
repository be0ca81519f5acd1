#include "base/windows_1252.h"

#include <gtest/gtest.h>

namespace lumaris {
namespace {

TEST(Windows1252, AccentsAndSignsTakeOneByteOnDisk) {
  // é, €, –, ß, Å as Windows-1252 bytes
  EXPECT_EQ(utf8_to_windows_1252("Caf\u00e9 \u20ac5 \u2013 \u00df\u00c5"),
            "Caf\xE9 \x80" "5 \x96 \xDF\xC5");
  EXPECT_EQ(windows_1252_to_utf8("Caf\xE9 \x80" "5 \x96 \xDF\xC5"),
            "Caf\u00e9 \u20ac5 \u2013 \u00df\u00c5");
  // Characters outside the code page become question marks.
  EXPECT_EQ(utf8_to_windows_1252("\u65e5\u672c"), "??");         // two CJK characters
  EXPECT_EQ(utf8_to_windows_1252("a\U0001F600b"), "a?b");         // one emoji, four bytes
  EXPECT_EQ(utf8_to_windows_1252("x\xC3(y"), "x?(y");             // broken sequence
  EXPECT_EQ(utf8_to_windows_1252("\xED\xA0\x80"), "???");          // encoded surrogate
  EXPECT_EQ(utf8_to_windows_1252("\xC0\xAF"), "??");               // overlong '/'
}

TEST(Windows1252, EveryByteSurvivesALoadAndASave) {
  std::string all;
  for (int b = 0; b < 256; ++b) all.push_back(static_cast<char>(b));
  EXPECT_EQ(utf8_to_windows_1252(windows_1252_to_utf8(all)), all);
  // The undefined bytes read as the C1 control of the same number.
  EXPECT_EQ(windows_1252_to_utf8("\x81\x9D"), "\u0081\u009d");
}

}  // namespace
}  // namespace lumaris
