#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "console/project/project_reader.h"
#include "console/project/project_writer.h"
#include "console/project/windows_1252.h"
#include "tests/project/store_compare.h"
#include "tests/support/show_builders.h"

namespace lumaris {
namespace {

using ::testing::IsEmpty;

LoadReport load_file(Store& store, const std::string& name) {
  return read_project(store, windows_1252_to_utf8(file_contents(test_data(name))));
}

std::string rooted(const std::string& body) { return "<Lumaris_XML>\r" + body + "</Lumaris_XML>\r\r\n"; }

class ReaderTest : public ::testing::Test {
 protected:
  ReaderTest() {
    reset_store(store);
    reset_store(fresh);
  }
  Store store;
  Store fresh;
};

TEST_F(ReaderTest, FreshDeskFileLoadsAsAFreshDesk) {
  const LoadReport report = load_file(store, "fresh_desk.xml");
  EXPECT_THAT(report.skipped, IsEmpty());
  fresh.Project_Version = 1;
  EXPECT_THAT(saved_item_differences(fresh, store), IsEmpty());
  EXPECT_EQ(store.Project_Date, "22/11/2026");
  EXPECT_EQ(report.buttons, 16);
  EXPECT_EQ(report.faders, 12);
}

TEST_F(ReaderTest, FullShowLoadsEveryItemItHolds) {
  const LoadReport report = load_file(store, "full_show.xml");
  EXPECT_THAT(report.skipped, IsEmpty());

  // Hand-checked values, each from its line in the file.
  EXPECT_EQ(store.Project_Text, "Main stage \u2013 act 2");
  EXPECT_EQ(store.Submix[3].Name, "Caf\u00e9");
  EXPECT_EQ(store.Patch[512], 2);
  EXPECT_EQ(store.Chase_Table[2].Time[1], 2.5);
  EXPECT_EQ(store.Button_Functions[18].Function, kFunctionOff);  // Cue buttons are not saved

  // Everything else as the show was built before saving.
  Store expected;
  build_full_show(expected);
  expected.Project_Version = 7;
  expected.Art_Universes.fill(ArtUniverse{});
  expected.Art_Universes[0] = {true, 1};
  expected.Art_Universes[1] = {true, 4};
  expected.Fader_Names[9].Name = "10";
  expected.Fader_Functions[0].Function = kFunctionOff;
  expected.Chase_Table[0].Name.clear();
  EXPECT_THAT(saved_item_differences(expected, store), IsEmpty());
}

TEST_F(ReaderTest, PatchFileChangesItsSlotsAndTurnsEveryButtonAndFaderOff) {
  build_full_show(store);
  Store before = store;
  const LoadReport report = load_file(store, "patch_only.xml");
  EXPECT_EQ(report.patch_pairs, 66);
  EXPECT_EQ(store.Patch, before.Patch);  // the file holds the same patch
  for (const ButtonFunction& button : store.Button_Functions) EXPECT_EQ(button.Function, kFunctionOff);
  for (const FaderFunction& fader : store.Fader_Functions) EXPECT_EQ(fader.Function, kFunctionOff);
  EXPECT_EQ(store.Submix[0].Name, "Wash");
  EXPECT_EQ(store.Screens[1].Name, "Opening");

  read_project(fresh, rooted("\t<Patch>0:1,1:2,2:3,100:7</Patch>\r"));
  EXPECT_EQ(fresh.Patch[2], 3);
  EXPECT_EQ(fresh.Patch[100], 7);
  EXPECT_EQ(fresh.Patch[3], 4);  // not named: kept
}

TEST_F(ReaderTest, SubmixWithoutLevelsIsEmptiedButNamedAndLevelsStopAtTheFirstEmptyPair) {
  store.Submix[3].Chan[0] = 4, store.Submix[3].Level[0] = 90;
  read_project(store, rooted("\t<Submix>\r\t\t<Num>3</Num>\r\t\t<Name>Empty</Name>\r"
                             "\t\t<Colour>255</Colour>\r\t</Submix>\r"
                             "\t<Submix>\r\t\t<Num>1</Num>\r\t\t<Level>2:10</Level>\r"
                             "\t\t<Level>0:0</Level>\r\t\t<Level>9:99</Level>\r\t</Submix>\r"));
  EXPECT_EQ(store.Submix[3].Name, "Empty");
  EXPECT_EQ(store.Submix[3].Colour, "255");
  EXPECT_EQ(store.Submix[3].Chan[0], 0);
  EXPECT_EQ(store.Submix[3].Level[0], 0);
  EXPECT_EQ(store.Submix[1].Level[0], 10);
  EXPECT_EQ(store.Submix[1].Level[1], 0);
}

TEST_F(ReaderTest, MainFlagAloneSetsMainAndClearsCross) {
  store.Fader_Names[6].Cross_F = true;
  read_project(store, rooted("\t<FaderName>\r\t\t<Num>6</Num>\r\t\t<Desc>Spot</Desc>\r"
                             "\t\t<Main_F>1</Main_F>\r\t</FaderName>\r"));
  EXPECT_TRUE(store.Fader_Names[6].Main_F);
  EXPECT_FALSE(store.Fader_Names[6].Cross_F);
  EXPECT_EQ(store.Fader_Names[6].Name, "");  // missing fields read empty
}

TEST_F(ReaderTest, StepTimesReadWithOrWithoutLeadingZeroAndScreenCountIsTheHighestRead) {
  read_project(store, rooted("\t<Chase>\r\t\t<Num>4</Num>\r\t\t<Steps>2</Steps>\r"
                             "\t\t<Step>\r\t\t\t<Num>1</Num>\r\t\t\t<Speed>00.25</Speed>\r"
                             "\t\t\t<Time>0.25</Time>\r\t\t</Step>\r\t</Chase>\r"
                             "\t<Screen><Num>0</Num></Screen>\r\t<Screen><Num>9</Num></Screen>\r"
                             "\t<Screen><Num>4</Num></Screen>\r"));
  EXPECT_EQ(store.Chase_Table[4].Speed[1], 0.25);
  EXPECT_EQ(store.Chase_Table[4].Time[1], 0.25);
  EXPECT_EQ(store.Screen_Count, 9);
  read_project(store, rooted(""));
  EXPECT_EQ(store.Screen_Count, 9);  // no screens in the file: kept
}

TEST_F(ReaderTest, TextWithoutTheRootChangesNothing) {
  store.Patch[0] = 9;
  const LoadReport report = read_project(store, "<Project><Name>x</Name></Project><Patch>0:1</Patch>");
  EXPECT_FALSE(report.is_show);
  EXPECT_EQ(store.Patch[0], 9);
  EXPECT_EQ(store.Project_Name, "");
  EXPECT_EQ(store.Button_Functions[0].Function, kFunctionSubmix);
}

TEST_F(ReaderTest, DamagedBlocksAreSkippedWholeAndTheRestLoads) {
  const LoadReport report = load_file(store, "damaged_show.xml");
  ASSERT_EQ(report.skipped.size(), 5u);
  EXPECT_EQ(report.skipped[0].block, "Submix block 1");
  EXPECT_EQ(report.skipped[0].reason, "Num 40 is out of range");
  EXPECT_EQ(report.skipped[1].block, "Button block 1");
  EXPECT_EQ(report.skipped[1].reason, "Number is not a number");
  EXPECT_EQ(report.skipped[2].block, "Patch block 1");
  EXPECT_EQ(report.skipped[3].block, "Screen block 1");
  EXPECT_EQ(report.skipped[3].reason, "Num is missing");
  EXPECT_EQ(report.skipped[4].block, "Chase block 1");

  EXPECT_EQ(store.Submix[2].Name, "Good");
  EXPECT_EQ(store.Fader_Names[7].Desc, "Spot");
  EXPECT_EQ(store.Button_Functions[4].Level, 99);
  EXPECT_EQ(store.Patch[1], 2);  // the damaged patch changed no slot
  EXPECT_EQ(store.Chase_Table[1].Name, "");
  EXPECT_EQ(store.Screens[1].Next, 9);
  EXPECT_EQ(store.Screen_Count, 1);
}

TEST_F(ReaderTest, NothingIsStoredOutsideTheArrays) {
  std::string levels;
  for (int k = 0; k < 65; ++k) levels += "\t\t<Level>" + std::to_string(k % 64 + 1) + ":1</Level>\r";
  std::string networks;
  for (int row = 0; row < 18; ++row) networks += "<Network><Universe>1</Universe></Network>";
  const std::string body =
      "\t<Project>" + networks + "<Name>Too many rows</Name></Project>\r" +
      "\t<Submix>\r\t\t<Num>1</Num>\r" + levels + "\t</Submix>\r" +
      "\t<FaderName><Num>64</Num></FaderName>\r\t<FaderName><Num>-1</Num></FaderName>\r" +
      "\t<Button><Number>81</Number></Button>\r\t<Fader><Number>2</Number><Level>40000</Level></Fader>\r" +
      "\t<Screen><Num>200</Num></Screen>\r\t<Screen><Num>3</Num><Preset>64:1</Preset></Screen>\r" +
      "\t<Screen><Num>4</Num><Fad_Sel>61:1</Fad_Sel></Screen>\r\t<Screen><Num>5</Num><But_Sel>81</But_Sel></Screen>\r" +
      "\t<Chase><Num>33</Num></Chase>\r\t<Chase><Num>1</Num><Steps>33</Steps></Chase>\r" +
      "\t<Chase><Num>2</Num><Channels>" + std::string("1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1") +
      "</Channels></Chase>\r\t<Chase><Num>3</Num><Step><Num>1</Num><Fix>1:2:3:4:5:6:7</Fix></Step></Chase>\r" +
      "\t<Chase><Num>4</Num><Step><Num>33</Num></Step></Chase>\r\t<Page><Num>6</Num></Page>\r";
  const LoadReport report = read_project(store, rooted(body));
  EXPECT_EQ(report.skipped.size(), 16u);
  EXPECT_EQ(report.submixes + report.named_channels + report.buttons + report.faders + report.screens +
                report.chases + report.pages,
            0);
  EXPECT_EQ(store.Project_Name, "");
  EXPECT_FALSE(store.Art_Universes[0].Enable);
  // Only the fresh desk's 16 buttons and 12 faders changed: button and fader blocks turn them Off.
  const auto differences = saved_item_differences(fresh, store);
  ASSERT_EQ(differences.size(), 28u);
  EXPECT_EQ(differences.front(), "Button 0");
  EXPECT_EQ(differences.back(), "Fader 11");
}

TEST(RoundTrip, RandomShowsReadBackAndSaveToTheSameBytes) {
  const CalendarDate date{2026, 11, 22};
  for (std::uint32_t seed = 1; seed <= 40; ++seed) {
    Store saved;
    build_random_show(saved, seed);
    const std::string first = file_bytes(whole_project_document(saved, date));
    Store loaded;
    reset_store(loaded);
    const LoadReport report = read_project(loaded, windows_1252_to_utf8(first));
    EXPECT_THAT(report.skipped, IsEmpty()) << "seed " << seed;
    EXPECT_THAT(saved_item_differences(saved, loaded), IsEmpty()) << "seed " << seed;
    EXPECT_EQ(file_bytes(whole_project_document(loaded, date)), first) << "seed " << seed;
  }
}

}  // namespace
}  // namespace lumaris
