#include <gtest/gtest.h>

#include <tuple>

#include "console/project/project_file.h"
#include "tests/playback/playback_test_desk.h"
#include "tests/support/show_builders.h"
#include "tests/support/temp_folder.h"

namespace lumaris {
namespace {

// A show with buttons and faders of every stored function on several pages,
// recorded screens and named pages, loaded through the main desk's Load and
// saved through Save As, as the operator does it.
class PlaybackShowFile : public ::testing::Test {
 protected:
  PlaybackShowFile() {
    d.t.dialogs.answer_file(test_data("playback_show.xml"));
    d.t.console->main_desk().Menu_Click("load");
  }

  std::string save() {
    const std::string path = folder.file("saved.xml");
    d.t.dialogs.answer_file(path);
    d.t.console->project_file().Save_As_Project();
    return file_contents(path);
  }

  PlaybackTestDesk d;
  TempFolder folder;
};

// What the file does not change saves back byte for byte with the edits.
TEST_F(PlaybackShowFile, ALoadedShowIsOnThePlaybackDeskAndWhatTheOperatorChangesIsSaved) {
  EXPECT_EQ(std::tuple(d.panel().buttons()[5].caption, d.panel().faders()[0].caption, d.desk->pages().Page_Details()),
            std::tuple("Spot", "Submix 2", "Act 1"));
  d.screens().Screen_Num_sel_Change(3);
  d.screens().screen_txt_Change("Finale");
  d.press(0);  // latched: stays on
  d.release(0);
  d.fader_to(0, 255);
  d.screens().Screen_Prog_Click();

  ButtonSetup& setup = d.desk->button_setup();
  setup.Open(5);
  setup.level_fader_changed(255 - 150);
  setup.OK_Click();

  d.desk->pages().Inc_Page_Click();
  d.desk->pages().Page_Details_Change("Page 2");  // the default caption is not a name
  d.desk->pages().Page_Details_Change("Act 2");

  EXPECT_TRUE(d.store().Project_Changed);
  EXPECT_EQ(save(), file_contents(test_data("playback_show_edited.xml")));
}

}  // namespace
}  // namespace lumaris
