#include "core/project/show_tools.h"

#include <gtest/gtest.h>

#include <regex>
#include <sstream>

#include "tests/support/show_builders.h"
#include "tests/support/temp_folder.h"

namespace lumaris {
namespace {

struct ToolRun {
  int code = 0;
  std::string out;
  std::string err;
};

ToolRun check(const std::string& path) {
  std::ostringstream out, err;
  const int code = run_show_check(path, out, err);
  return {code, out.str(), err.str()};
}

TEST(ShowCheck, ACleanShowListsWhatItHolds) {
  const ToolRun run = check(test_data("full_show.xml"));
  EXPECT_EQ(run.code, 0);
  EXPECT_EQ(run.out, "Show: " + test_data("full_show.xml") +
                         "\nName: Winter Gala\nVersion: 7\nDate: 22/11/2026\nSubmixes: 3\n"
                         "Patched slots: 66\nNamed channels: 3\nButtons: 18\nFaders: 13\nChases: 1\n"
                         "Screens: 4\nPages: 2\nArt-Net rows: 2\nSkipped blocks: 0\n");
  EXPECT_EQ(run.err, "");
}

TEST(ShowCheck, SkippedBlocksGiveExitCodeOneAndNoShowTwo) {
  ToolRun run = check(test_data("damaged_show.xml"));
  EXPECT_EQ(run.code, 1);
  EXPECT_NE(run.out.find("Skipped blocks: 5\n  Submix block 1: Num 40 is out of range\n"),
            std::string::npos);
  run = check(test_data("not_a_show.xml"));
  EXPECT_EQ(run.code, 2);
  EXPECT_NE(run.err.find("is not a Lumaris project file"), std::string::npos);
  EXPECT_EQ(run.out, "");
}

TEST(ShowResave, WritesTheShowAsSaveAsWouldWithTodaysDate) {
  TempFolder folder;
  const std::string out_path = folder.file("resaved.xml");
  std::ostringstream out, err;
  EXPECT_EQ(run_show_resave(test_data("full_show.xml"), out_path, out, err), 0);
  EXPECT_EQ(out.str(), "Saved " + out_path + " (version 8)\n");
  const std::regex date("<Date>[0-9]{2}/[0-9]{2}/[0-9]{4}</Date>");
  std::string expected = std::regex_replace(file_contents(test_data("full_show.xml")), date, "<Date/>");
  expected.replace(expected.find("<Version>7</Version>"), 20, "<Version>8</Version>");
  EXPECT_EQ(std::regex_replace(file_contents(out_path), date, "<Date/>"), expected);
}

TEST(ShowResave, NothingIsWrittenForAFileThatIsNoShow) {
  TempFolder folder;
  std::ostringstream out, err;
  EXPECT_EQ(run_show_resave(test_data("not_a_show.xml"), folder.file("x.xml"), out, err), 2);
  EXPECT_TRUE(folder.names().empty());
  EXPECT_EQ(run_show_resave(test_data("full_show.xml"), folder.file("gone/x.xml"), out, err), 2);
  EXPECT_NE(err.str().find("cannot write"), std::string::npos);
}

}  // namespace
}  // namespace lumaris
