#include <gtest/gtest.h>

#include "tests/support/test_console.h"

namespace lumaris {
TEST(Console, Starts) {
  TestConsole t;
  t.build();
  EXPECT_EQ(t.store().Patch[0], 1);
}
}  // namespace lumaris
