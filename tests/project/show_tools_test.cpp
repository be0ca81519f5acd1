// Exit codes and the resaved bytes are checked on the program itself in
// tests/cli/check_resave.sh; here the listing and the unwritable target.
#include "console/project/show_tools.h"

#include <gtest/gtest.h>

#include <sstream>

#include "tests/support/show_builders.h"
#include "tests/support/temp_folder.h"

namespace lumaris {
namespace {

TEST(ShowCheck, ACleanShowListsWhatItHolds) {
  std::ostringstream out, err;
  EXPECT_EQ(run_show_check(test_data("full_show.xml"), out, err), 0);
  EXPECT_EQ(out.str(), "Show: " + test_data("full_show.xml") +
                           "\nName: Winter Gala\nVersion: 7\nDate: 22/11/2026\nSubmixes: 3\n"
                           "Patched slots: 66\nNamed channels: 3\nButtons: 18\nFaders: 13\nChases: 1\n"
                           "Screens: 4\nPages: 2\nArt-Net rows: 2\nSkipped blocks: 0\n");
  EXPECT_EQ(err.str(), "");
}

TEST(ShowResave, AnUnwritableTargetIsReported) {
  TempFolder folder;
  std::ostringstream out, err;
  EXPECT_EQ(run_show_resave(test_data("full_show.xml"), folder.file("gone/x.xml"), out, err), 2);
  EXPECT_NE(err.str().find("cannot write"), std::string::npos);
}

}  // namespace
}  // namespace lumaris
