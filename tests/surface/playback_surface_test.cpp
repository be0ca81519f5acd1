#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "playback/playback_chases.h"
#include "playback/playback_panel.h"
#include "tests/surface/surface_desk.h"

namespace lumaris {
namespace {

using Bytes = std::vector<std::uint8_t>;

class PlaybackSurfaceTest : public ::testing::Test {
 protected:
  SurfaceDesk t;
  void SetUp() override {
    t.connected();
    t.surface().next_mode_clicked();  // " Playback Desk"
    t.midi.clear_sent();
  }
};

TEST_F(PlaybackSurfaceTest, ArrivingInPlaybackModeSendsThePlaybackFadersAndClearAllResetsThem) {
  t.store().Playback_Fader_Level[1] = 255;
  t.store().Desk_Level[1] = 40;
  t.surface().previous_mode_clicked();
  t.midi.clear_sent();
  t.surface().next_mode_clicked();
  EXPECT_EQ(t.surface().mode_box(), " Playback Desk");
  EXPECT_EQ(t.midi.sent(), fader_moves({0, 127, 0, 0, 0, 0, 0, 0}));

  t.midi.clear_sent();
  t.store().Playback_Fader_Level[0] = 200;
  t.playback().Clear_All();
  const Bytes& sent = t.midi.sent();
  // Faders 0..7 to 0 and buttons 0..15 off, each with its own controller.
  EXPECT_EQ(sent.size(), (8u + 16u) * 3);
  EXPECT_EQ((Bytes{sent[0], sent[1], sent[2], sent[3], sent[4], sent[5]}), (Bytes{0xB0, 81, 0, 0xB0, 65, 0}));
}

TEST_F(PlaybackSurfaceTest, SurfaceButtonsPlayThePlaybackButtonsWhileHeld) {
  Store& store = t.store();
  store.Button_Functions[3] = {};  // Submix 0, not latched
  store.Button_Functions[3].Function = kFunctionSubmix;
  store.Button_Functions[3].Level = 255;
  store.Submix[0].Chan[0] = 5;
  store.Submix[0].Level[0] = 180;
  t.cc(68, 64);  // button 4 pressed: 64 and up is "on"
  EXPECT_EQ(std::tuple(store.Playback_Button_State[3], t.surface().monitor_box()), std::tuple(true, " 3 On"));
  EXPECT_GT(store.Playback_Live_Out[4], 0) << "the live output is recomputed";
  t.cc(68, 63);
  EXPECT_EQ(std::tuple(store.Playback_Button_State[3], t.surface().monitor_box(), store.Playback_Live_Out[4]),
            std::tuple(false, " 3 Off", 0));
  EXPECT_TRUE(t.midi.sent().empty());
}

TEST_F(PlaybackSurfaceTest, SequenceButtonsAndFadersStartAndStopTheirChase) {
  Store& store = t.store();
  store.Button_Functions[0].Function = kFunctionSequence;
  store.Button_Functions[0].Value = 4;
  store.Button_Functions[0].Level = 200;
  PlaybackChases& chases = t.playback().chases();
  t.cc(65, 127);
  EXPECT_EQ(std::tuple(chases.running(4), chases.Seq_Level(4)), std::tuple(true, 200));
  t.cc(65, 0);
  EXPECT_FALSE(chases.running(4));

  store.Fader_Functions[10].Function = kFunctionSequence;
  store.Fader_Functions[10].Value = 6;
  t.cc(90, 127);  // group 2: playback faders 8..15
  t.midi.clear_sent();
  t.cc(83, 60);   // fader 3 of the group: playback fader 10
  EXPECT_EQ(std::tuple(store.Playback_Fader_Level[10], chases.running(6), chases.Seq_Level(6)),
            std::tuple(120, true, 120));
  EXPECT_TRUE(t.midi.sent().empty()) << "a fader from the surface is not echoed";
  t.playback().panel().Fader_Move(10, 255 - 64);  // the screen's next move is
  EXPECT_EQ(t.midi.sent(), (Bytes{0xB0, 83, 32}));
  t.cc(83, 0);
  EXPECT_FALSE(chases.running(6));
}

TEST_F(PlaybackSurfaceTest, ButtonLedsFollowTheDeskInTheGroupShown) {
  Store& store = t.store();
  store.Button_Functions[2].Function = kFunctionSubmix;
  store.Button_Functions[2].Latch = true;
  t.playback().panel().Button_Press(2, MouseButton::Left);
  EXPECT_EQ(t.midi.sent(), (Bytes{0xB0, 67, 127}));  // button 3 LED on

  t.midi.clear_sent();
  BCF& surface = t.surface();
  surface.BCF_Button_Update(PlaybackElement(16), true);  // group 1 shows buttons 16..32 from controller 73
  EXPECT_TRUE(t.midi.sent().empty());
  t.cc(90, 127);
  t.midi.clear_sent();
  surface.BCF_Button_Update(PlaybackElement(16), true);
  surface.BCF_Button_Update(PlaybackElement(32), false);
  surface.BCF_Button_Update(PlaybackElement(15), true);
  EXPECT_EQ(t.midi.sent(), (Bytes{0xB0, 73, 127, 0xB0, 89, 0}));
  t.cc(91, 127);
  t.midi.clear_sent();
  surface.BCF_Button_Update(PlaybackElement(32), true);
  surface.BCF_Button_Update(PlaybackElement(48), true);
  surface.BCF_Button_Update(PlaybackElement(49), true);
  EXPECT_EQ(t.midi.sent(), (Bytes{0xB0, 81, 127, 0xB0, 97, 127}));
  t.cc(92, 127);
  t.midi.clear_sent();
  surface.BCF_Button_Update(PlaybackElement(40), true);
  EXPECT_TRUE(t.midi.sent().empty()) << "group 4 has no LEDs to light";
}

}  // namespace
}  // namespace lumaris
