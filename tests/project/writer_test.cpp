#include <gtest/gtest.h>

#include "core/project/project_file.h"
#include "core/store.h"
#include "core/project/project_writer.h"
#include "tests/support/show_builders.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

// Saves through the File menu into a fresh folder and returns the file's bytes.
class WriterTest : public ::testing::Test {
 protected:
  WriterTest() { t.build(); }

  std::string save(void (ProjectFile::*operation)()) {
    const std::string path = folder.file("out.xml");
    t.dialogs.answer_file(path);
    (t.console->project_file().*operation)();
    return file_contents(path);
  }

  TestConsole t;
  TempFolder folder;
};

TEST_F(WriterTest, FreshDeskSavedAtOnceMatchesTheGoldenFile) {
  EXPECT_EQ(save(&ProjectFile::Save_As_Project), file_contents(test_data("fresh_desk.xml")));
}

TEST_F(WriterTest, FullShowMatchesTheGoldenFile) {
  build_full_show(t.store());
  EXPECT_EQ(save(&ProjectFile::Save_As_Project), file_contents(test_data("full_show.xml")));
}

TEST_F(WriterTest, PartialFilesHoldOneSectionEach) {
  build_full_show(t.store());
  EXPECT_EQ(save(&ProjectFile::Save_Submix), file_contents(test_data("submix_only.xml")));
  EXPECT_EQ(save(&ProjectFile::Save_Patch), file_contents(test_data("patch_only.xml")));
  EXPECT_EQ(save(&ProjectFile::Save_Sequence), file_contents(test_data("sequence_only.xml")));
  EXPECT_EQ(t.store().Project_Version, 6);  // partial saves leave the version alone
}

TEST_F(WriterTest, EmptySectionsStillWriteTheRoot) {
  reset_submixes(t.store());
  EXPECT_EQ(save(&ProjectFile::Save_Submix), "<Lumaris_XML>\r</Lumaris_XML>\r\r\n");
  reset_patch(t.store(), 0);
  EXPECT_EQ(Patch_Section(t.store()), "");
}

TEST_F(WriterTest, SavingTwiceAdvancesTheVersionTwice) {
  save(&ProjectFile::Save_As_Project);
  const std::string second = save(&ProjectFile::Save_As_Project);
  EXPECT_NE(second.find("\t\t<Version>2</Version>\r"), std::string::npos);
}

TEST(WriterSections, StepTimesCarryALiteralZeroInFront) {
  EXPECT_EQ("0" + seconds_text(0.25), "0.25");
  EXPECT_EQ("0" + seconds_text(0.5), "0.5");
  EXPECT_EQ("0" + seconds_text(1), "01");
  EXPECT_EQ("0" + seconds_text(12.75), "012.75");
  EXPECT_EQ("0" + seconds_text(0), "00");
}

TEST(WriterSections, DatesAreDayMonthYearWithSlashes) {
  EXPECT_EQ(date_text({2026, 11, 22}), "22/11/2026");
  EXPECT_EQ(date_text({2027, 1, 5}), "05/01/2027");
}

TEST(WriterSections, ChannelsWithTheirDefaultDescriptionAreNotWritten) {
  Store store;
  reset_store(store);
  store.Fader_Names[4].Desc = "5";
  store.Fader_Names[4].Name = "Renamed";
  store.Fader_Names[4].Main_F = true;
  EXPECT_EQ(FaderName_Section(store), "");
}

TEST(WriterSections, OneStepChasesAreLeftOutAndLaterChasesWriteEveryStep) {
  Store store;
  reset_store(store);
  store.Chase_Table[5].Name = "One step";
  store.Chase_Table[32].Steps = 3;  // the last table entry is never saved
  EXPECT_EQ(Chase_Section(store), "");
  store.Chase_Table[7].Steps = 3;
  const std::string text = Chase_Section(store);
  std::size_t steps = 0;
  for (std::size_t at = text.find("<Step>"); at != std::string::npos; at = text.find("<Step>", at + 1)) ++steps;
  EXPECT_EQ(steps, 4u);  // steps 0..3
}

TEST(WriterSections, ACountPastTheLastScreenWritesTheTableOnly) {
  Store store;
  reset_store(store);
  store.Screen_Count = kScreens;  // recording screen 199 leaves the count here
  const std::string text = Screen_Section(store);
  EXPECT_NE(text.find("<Num>199</Num>"), std::string::npos);
  EXPECT_EQ(text.find("<Num>200</Num>"), std::string::npos);
}

}  // namespace
}  // namespace lumaris
