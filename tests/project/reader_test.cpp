#include <gtest/gtest.h>

#include <ctime>
#include <tuple>

#include "console/project/project_reader.h"
#include "console/project/project_writer.h"
#include "base/windows_1252.h"
#include "tests/support/show_builders.h"

namespace lumaris {
namespace {

// What the show file carries of a store: two stores that save alike hold the same show.
std::string saved(const Store& store) { return whole_project_document(store, CalendarDate{2026, 11, 22}); }

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

TEST_F(ReaderTest, FullShowLoadsEveryItemItHolds) {
  const LoadReport report = load_file(store, "full_show.xml");
  EXPECT_FALSE(report.damaged());

  // Hand-checked values, each from its line in the file.
  EXPECT_EQ(std::tuple(store.Project_Text, store.Submix[3].Name, store.Patch[512], store.Chase_Table[2].Time[1]),
            std::tuple("Main stage \u2013 act 2", "Caf\u00e9", 2, 2.5));
  EXPECT_EQ(store.Button_Functions[18].Function, kFunctionCue);

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
  EXPECT_EQ(saved(store), saved(expected));
}

// Blocks that open again before they close are read in one pass over the file:
// read as before, this 1.5 MB took the better part of a minute.
TEST_F(ReaderTest, BlocksThatNeverCloseAreReadInTimeLinearInTheFileSize) {
  std::string text = "<Lumaris_XML>";
  for (int n = 0; n < 75000; ++n) text += "<Submix><Num>2</Num>";
  text += "</Submix></Lumaris_XML>";
  const std::clock_t start = std::clock();
  const LoadReport report = read_project(store, text);
  EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 2.0);
  EXPECT_EQ(std::tuple(report.skipped.count(), report.submixes), std::tuple(74999u, 1));
}

TEST_F(ReaderTest, PatchFileChangesItsSlotsAndTurnsEveryButtonAndFaderOff) {
  build_full_show(store);
  Store before = store;
  const LoadReport report = load_file(store, "patch_only.xml");
  EXPECT_EQ(report.patch_pairs, 66);
  EXPECT_EQ(store.Patch, before.Patch);  // the file holds the same patch
  for (const ButtonFunction& button : store.Button_Functions) EXPECT_EQ(button.Function, kFunctionOff);
  for (const FaderFunction& fader : store.Fader_Functions) EXPECT_EQ(fader.Function, kFunctionOff);
  EXPECT_EQ(std::tuple(store.Submix[0].Name, store.Screens[1].Name), std::tuple("Wash", "Opening"));

  read_project(fresh, rooted("\t<Patch>0:1,1:2,2:3,100:7</Patch>\r"));
  EXPECT_EQ(std::tuple(fresh.Patch[2], fresh.Patch[100]), std::tuple(3, 7));
  EXPECT_EQ(fresh.Patch[3], 4);  // not named: kept
  read_project(fresh, rooted("\t<Patch>3:9,600:2</Patch>\r"));
  EXPECT_EQ(fresh.Patch[3], 4) << "a damaged patch changes no slot";
}

TEST_F(ReaderTest, SubmixWithoutLevelsIsEmptiedButNamedAndLevelsStopAtTheFirstEmptyPair) {
  store.Submix[3].Chan[0] = 4, store.Submix[3].Level[0] = 90;
  read_project(store, rooted("\t<Submix>\r\t\t<Num>3</Num>\r\t\t<Name>Empty</Name>\r"
                             "\t\t<Colour>255</Colour>\r\t</Submix>\r"
                             "\t<Submix>\r\t\t<Num>1</Num>\r\t\t<Level>2:10</Level>\r"
                             "\t\t<Level>0:0</Level>\r\t\t<Level>9:99</Level>\r\t</Submix>\r"));
  EXPECT_EQ(std::tuple(store.Submix[3].Name, store.Submix[3].Colour, store.Submix[3].Chan[0]),
            std::tuple("Empty", "255", 0));
  EXPECT_EQ(std::tuple(store.Submix[3].Level[0], store.Submix[1].Level[0], store.Submix[1].Level[1]),
            std::tuple(0, 10, 0));
}

TEST_F(ReaderTest, TextWithoutTheRootChangesNothing) {
  store.Patch[0] = 9;
  const LoadReport report = read_project(store, "<Project><Name>x</Name></Project><Patch>0:1</Patch>");
  EXPECT_EQ(std::tuple(report.is_show, store.Patch[0], store.Project_Name, store.Button_Functions[0].Function),
            std::tuple(false, 9, "", kFunctionSubmix));
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
      "\t<Chase><Num>33</Num></Chase>\r" +
      "\t<Chase><Num>2</Num><Channels>" + std::string("1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1:1") +
      "</Channels></Chase>\r\t<Chase><Num>3</Num><Step><Num>1</Num><Fix>1:2:3:4:5:6:7</Fix></Step></Chase>\r" +
      "\t<Chase><Num>4</Num><Step><Num>33</Num></Step></Chase>\r\t<Page><Num>6</Num></Page>\r";
  const LoadReport report = read_project(store, rooted(body));
  EXPECT_EQ(report.skipped.count(), 15u);
  EXPECT_EQ(report.submixes + report.named_channels + report.buttons + report.faders + report.screens +
                report.chases + report.pages,
            0);
  EXPECT_EQ(std::tuple(store.Project_Name, store.Art_Universes[0].Enable), std::tuple("", false));
  // Only the fresh desk's buttons and faders changed: button and fader blocks turn them Off.
  for (ButtonFunction& button : fresh.Button_Functions) button.Function = kFunctionOff;
  for (FaderFunction& fader : fresh.Fader_Functions) fader.Function = kFunctionOff;
  EXPECT_EQ(saved(store), saved(fresh));
}

// Elements are found by their literal tags; numbers round halves to even and
// anything that is not a number reads 0; a pair without ":" reads 0:0.
TEST_F(ReaderTest, TagsAreLiteralAndNumbersRoundHalvesToEven) {
  read_project(store, rooted("\t<FaderName><Num>2</Num><name>lower</name><Name id=\"1\">attr</Name>"
                             "<Desc>Spot</Desc></FaderName>\r"
                             "\t<Button><Number>2.5</Number><Value>3.5</Value><Level>abc</Level>"
                             "<Channel1> 12 </Channel1><Data1>1e2</Data1></Button>\r"
                             "\t<Fader><Number>1</Number><Value>7</Value></Fader>\r"
                             "\t<Chase><Num>3</Num><Steps>2</Steps><Step><Num>1</Num>"
                             "<Fade>1:1</Fade></Step></Chase>\r"
                             "\t<Screen><Num>1</Num><Preset>7</Preset><Preset>x:5</Preset></Screen>\r"
                             "\t<Screen><Num>9</Num></Screen>\r\t<Screen><Num>4</Num></Screen>\r"));
  EXPECT_EQ(store.Fader_Names[2].Name, "");  // neither <name> nor <Name id="1"> is <Name>
  EXPECT_EQ(store.Fader_Names[2].Desc, "Spot");
  const ButtonFunction& button = store.Button_Functions[2];  // Number 2.5 is button 2
  EXPECT_EQ(std::tuple(button.Value, button.Level, button.Channel1, button.Data1), std::tuple(4, 0, 12, 100));
  EXPECT_EQ(store.Fader_Functions[1].Value, 7);  // <Fader> is not <Fade>, nor the reverse
  EXPECT_EQ(store.Chase_Table[3].Fade[1][1], kChaseFade);
  EXPECT_EQ(store.Screens[1].Preset[0], 5);  // "7" has no colon: 0:0; "x:5" is 0:5
  EXPECT_EQ(store.Screen_Count, 9) << "the highest screen read";
  read_project(store, rooted(""));
  EXPECT_EQ(store.Screen_Count, 9) << "no screens in the file: kept";
}

// The desk's own true is -1; any number but 0 is true, and a missing flag is false.
TEST_F(ReaderTest, MinusOneReadsTrueForEveryFlagAndAMissingFlagIsFalse) {
  store.Fader_Names[6].Cross_F = true;
  read_project(store, rooted("\t<FaderName><Num>1</Num><Desc>A</Desc><Main_F>-1</Main_F>"
                             "<Cross_F>-1</Cross_F></FaderName>\r"
                             "\t<FaderName><Num>6</Num><Desc>Spot</Desc><Main_F>1</Main_F></FaderName>\r"
                             "\t<Button><Number>0</Number><Latch>-1</Latch><Preset>-1</Preset></Button>\r"
                             "\t<Screen><Num>1</Num><Instant>-1</Instant><Auto>-1</Auto></Screen>\r"));
  EXPECT_EQ(std::tuple(store.Fader_Names[1].Main_F, store.Fader_Names[1].Cross_F, store.Button_Functions[0].Latch),
            std::tuple(true, true, true));
  EXPECT_EQ(std::tuple(store.Button_Functions[0].Preset, store.Screens[1].Instant, store.Screens[1].Auto),
            std::tuple(true, true, true));
  EXPECT_EQ(std::tuple(store.Fader_Names[6].Main_F, store.Fader_Names[6].Cross_F), std::tuple(true, false));
  EXPECT_EQ(store.Fader_Names[6].Name, "");  // missing fields read empty
}

// A hand-edited file may put the chase's own fields after its steps.
TEST_F(ReaderTest, AChaseReadsItsOwnFieldsWhereverTheyStandAmongItsSteps) {
  const LoadReport report = read_project(
      store, rooted("\t<Chase>\r\t\t<Num>5</Num>\r\t\t<Steps>2</Steps>\r"
                    "\t\t<Step>\r\t\t\t<Num>1</Num>\r\t\t\t<Speed>02</Speed>\r\t\t\t<Data>9:8</Data>\r\t\t</Step>\r"
                    "\t\t<Name>Strobe</Name>\r"
                    "\t\t<Step>\r\t\t\t<Num>2</Num>\r\t\t\t<Speed>03</Speed>\r\t\t</Step>\r"
                    "\t\t<Loop>4</Loop>\r\t\t<Channels>10:11</Channels>\r\t</Chase>\r"));
  EXPECT_FALSE(report.damaged());
  const ChaseRec& chase = store.Chase_Table[5];
  EXPECT_EQ(std::tuple(chase.Name, chase.Loop, chase.Channels[1], chase.Speed[1], chase.Speed[2]),
            std::tuple("Strobe", 4, 11, 2.0, 3.0));
  EXPECT_EQ(chase.Data[1][0], 9);  // a step's Data is not the chase's Channels
  EXPECT_EQ(store.Chase_Table[1].Steps, 1) << "a step's Num is not the chase's";
}

// Every value is kept to what the control that edits it can hold, and each
// change is noted; a block index beyond its table skips the block.
TEST_F(ReaderTest, ValuesBeyondTheirControlsAreClampedAndNoted) {
  const LoadReport report = read_project(
      store, rooted("\t<Project>\r\t\t<Adapter>9</Adapter>\r\t\t<BCF>-2</BCF>\r\t</Project>\r"
                    "\t<Submix><Num>1</Num><Level>3:300</Level></Submix>\r"
                    "\t<Chase>\r\t\t<Num>0</Num>\r\t\t<Steps>0</Steps>\r\t\t<Loop>101</Loop>\r"
                    "\t\t<Fixture>30</Fixture>\r\t\t<Channels>63:-4</Channels>\r"
                    "\t\t<Step><Num>1</Num><Speed>-0.1</Speed><Time>02e-10</Time>"
                    "<Data>256:-1</Data><Fade>3:-1</Fade></Step>\r"
                    "\t\t<Step><Num>2</Num><Speed>01e+05</Speed><Time>02.5e+01</Time></Step>\r\t</Chase>\r"
                    "\t<Chase><Num>1</Num><Steps>150</Steps><Loop>-3</Loop></Chase>\r"
                    "\t<Page><Num>5</Num><Name>Sixth</Name></Page>\r"));
  EXPECT_EQ(store.Adapter, 0);  // no such adapter: output off, and said so
  EXPECT_EQ(std::tuple(store.BCF_Mode, store.Submix[1].Level[0]), std::tuple(0, 255));
  const ChaseRec& chase = store.Chase_Table[0];
  EXPECT_EQ(std::tuple(chase.Steps, chase.Loop, chase.Fixture), std::tuple(1, 100, 20));
  EXPECT_EQ(chase.Channels[0], 62);  // desk channel 63, the highest the box takes
  EXPECT_EQ(std::tuple(chase.Channels[1], chase.Speed[1], chase.Time[1], chase.Data[1][0], chase.Data[1][1]),
            std::tuple(0, 0.1, 0.1, 255, 0));
  EXPECT_EQ(std::tuple(chase.Fade[1][0], chase.Fade[1][1], chase.Speed[2]), std::tuple(kChaseStep, kChaseOff, 240.0));
  EXPECT_EQ(chase.Time[2], 25.0);  // exponent form reads too
  EXPECT_EQ(std::tuple(store.Chase_Table[1].Steps, store.Chase_Table[1].Loop, store.Pages[5].Name),
            std::tuple(32, 0, ""));

  ASSERT_EQ(report.clamped.count(), 17u);
  EXPECT_EQ(report.clamped.kept()[0].block, "Project block 1");
  EXPECT_EQ(report.clamped.kept()[0].reason, "Adapter 9 set to 0");
  EXPECT_EQ(report.clamped.kept()[3].block, "Chase block 1");
  ASSERT_EQ(report.skipped.count(), 1u);
  EXPECT_EQ(report.skipped.kept()[0].reason, "Num 5 is out of range");
}

// A file cut short loads every block that ended before the cut and says at
// which line reading stopped; a closing tag missing in mid-file costs only its block.
TEST_F(ReaderTest, AFileThatEndsEarlyLoadsItsWholeBlocksAndSaysWhereItStopped) {
  const std::string head =
      "<Lumaris_XML>\r"                                     // 1
      "\t<Submix>\r\t\t<Num>1</Num>\r\t\t<Name>Kept</Name>\r\t</Submix>\r"  // 2..5
      "\t<Chase>\r\t\t<Num>2</Num>\r\t\t<Name>Cut</Name>\r"  // 6..8
      "\t\t<Steps>3</Steps>\r";                              // 9
  LoadReport report = read_project(store, head);
  EXPECT_EQ(std::tuple(report.cut_at_line, store.Submix[1].Name, store.Chase_Table[2].Name),
            std::tuple(6, "Kept", ""));
  ASSERT_EQ(report.skipped.count(), 1u);
  EXPECT_EQ(report.skipped.kept()[0].reason, "the file ends before </Chase>");

  // Cut just after a whole block: everything loads, the missing end still counts.
  report = read_project(fresh, "<Lumaris_XML>\r\t<Page>\r\t\t<Num>1</Num>\r\t\t<Name>P</Name>\r\t</Page>\r");
  EXPECT_EQ(std::tuple(report.cut_at_line, fresh.Pages[1].Name, report.damaged()), std::tuple(5, "P", true));

  reset_store(store);
  report = read_project(store, rooted("\t<Submix>\r\t\t<Num>1</Num>\r\t\t<Name>Open</Name>\r"
                                      "\t<Submix>\r\t\t<Num>2</Num>\r\t\t<Name>Next</Name>\r\t</Submix>\r"));
  EXPECT_EQ(std::tuple(report.cut_at_line, store.Submix[1].Name, store.Submix[2].Name), std::tuple(0, "", "Next"));
  ASSERT_EQ(report.skipped.count(), 1u);
  EXPECT_EQ(report.skipped.kept()[0].reason, "</Submix> is missing");
}

TEST(RoundTrip, RandomShowsReadBackAndSaveToTheSameBytes) {
  for (std::uint32_t seed = 1; seed <= 40; ++seed) {
    Store show;
    build_random_show(show, seed);
    const std::string bytes = file_bytes(saved(show));
    Store loaded;
    reset_store(loaded);
    EXPECT_FALSE(read_project(loaded, windows_1252_to_utf8(bytes)).damaged()) << "seed " << seed;
    EXPECT_EQ(file_bytes(saved(loaded)), bytes) << "seed " << seed;
  }
}

}  // namespace
}  // namespace lumaris
