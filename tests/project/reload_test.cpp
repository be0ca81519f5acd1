#include <gtest/gtest.h>

#include "console/project/project_file.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

// Loading a show over another: a cue of the new show holds exactly what its
// file records, never levels the earlier show left in the same screen.
TEST(ReloadingAShow, ScreensCarryNothingOverFromTheShowLoadedBefore) {
  TestConsole t;
  t.build();
  Screen& opening = t.store().Screens[1];
  opening.Preset[40] = 200;
  opening.But_Sel[7] = true;
  opening.Fad_Sel[3] = 90;
  ASSERT_TRUE(t.console->project_file().Load_File(LUMARIS_TEST_DATA "/full_show.xml"));
  EXPECT_EQ(opening.Preset[40], 0);
  EXPECT_FALSE(opening.But_Sel[7]);
  EXPECT_EQ(opening.Fad_Sel[3], 0);
  EXPECT_EQ(opening.Preset[4], 128) << "what the file records is loaded";
  EXPECT_TRUE(opening.But_Sel[17]);
  EXPECT_EQ(opening.Fad_Sel[12], 100);
}

}  // namespace
}  // namespace lumaris
