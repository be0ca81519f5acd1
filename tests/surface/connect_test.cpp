#include <gtest/gtest.h>

#include <fstream>

#include "console/project/project_file.h"
#include "console/window_registry.h"
#include "tests/support/temp_folder.h"
#include "tests/surface/surface_desk.h"

namespace lumaris {
namespace {

class ConnectTest : public ::testing::Test {
 protected:
  SurfaceDesk t;

  void expect_not_found() {
    EXPECT_EQ(t.surface().Text2(), " No BCF2000 Found");
    EXPECT_EQ(t.setup().Text1(), " No BCF2000 Found");
    EXPECT_EQ(t.console().status().main(), " No BCF2000 Found");
    EXPECT_EQ(t.console().status().playback(), " No BCF2000 Found");
    EXPECT_EQ(t.store().BCF_Mode, 0);
    EXPECT_EQ(t.surface().Text3(), " Not Connected");
    EXPECT_FALSE(t.midi.input_open());
    EXPECT_FALSE(t.midi.output_open());
  }
};

TEST_F(ConnectTest, TheSetupWindowIsOnTheMainDeskMenuAndKeepsTheControlWindowHidden) {
  EXPECT_TRUE(t.console().windows().can_open("BCF2000_setup"));
  t.main_desk().Menu_Click("BCF2000_setup");
  EXPECT_TRUE(t.setup().visible());
  EXPECT_EQ(t.setup().caption(), "BCF Setup");
  EXPECT_FALSE(t.surface().visible());
  t.setup().Command2_Click();
  EXPECT_TRUE(t.surface().visible());
  EXPECT_EQ(t.surface().caption(), "BCF2000 Control");
}

TEST_F(ConnectTest, WithoutAnyMidiPortNoSurfaceIsFound) {
  t.connect();
  expect_not_found();
  EXPECT_EQ(t.midi.opens(), 0);
}

TEST_F(ConnectTest, ASurfaceSeenOnlyAmongTheInputsOpensNothing) {
  t.midi.set_ports({"BCF2000:BCF2000 Port 1 20:0"}, {"Midi Through:Midi Through Port-0 14:0"});
  t.connect();
  expect_not_found();
  EXPECT_EQ(t.midi.opens(), 0);
}

TEST_F(ConnectTest, OnlyAClientNamedExactlyBcf2000IsTheSurface) {
  EXPECT_TRUE(is_bcf2000_port("BCF2000"));
  EXPECT_TRUE(is_bcf2000_port("BCF2000:BCF2000 Port 2 20:1"));
  EXPECT_FALSE(is_bcf2000_port("BCF2000 Clone:BCF2000 20:0"));
  EXPECT_FALSE(is_bcf2000_port("Midi Through:BCF2000 14:0"));
  EXPECT_FALSE(is_bcf2000_port("BCR2000:BCR2000 Port 1 24:0"));
}

TEST_F(ConnectTest, FoundOnBothSidesTheLastMatchingPortsOpenInMainDeskMode) {
  t.midi.set_ports({"BCF2000:BCF2000 Port 1 20:0", "BCF2000:BCF2000 Port 2 20:1", "Other:x 30:0"},
                   {"BCF2000:BCF2000 Port 1 20:0", "Other:x 30:0"});
  t.connect();
  EXPECT_EQ(t.surface().BCF_In_Device(), 1);
  EXPECT_EQ(t.surface().BCF_In_Name(), "BCF2000:BCF2000 Port 2 20:1");
  EXPECT_EQ(t.surface().BCF_Out_Device(), 0);
  EXPECT_EQ(t.midi.open_input_index(), 1);
  EXPECT_EQ(t.midi.open_output_index(), 0);
  EXPECT_EQ(t.surface().Text2(), " BCF2000 Connection Made ");
  EXPECT_EQ(t.setup().Text1(), " Connection Made");
  EXPECT_EQ(t.console().status().main(), " BCF2000 Connection Made");
  EXPECT_EQ(t.console().status().playback(), " BCF2000 Connection Made");
  EXPECT_EQ(t.store().BCF_Mode, 1);
  EXPECT_EQ(t.surface().Text3(), " Main Desk");
  EXPECT_FALSE(t.surface().Pannel_Dec_enabled());
  EXPECT_TRUE(t.surface().Pannel_Inc_enabled());
  EXPECT_TRUE(t.desk.dialogs.messages().empty());
}

TEST_F(ConnectTest, AnOutputThatWillNotOpenIsSaidAndTheFadersStillWork) {
  t.plug_in();
  t.midi.refuse_output("busy");
  t.connect();
  ASSERT_EQ(t.desk.dialogs.messages().size(), 1u);
  EXPECT_EQ(t.desk.dialogs.messages()[0].title, "Open MIDI Output port");
  EXPECT_EQ(t.desk.dialogs.messages()[0].text, "Cannot open MIDI Output port");
  EXPECT_EQ(t.desk.dialogs.messages()[0].icon, MessageIcon::Exclamation);
  EXPECT_EQ(t.store().BCF_Mode, 1);
  t.cc(81, 100);
  EXPECT_EQ(t.store().Desk_Level[0], 200);
  EXPECT_TRUE(t.midi.sent().empty());
}

TEST_F(ConnectTest, ProgramBuiltWithoutMidiFindsNoSurface) {
  TestConsole bare;
  bare.build();
  bare.console->surface_setup().Command1_Click();
  EXPECT_EQ(bare.store().BCF_Mode, 0);
  EXPECT_EQ(bare.console->status().main(), " No BCF2000 Found");
}

TEST_F(ConnectTest, InputErrorsOtherThanWarningsShowTheirTextAndDisconnect) {
  t.connected();
  t.midi.fail(0, "a warning");
  t.midi.fail(8, "one message dropped");
  t.desk.scheduler.run_posted();
  EXPECT_EQ(t.store().BCF_Mode, 1);
  EXPECT_TRUE(t.desk.dialogs.messages().empty());
  t.midi.fail(25, "MidiInAlsa: the sequencer went away");
  EXPECT_EQ(t.store().BCF_Mode, 1) << "errors are desk events too, handled in turn";
  t.desk.scheduler.run_posted();
  ASSERT_EQ(t.desk.dialogs.messages().size(), 1u);
  EXPECT_EQ(t.desk.dialogs.messages()[0].text, "MidiInAlsa: the sequencer went away");
  EXPECT_EQ(t.store().BCF_Mode, 0);
  EXPECT_EQ(t.surface().Text3(), " Not Connected");
}

TEST_F(ConnectTest, StepsRunThroughTheModesBetweenMainDeskAndUserConfig) {
  t.connected();
  const char* names[] = {" Not Connected", " Main Desk", " Playback Desk", " Chase Desk",
                         " Channel Set", " Submix Set", " User Config"};
  for (int mode = 2; mode <= 6; ++mode) {
    t.surface().Pannel_Inc_Click();
    EXPECT_EQ(t.store().BCF_Mode, mode);
    EXPECT_EQ(t.surface().Text3(), names[mode]);
    EXPECT_TRUE(t.surface().Pannel_Dec_enabled());
  }
  EXPECT_FALSE(t.surface().Pannel_Inc_enabled());
  t.surface().Pannel_Inc_Click();
  EXPECT_EQ(t.store().BCF_Mode, 6);
  for (int i = 0; i < 7; ++i) t.surface().Pannel_Dec_Click();
  EXPECT_EQ(t.store().BCF_Mode, 1);
  EXPECT_FALSE(t.surface().Pannel_Dec_enabled());
}

TEST_F(ConnectTest, ClosingTheProgramClosesBothPorts) {
  t.connected();
  t.console().shutdown();
  EXPECT_FALSE(t.midi.input_open());
  EXPECT_FALSE(t.midi.output_open());
}

// A show saved while the surface drove the playback desk.
bool load_show_with_surface_mode(SurfaceDesk& t, const TempFolder& folder, int mode) {
  const std::string path = folder.file("surface.xml");
  std::ofstream(path, std::ios::binary)
      << "<Lumaris_XML>\r\t<Project>\r\t\t<Version>1</Version>\r\t\t<BCF>" << mode
      << "</BCF>\r\t</Project>\r</Lumaris_XML>\r";
  return t.console().project_file().Load_File(path);
}

TEST_F(ConnectTest, AShowWithASurfaceModeConnectsAtLoadAndComesBackInItsMode) {
  TempFolder folder;
  t.plug_in();
  ASSERT_TRUE(load_show_with_surface_mode(t, folder, 2));
  EXPECT_TRUE(t.midi.input_open());
  EXPECT_EQ(t.store().BCF_Mode, 2);
  EXPECT_EQ(t.surface().Text3(), " Playback Desk");
  EXPECT_EQ(t.surface().Text2(), " BCF2000 Connection Made ");
}

TEST_F(ConnectTest, AShowWithASurfaceModeLoadsWhereThereIsNoSurface) {
  TempFolder folder;
  ASSERT_TRUE(load_show_with_surface_mode(t, folder, 1));
  EXPECT_EQ(t.store().BCF_Mode, 0);
  EXPECT_EQ(t.surface().Text2(), " No BCF2000 Found");
  EXPECT_TRUE(t.desk.dialogs.messages().empty()) << "an unattended load must not wait on a box";
}

TEST_F(ConnectTest, AShowWithoutASurfaceModeLeavesThePortsAlone) {
  TempFolder folder;
  t.plug_in();
  ASSERT_TRUE(load_show_with_surface_mode(t, folder, 0));
  EXPECT_EQ(t.midi.opens(), 0);
}

}  // namespace
}  // namespace lumaris
