// Exit codes and the resaved bytes are checked on the program itself in
// tests/cli/check_resave.sh; here the listing and the unwritable target.
#include "console/project/show_tools.h"

#include <gtest/gtest.h>

#include <fstream>
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
                           "Patched slots: 66\nNamed channels: 3\nButtons: 19\nFaders: 13\nChases: 1\n"
                           "Screens: 4\nPages: 2\nArt-Net rows: 2\nSkipped blocks: 0\nClamped values: 0\n");
  EXPECT_EQ(err.str(), "");
}

// A hostile file of many bad blocks lists the first hundred and counts the rest;
// a file cut short says where reading stopped.
TEST(ShowCheck, ADamagedShowListsAHundredProblemsOfEachKindAndWhereItStopped) {
  TempFolder folder;
  std::string text = "<Lumaris_XML>\r";
  for (int n = 0; n < 150; ++n) text += "<Page></Page>\r";
  text += "<Chase><Num>1</Num><Steps>0</Steps></Chase>\r<Submix>\r";
  std::ofstream(folder.file("cut.xml"), std::ios::binary) << text;
  std::ostringstream out, err;
  EXPECT_EQ(run_show_check(folder.file("cut.xml"), out, err), 1);
  const std::string listing = out.str();
  EXPECT_NE(listing.find("File ends early: reading stopped at line 153\n"), std::string::npos);
  EXPECT_NE(listing.find("Skipped blocks: 151\n"), std::string::npos);
  EXPECT_NE(listing.find("  Page block 99: Num is missing\n  ... and 51 more\n"),
            std::string::npos);
  EXPECT_NE(listing.find("Clamped values: 1\n  Chase block 1: Steps 0 set to 1\n"), std::string::npos);
}

TEST(ShowCheck, AFileBeyondTheLargestShowIsRefusedWithItsReason) {
  TempFolder folder;
  std::ofstream(folder.file("huge.xml"), std::ios::binary) << std::string(8u << 20, ' ') << "<Lumaris_XML>";
  std::ostringstream out, err;
  EXPECT_EQ(run_show_check(folder.file("huge.xml"), out, err), 2);
  EXPECT_NE(err.str().find(": File too large (more than 8 MB)\n"), std::string::npos) << err.str();
}

TEST(ShowResave, AnUnwritableTargetIsReported) {
  TempFolder folder;
  std::ostringstream out, err;
  EXPECT_EQ(run_show_resave(test_data("full_show.xml"), folder.file("gone/x.xml"), out, err), 2);
  EXPECT_NE(err.str().find("cannot write"), std::string::npos);
}

}  // namespace
}  // namespace lumaris
