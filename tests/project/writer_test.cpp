#include <gtest/gtest.h>

#include "console/project/project_file.h"
#include "core/store.h"
#include "console/project/project_writer.h"
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

TEST_F(WriterTest, EveryGoldenFileIsReproducedByteForByte) {
  EXPECT_EQ(save(&ProjectFile::Save_As_Project), file_contents(test_data("fresh_desk.xml")));
  reset_submixes(t.store());
  EXPECT_EQ(save(&ProjectFile::Save_Submix), "<Lumaris_XML>\r</Lumaris_XML>\r\r\n");
  build_full_show(t.store());
  EXPECT_EQ(save(&ProjectFile::Save_Submix), file_contents(test_data("submix_only.xml")));
  EXPECT_EQ(save(&ProjectFile::Save_Patch), file_contents(test_data("patch_only.xml")));
  EXPECT_EQ(save(&ProjectFile::Save_Sequence), file_contents(test_data("sequence_only.xml")));
  EXPECT_EQ(t.store().Project_Version, 6);  // partial saves leave the version alone
  EXPECT_EQ(save(&ProjectFile::Save_As_Project), file_contents(test_data("full_show.xml")));
}

// Step times are written in fixed notation after a literal "0", never in
// exponent form, whatever their size.
TEST(WriterSections, StepTimesCarryALiteralZeroInFrontAndNeverAnExponent) {
  Store store;
  reset_store(store);
  ChaseRec& chase = store.Chase_Table[0];
  chase.Steps = 2;
  chase.Speed[0] = 0.25, chase.Time[0] = 1;
  chase.Speed[1] = 100000, chase.Time[1] = 0;
  chase.Speed[2] = 12.75, chase.Time[2] = 0.0000001;
  const std::string text = Chase_Section(store);
  for (const char* line : {"\t\t\t<Speed>0.25</Speed>\r\t\t\t<Time>01</Time>\r",
                           "\t\t\t<Speed>0100000</Speed>\r\t\t\t<Time>00</Time>\r",
                           "\t\t\t<Speed>012.75</Speed>\r\t\t\t<Time>0.0000001</Time>\r"}) {
    EXPECT_NE(text.find(line), std::string::npos) << line;
  }
  EXPECT_EQ(date_text({2027, 1, 5}), "05/01/2027");
}

TEST(WriterSections, DefaultItemsAreLeftOut) {
  Store store;
  reset_store(store);
  reset_patch(store, 0);
  EXPECT_EQ(Patch_Section(store), "");
  store.Fader_Names[4] = {"5", "Renamed", "", true, false};  // default description
  EXPECT_EQ(FaderName_Section(store), "");
  store.Chase_Table[5].Name = "One step";
  store.Chase_Table[32].Steps = 3;  // the last table entry is never saved
  EXPECT_EQ(Chase_Section(store), "");
  store.Chase_Table[7].Steps = 3;
  const std::string text = Chase_Section(store);
  std::size_t steps = 0;
  for (std::size_t at = text.find("<Step>"); at != std::string::npos; at = text.find("<Step>", at + 1)) ++steps;
  EXPECT_EQ(steps, 4u);  // steps 0..3
  store.Screen_Count = kScreens;  // recording screen 199 leaves the count here
  const std::string screens = Screen_Section(store);
  EXPECT_NE(screens.find("<Num>199</Num>"), std::string::npos);
  EXPECT_EQ(screens.find("<Num>200</Num>"), std::string::npos);
}

}  // namespace
}  // namespace lumaris
