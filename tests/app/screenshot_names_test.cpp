#include <gtest/gtest.h>

#include "app/screenshot_names.h"

namespace lumaris {

TEST(ScreenshotNames, TheOperatorsNameFirstThenTheWindowsOwn) {
  EXPECT_EQ(screenshot_file_name("Hoofdblad", "DMX 512 Main Desk"), "main-desk_Hoofdblad");
  EXPECT_EQ(screenshot_file_name("editpatchlist", "Edit patchlist "), "patch-editor_editpatchlist");
  EXPECT_EQ(screenshot_file_name("Realout", "whatever"), "output-monitor_Realout");
  // A window added later is named after its caption until it gets a label.
  EXPECT_EQ(screenshot_file_name("CLI", " Command Line Interface "), "command-line-interface_CLI");
  EXPECT_EQ(screenshot_file_name("X", "?!"), "window_X");
}

}  // namespace lumaris
