#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "tests/surface/surface_desk.h"

namespace lumaris {
namespace {

using Bytes = std::vector<std::uint8_t>;

class MainDeskSurfaceTest : public ::testing::Test {
 protected:
  SurfaceDesk t;
  void SetUp() override { t.connected(); }
};

// Only the bank of eight channels the surface shows is fed back, and a move
// that came from the surface is not echoed to it.
TEST_F(MainDeskSurfaceTest, ASurfaceFaderMoveSetsTheChannelAndOnlyTheScreensMovesInTheBankAreSent) {
  t.cc(90, 127);  // group button 2: channels 9..16
  t.midi.clear_sent();
  t.cc(84, 50);   // fader 4 of the group
  EXPECT_EQ(std::tuple(t.store().Desk_Level[11], t.main_desk().strips()[11].level_box), std::tuple(100, "100"));
  EXPECT_TRUE(t.midi.sent().empty()) << "the motor must not fight the hand";

  t.main_desk().channel_fader_changed(7, 0);   // channel 8: group 1, not shown
  t.main_desk().channel_fader_changed(16, 0);  // channel 17: group 3, not shown
  EXPECT_TRUE(t.midi.sent().empty());
  t.main_desk().channel_fader_changed(11, 255 - 31);  // later, the operator on the screen
  EXPECT_EQ(t.midi.sent(), (Bytes{0xB0, 84, 15}));  // fader 4, 31 / 2
}

TEST_F(MainDeskSurfaceTest, GroupButtonFourTurnsTheOtherLedsOffAndSendsItsFaders) {
  for (int ch = 24; ch < 32; ++ch) t.store().Desk_Level[ch] = static_cast<std::int16_t>(ch * 8);
  t.cc(92, 127);
  Bytes expected{0xB0, 89, 0, 0xB0, 90, 0, 0xB0, 91, 0};  // group LEDs 1..3 off
  const Bytes faders = fader_moves({96, 100, 104, 108, 112, 116, 120, 124});
  expected.insert(expected.end(), faders.begin(), faders.end());
  EXPECT_EQ(std::tuple(t.midi.sent(), t.surface().Fader_Group(), t.console().status().main()),
            std::tuple(expected, 3, " BCF Fader Group  3"));
  EXPECT_EQ(t.surface().monitor_box(), " 3 On");

  t.midi.clear_sent();
  t.cc(90, 0);  // releasing another group button chooses nothing
  EXPECT_EQ(std::tuple(t.surface().Fader_Group(), t.surface().monitor_box(), t.midi.sent().empty()),
            std::tuple(3, " 1 Off", true));
}

TEST_F(MainDeskSurfaceTest, OnFaderPageTwoTheFadersAndTheCommandLineMoveThatPagesStrips) {
  t.store().Desk_Level[33] = 66;  // channel 34: strip 2 of page 2
  t.main_desk().Inc_Channel_Click();
  EXPECT_EQ(t.midi.sent(), fader_moves({0, 33, 0, 0, 0, 0, 0, 0}));
  t.midi.clear_sent();

  t.cc(83, 10);  // surface fader 3: channel 35
  EXPECT_EQ(std::tuple(t.store().Desk_Level[34], t.store().Desk_Level[2]), std::tuple(20, 0));

  t.main_desk().channel_fader_changed(4, 255 - 90);  // channel 37 from the screen
  EXPECT_EQ(t.midi.sent(), (Bytes{0xB0, 85, 45}));
  t.midi.clear_sent();

  t.store().Submix[0].Chan[0] = 34;  // a submix holding channel 34 at 200
  t.store().Submix[0].Level[0] = 200;
  t.main_desk().Submix_Recal_Click();
  EXPECT_EQ(t.midi.sent(), fader_moves({0, 100, 0, 0, 0, 0, 0, 0}));
  t.midi.clear_sent();

  t.main_desk().Clearall_Click();
  EXPECT_EQ(t.midi.sent().size(), 8u * 3);
  t.midi.clear_sent();

  // The command line names desk channels; a channel reaches the fader of its
  // strip only while its page is up.
  t.type("37.50\n");  // channel 37: strip 5 of page 2
  EXPECT_EQ(t.store().Desk_Level[36], 128);
  EXPECT_EQ(t.midi.sent(), (Bytes{0xB0, 85, 64}));  // fader 5 (controller 85), 128 / 2
  t.midi.clear_sent();

  t.type("5.100\n");  // channel 5 is on page 1: no fader shows it now
  EXPECT_EQ(std::tuple(t.store().Desk_Level[4], t.midi.sent().empty()), std::tuple(255, true));
}

TEST_F(MainDeskSurfaceTest, MonitorOnlyControlsShowTheirNumberAndChangeNothing) {
  const Store before = t.store();
  t.cc(40, 127);  // encoder push 8
  EXPECT_EQ(t.surface().monitor_box(), " 7 On");
  t.cc(94, 0);    // the second further switch
  EXPECT_EQ(t.surface().monitor_box(), " 61 Off");
  t.cc(66, 127);  // a button: the playback desk is not driven
  EXPECT_EQ(t.surface().monitor_box(), " 1 On");
  t.cc(5, 127);   // an encoder: ignored
  EXPECT_EQ(std::tuple(t.surface().monitor_box(), t.store().Desk_Level, t.store().Playback_Button_State),
            std::tuple(" 1 On", before.Desk_Level, before.Playback_Button_State));
  EXPECT_TRUE(t.midi.sent().empty());
}

TEST_F(MainDeskSurfaceTest, InOtherModesTheSurfaceChangesNothing) {
  for (const int mode : {0, 3, 4, 5, 6}) {
    t.store().BCF_Mode = static_cast<std::int16_t>(mode);
    t.cc(81, 127);
    t.cc(65, 127);
    t.cc(92, 127);
    EXPECT_EQ(t.store().Desk_Level[0], 0) << "mode " << mode;
    EXPECT_FALSE(t.store().Playback_Button_State[0]) << "mode " << mode;
    EXPECT_EQ(t.surface().Fader_Group(), 0) << "mode " << mode;
  }
  EXPECT_TRUE(t.midi.sent().empty());
}

// Nothing is touched from the MIDI thread, and only a whole three-byte message acts.
TEST_F(MainDeskSurfaceTest, MessagesWaitForTheDeskThreadAndBrokenOnesChangeNothing) {
  t.midi.deliver({0xB0, 81, 64});
  EXPECT_EQ(t.store().Desk_Level[0], 0);
  t.desk.scheduler.run_posted();
  EXPECT_EQ(t.store().Desk_Level[0], 128);
  t.play({0xB0, 81});            // cut short
  t.play({0xB0, 81, 0xC8});      // a data byte with its top bit set
  EXPECT_EQ(t.store().Desk_Level[0], 128);
  t.play({0x90, 81, 10, 0x00});  // a note on any channel still reads as controller and value
  EXPECT_EQ(t.store().Desk_Level[0], 20);
}

}  // namespace
}  // namespace lumaris
