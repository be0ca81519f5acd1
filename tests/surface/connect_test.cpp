#include <gtest/gtest.h>

#include <fstream>
#include <tuple>

#include "console/project/project_file.h"
#include "tests/support/temp_folder.h"
#include "tests/surface/surface_desk.h"

namespace lumaris {
namespace {

constexpr const char* kBcfPort = "BCF2000:BCF2000 Port 1 20:0";
constexpr const char* kThroughPort = "Midi Through:Midi Through Port-0 14:0";

class ConnectTest : public ::testing::Test {
 protected:
  SurfaceDesk t;
};

TEST(Bcf2000Port, OnlyAClientNamedExactlyBcf2000IsTheSurface) {
  EXPECT_TRUE(is_bcf2000_port("BCF2000"));
  EXPECT_TRUE(is_bcf2000_port("BCF2000:BCF2000 Port 2 20:1"));
  for (const char* other : {"BCF2000 Clone:BCF2000 20:0", "Midi Through:BCF2000 14:0", "BCR2000:BCR2000 Port 1 24:0"}) {
    EXPECT_FALSE(is_bcf2000_port(other)) << other;
  }
}

// The surface must be among the inputs and among the outputs; a desk built
// without MIDI has neither.
TEST_F(ConnectTest, ASurfaceMissingOnEitherSideOrWithoutMidiIsNotFoundAndOpensNothing) {
  using Ports = std::vector<std::string>;
  for (const auto& [inputs, outputs] : {std::pair{Ports{kBcfPort}, Ports{kThroughPort}},
                                        std::pair{Ports{kThroughPort}, Ports{kBcfPort}}}) {
    SurfaceDesk d;
    d.midi.set_ports(inputs, outputs);
    d.connect();
    EXPECT_EQ(d.surface().connection_box(), " No BCF2000 Found") << inputs[0];
    EXPECT_EQ(std::tuple(d.setup().connection_box(), d.console().status().main(), d.store().BCF_Mode),
              std::tuple(" No BCF2000 Found", " No BCF2000 Found", 0));
    EXPECT_EQ(std::tuple(d.surface().mode_box(), d.midi.opens()), std::tuple(" Not Connected", 0));
  }
  TestConsole bare;
  bare.build();
  bare.console->surface_setup().connect_clicked();
  EXPECT_EQ(std::tuple(bare.store().BCF_Mode, bare.console->status().main()), std::tuple(0, " No BCF2000 Found"));
}

TEST_F(ConnectTest, FoundOnBothSidesTheLastMatchingPortsOpenInMainDeskModeAndTheMotorsMove) {
  t.midi.set_ports({kBcfPort, "BCF2000:BCF2000 Port 2 20:1", "Other:x 30:0"}, {kBcfPort, "Other:x 30:0"});
  t.store().Desk_Level[0] = 255;
  t.store().Desk_Level[7] = 101;
  t.connect();
  EXPECT_EQ(t.midi.sent(), fader_moves({127, 0, 0, 0, 0, 0, 0, 50})) << "the first eight channels, levels / 2";
  EXPECT_EQ(std::tuple(t.surface().BCF_In_Name(), t.midi.open_input_index(), t.midi.open_output_index()),
            std::tuple("BCF2000:BCF2000 Port 2 20:1", 1, 0));
  EXPECT_EQ(std::tuple(t.surface().connection_box(), t.setup().connection_box(), t.console().status().playback()),
            std::tuple(" BCF2000 Connection Made ", " Connection Made", " BCF2000 Connection Made"));
  EXPECT_EQ(std::tuple(t.store().BCF_Mode, t.surface().mode_box(), t.desk.dialogs.messages().empty()),
            std::tuple(1, " Main Desk", true));

  t.console().shutdown();  // closing the program closes both ports
  EXPECT_FALSE(t.midi.input_open());
  EXPECT_FALSE(t.midi.output_open());
}

TEST_F(ConnectTest, AnOutputThatWillNotOpenIsSaidAndTheFadersStillWork) {
  t.plug_in();
  t.midi.refuse_output("busy");
  t.connect();
  ASSERT_EQ(t.desk.dialogs.messages().size(), 1u);
  EXPECT_EQ(std::tuple(t.desk.dialogs.messages()[0].title, t.desk.dialogs.messages()[0].text, t.store().BCF_Mode),
            std::tuple("Open MIDI Output port", "Cannot open MIDI Output port", 1));
  t.cc(81, 100);
  EXPECT_EQ(std::tuple(t.store().Desk_Level[0], t.midi.sent().empty()), std::tuple(200, true));
}

TEST_F(ConnectTest, InputErrorsOtherThanWarningsShowTheirTextAndDisconnect) {
  t.connected();
  t.midi.fail(0, "a warning");
  t.midi.fail(8, "one message dropped");
  t.desk.scheduler.run_posted();
  EXPECT_EQ(std::tuple(t.store().BCF_Mode, t.desk.dialogs.messages().empty()), std::tuple(1, true));
  t.midi.fail(25, "MidiInAlsa: the sequencer went away");
  EXPECT_EQ(t.store().BCF_Mode, 1) << "errors are desk events too, handled in turn";
  t.desk.scheduler.run_posted();
  ASSERT_EQ(t.desk.dialogs.messages().size(), 1u);
  EXPECT_EQ(std::tuple(t.desk.dialogs.messages()[0].text, t.store().BCF_Mode, t.surface().mode_box()),
            std::tuple("MidiInAlsa: the sequencer went away", 0, " Not Connected"));
}

TEST_F(ConnectTest, StepsRunThroughTheModesBetweenMainDeskAndUserConfig) {
  t.connected();
  EXPECT_FALSE(t.surface().previous_mode_enabled());
  const char* names[] = {"", "", " Playback Desk", " Chase Desk", " Channel Set", " Submix Set", " User Config"};
  for (int mode = 2; mode <= 6; ++mode) {
    t.surface().next_mode_clicked();
    EXPECT_EQ(std::tuple(t.store().BCF_Mode, t.surface().mode_box(), t.surface().previous_mode_enabled()),
              std::tuple(mode, names[mode], true));
  }
  EXPECT_FALSE(t.surface().next_mode_enabled());
  t.surface().next_mode_clicked();
  EXPECT_EQ(t.store().BCF_Mode, 6);
  for (int i = 0; i < 7; ++i) t.surface().previous_mode_clicked();
  EXPECT_EQ(std::tuple(t.store().BCF_Mode, t.surface().previous_mode_enabled()), std::tuple(1, false));
}

// A show saved while the surface was in a mode connects at load and returns to
// that mode; without a surface it loads all the same, without a box waiting.
TEST_F(ConnectTest, AShowsSurfaceModeConnectsAtLoadWhereTheSurfaceIsThere) {
  struct Case {
    int saved_mode;
    bool plugged_in;
    int mode_after;
    const char* shown;
    int opens;
  };
  for (const Case& c : {Case{2, true, 2, " Playback Desk", 2}, Case{1, false, 0, " Not Connected", 0},
                        Case{0, true, 0, "", 0}}) {
    SurfaceDesk d;
    TempFolder folder;
    if (c.plugged_in) d.plug_in();
    const std::string path = folder.file("surface.xml");
    std::ofstream(path, std::ios::binary) << "<Lumaris_XML>\r\t<Project>\r\t\t<Version>1</Version>\r\t\t<BCF>"
                                          << c.saved_mode << "</BCF>\r\t</Project>\r</Lumaris_XML>\r";
    ASSERT_TRUE(d.console().project_file().Load_File(path));
    EXPECT_EQ(d.store().BCF_Mode, c.mode_after) << "saved mode " << c.saved_mode;
    EXPECT_EQ(d.midi.opens(), c.opens) << "saved mode " << c.saved_mode;
    if (*c.shown != '\0') {
      EXPECT_EQ(d.surface().mode_box(), c.shown);
    }
    EXPECT_TRUE(d.desk.dialogs.messages().empty()) << "an unattended load must not wait on a box";
  }
}

}  // namespace
}  // namespace lumaris
