#include "console/project/project_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <tuple>

#include "core/main_desk.h"
#include "sequence/sequence_desk.h"
#include "tests/support/faulty_file_system.h"
#include "tests/support/show_builders.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

class ProjectFileTest : public ::testing::Test {
 protected:
  ProjectFileTest() {
    t.services.file_system = &files;
    t.build();
  }
  ProjectFile& file() { return t.console->project_file(); }
  const StatusLines& status() { return t.console->status(); }

  FaultyFileSystem files;
  TestConsole t;
  TempFolder folder;
};

TEST_F(ProjectFileTest, SaveAsAsksEverySaveOnlyWhileUnnamedAndCancelWritesNothing) {
  const std::string path = folder.file("gala.xml");
  t.store().Project_Changed = true;
  file().Save_As_Project();  // no scripted answer: cancelled
  EXPECT_EQ(std::tuple(t.store().Project_Version, t.store().Project_Changed, folder.names().empty()),
            std::tuple(0, true, true));

  t.dialogs.answer_file(path);
  file().Save_As_Project();
  EXPECT_EQ(std::tuple(status().main(), t.store().Project_Changed, t.store().Project_File),
            std::tuple(" Project Saved ", false, path));
  file().Save_Project();
  EXPECT_EQ(t.dialogs.file_dialogs().size(), 2u);
  t.dialogs.answer_file(path);
  file().Save_As_Project();
  EXPECT_EQ(t.dialogs.file_dialogs()[2].initial_name, path);
  EXPECT_NE(file_contents(path).find("<Version>3</Version>"), std::string::npos);
}

TEST_F(ProjectFileTest, PartialSavesNameTheirDialogsAndKeepProjectChanged) {
  struct Case {
    void (ProjectFile::*save)();
    const char* title;
    const char* main_status;
  };
  const Case cases[] = {
      {&ProjectFile::Save_Submix, "Save DMX Submixes", " Submix Saved "},
      {&ProjectFile::Save_Patch, "Save DMX Patches", " Patches Saved "},
      {&ProjectFile::Save_Sequence, "Save DMX Sequences", " Sequences Saved "},
  };
  t.store().Project_Changed = true;
  for (const Case& c : cases) {
    const std::string path = folder.file(std::string(c.title) + ".xml");
    t.dialogs.answer_file(path);
    (file().*c.save)();
    EXPECT_EQ(std::tuple(t.dialogs.file_dialogs().back().title, status().main()), std::tuple(c.title, c.main_status));
    EXPECT_EQ(t.store().Project_File, path);  // a partial save names the current file too
    EXPECT_TRUE(t.store().Project_Changed);
    EXPECT_FALSE(file_contents(path).empty());
  }
  EXPECT_EQ(t.store().Project_Version, 0);
}

TEST_F(ProjectFileTest, AFailedSaveKeepsTheOldFileAndTheUnsavedMark) {
  const std::string path = folder.file("gala.xml");
  std::ofstream(path, std::ios::binary) << "previous show";
  t.store().Project_File = path;
  t.store().Project_Changed = true;
  files.fail(FaultyFileSystem::Step::CreateTemporary, "Permission denied");  // a read-only folder
  file().Save_Project();
  EXPECT_EQ(std::tuple(file_contents(path), t.store().Project_Changed), std::tuple("previous show", true));
  EXPECT_EQ(t.store().Project_Version, 1);  // advanced before the file was touched
  ASSERT_EQ(t.dialogs.messages().size(), 1u);
  EXPECT_NE(t.dialogs.messages()[0].text.find(path), std::string::npos);
  EXPECT_NE(t.dialogs.messages()[0].text.find("Permission denied"), std::string::npos);
  EXPECT_EQ(status().main(), " Not Saved ");

  file().Save_Project();  // the desk carries on and the next save works
  EXPECT_FALSE(t.store().Project_Changed);
  EXPECT_NE(file_contents(path).find("<Version>2</Version>"), std::string::npos);

  t.store().Project_Version = INT16_MAX;  // the highest version is saved as it is
  file().Save_Project();
  EXPECT_NE(file_contents(path).find("<Version>32767</Version>"), std::string::npos);
}

// A damaged file loads what it can; the status line says so and the desk counts
// as changed, so that Exit asks before the damage is taken for the show.
TEST_F(ProjectFileTest, ADamagedFileSaysSoAndLeavesTheProjectChanged) {
  const std::string cut = folder.file("cut.xml");
  std::ofstream(cut, std::ios::binary) << "<Lumaris_XML>\r\t<Project>\r\t\t<Name>Cut</Name>\r"
                                          "\t</Project>\r\t<Submix>\r\t\t<Num>1";
  EXPECT_TRUE(file().Load_File(cut));
  EXPECT_EQ(std::tuple(status().main(), status().playback(), t.store().Project_Name, t.store().Project_Changed),
            std::tuple(" File damaged: loaded up to line 5 ", " File damaged: loaded up to line 5", "Cut", true));
  ASSERT_EQ(t.dialogs.messages().size(), 1u);
  EXPECT_NE(t.dialogs.messages()[0].text.find("loaded up to line 5"), std::string::npos);

  const std::string odd = folder.file("odd.xml");
  std::ofstream(odd, std::ios::binary) << "<Lumaris_XML><Project><Adapter>9</Adapter></Project>"
                                          "<Chase><Num>0</Num><Steps>0</Steps></Chase></Lumaris_XML>";
  t.store().Project_Changed = false;
  EXPECT_TRUE(file().Load_File(odd));
  EXPECT_EQ(status().main(), "Project Loaded, 2 Values Clamped ");
  EXPECT_TRUE(t.store().Project_Changed);
}

// Hostile times and counts from a file run on the sequence desk without
// undefined behaviour (the sanitizer build is the judge).
TEST_F(ProjectFileTest, AHostileChaseRunsSafely) {
  const std::string path = folder.file("hostile.xml");
  std::ofstream(path, std::ios::binary)
      << "<Lumaris_XML><Chase><Num>0</Num><Steps>2</Steps><Loop>-32768</Loop>"
         "<Step><Num>1</Num><Speed>0.5</Speed><Time>0.5</Time><Data>0</Data></Step>"
         "<Step><Num>2</Num><Speed>-0.1</Speed><Time>2e-10</Time><Data>255</Data><Fade>1</Fade></Step>"
         "<Step><Num>0</Num><Speed>1e308</Speed><Time>-1e308</Time></Step></Chase></Lumaris_XML>";
  ASSERT_TRUE(file().Load_File(path));
  SequenceDesk& desk = t.console->sequence_desk();
  desk.Show();
  desk.Chase_Go_Button_Click();
  for (int ms = 0; ms < 3000; ++ms) {
    t.scheduler.advance(1);
    for (const std::int32_t level : t.store().Chase_Out) {
      ASSERT_GE(level, 0) << "at " << ms << " ms";
      ASSERT_LE(level, 255) << "at " << ms << " ms";
    }
  }
}

TEST_F(ProjectFileTest, NothingChosenOrAFileThatIsNotAShowChangesNothing) {
  t.store().Project_File = "current.xml";
  t.dialogs.answer_file("*.xml");
  file().Load();
  file().Load_Patches();  // cancelled
  EXPECT_TRUE(t.dialogs.messages().empty());
  t.dialogs.answer_file(test_data("not_a_show.xml"));
  file().Load();
  EXPECT_EQ(t.store().Project_File, "current.xml");
  EXPECT_EQ(t.store().Button_Functions[0].Function, kFunctionSubmix);
  ASSERT_EQ(t.dialogs.messages().size(), 1u);
  EXPECT_EQ(t.dialogs.messages()[0].title, " Load Error");
  EXPECT_NE(t.dialogs.messages()[0].text.find("not a Lumaris project file"), std::string::npos);
  EXPECT_EQ(status().main(), " Project Not Loaded ");

  t.dialogs.answer_file(folder.file("missing.xml"));
  file().Load_Patches();
  ASSERT_EQ(t.dialogs.messages().size(), 2u);
  EXPECT_NE(t.dialogs.messages()[1].text.find("No such file or directory"), std::string::npos);
}

// A damaged block is skipped whole, the rest loads, and one message names them all.
TEST_F(ProjectFileTest, SkippedBlocksAreCountedAndNamedInOneMessageAndTheRestLoads) {
  t.dialogs.answer_file(test_data("damaged_show.xml"));
  file().Load();
  EXPECT_EQ(status().main(), "Project Loaded, 5 Blocks Skipped ");
  EXPECT_TRUE(t.store().Project_Changed);
  ASSERT_EQ(t.dialogs.messages().size(), 1u);
  const std::string& text = t.dialogs.messages()[0].text;
  for (const char* block : {"Submix block 1: Num 40 is out of range", "Button block 1: Number is not a number",
                            "Patch block 1", "Screen block 1: Num is missing", "Chase block 1"}) {
    EXPECT_NE(text.find(block), std::string::npos) << block;
  }
  const Store& store = t.store();
  EXPECT_EQ(std::tuple(store.Submix[2].Name, store.Fader_Names[7].Desc, store.Button_Functions[4].Level),
            std::tuple("Good", "Spot", 99));
  EXPECT_EQ(std::tuple(store.Chase_Table[1].Name, store.Screens[1].Next, store.Screen_Count), std::tuple("", 9, 1));
}

// Loading over another show, from the menu or the command line: a screen holds
// exactly what the file records, never levels the earlier show left in it.
TEST_F(ProjectFileTest, LoadFromTheMenuOrTheCommandLineRedrawsTheDeskOverWhatWasThere) {
  t.store().Project_Changed = true;
  t.dialogs.answer_message(MessageResult::Discard);
  t.dialogs.answer_file(test_data("full_show.xml"));
  t.console->main_desk().Menu_Click("load");
  EXPECT_EQ(std::tuple(status().main(), t.store().Project_File, t.store().Project_Changed,
                       t.console->main_desk().strips()[4].name_box),
            std::tuple("Project Loaded ", test_data("full_show.xml"), false, "FWL"));  // the show as it was saved

  Screen& opening = t.store().Screens[1];
  opening.Preset[40] = 200;
  opening.But_Sel[7] = true;
  opening.Fad_Sel[3] = 90;
  t.store().Fader_Names[4].Name = "Old";
  t.console->main_desk().Refresh_Desk_Panel();
  EXPECT_TRUE(file().Load_File(test_data("full_show.xml")));
  EXPECT_EQ(t.dialogs.file_dialogs().size(), 1u) << "no dialog for the show named on the command line";
  EXPECT_EQ(std::tuple(t.console->main_desk().strips()[4].name_box, opening.Preset[40], opening.But_Sel[7]),
            std::tuple("FWL", 0, false));
  EXPECT_EQ(std::tuple(opening.Fad_Sel[3], opening.Preset[4], opening.But_Sel[17], opening.Fad_Sel[12]),
            std::tuple(0, 128, true, 100));
  EXPECT_FALSE(file().Load_File(test_data("not_a_show.xml")));
  EXPECT_FALSE(file().Load_File(folder.file("missing.xml")));
  EXPECT_EQ(t.store().Project_Name, "Winter Gala");
}

}  // namespace
}  // namespace lumaris
