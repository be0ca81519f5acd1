#pragma once

#include "playback/button_setup.h"
#include "playback/cue_editor.h"
#include "playback/fader_setup.h"
#include "playback/page_controls.h"
#include "playback/playback_chases.h"
#include "playback/playback_panel.h"
#include "playback/playback_desk.h"
#include "playback/screen_panel.h"
#include "playback/screen_table.h"
#include "tests/support/test_console.h"

namespace lumaris {

// A started console with the playback desk open on page 1.
struct PlaybackTestDesk {
  TestConsole t;
  PlaybackDesk* desk = nullptr;

  PlaybackTestDesk() {
    t.build();
    desk = &t.console->playback_desk();
    desk->Show();
  }
  Store& store() { return t.store(); }
  ScreenPanel& screens() { return desk->screens(); }
  PlaybackPanel& panel() { return desk->panel(); }
  PlaybackChases& chases() { return desk->chases(); }
  const std::string& status() { return t.console->status().playback(); }
  int live(int channel) { return store().Playback_Live_Out[channel - 1]; }
  int seq(int channel) { return store().Playback_Seq_Out[channel - 1]; }

  ButtonFunction& button(int b) { return store().Button_Functions[b]; }
  FaderFunction& fader(int f) { return store().Fader_Functions[f]; }
  // Button b or fader f set up afresh: a function on a submix, chase or screen number.
  ButtonFunction& set_button(int b, int function, int value, int level = 255, bool latch = false) {
    ButtonFunction& r = button(b) = ButtonFunction{};
    r.Latch = latch;
    return set_function(r, function, value, level);
  }
  FaderFunction& set_fader(int f, int function, int value, int level = 255) {
    return set_function(fader(f) = FaderFunction{}, function, value, level);
  }
  template <typename Record>
  static Record& set_function(Record& r, int function, int value, int level) {
    r.Function = static_cast<std::int16_t>(function);
    r.Value = static_cast<std::int16_t>(value);
    r.Level = static_cast<std::int16_t>(level);
    return r;
  }
  // The three channels of a Preset, or the red, green and blue channels of a Colour.
  template <typename Record>
  static Record& on_channels(Record& r, int c1, int c2 = 0, int c3 = 0) {
    r.Channel1 = static_cast<std::int16_t>(c1);
    r.Channel2 = static_cast<std::int16_t>(c2);
    r.Channel3 = static_cast<std::int16_t>(c3);
    return r;
  }
  void press(int i) { panel().Button_Press(i, MouseButton::Left); }
  void release(int i) { panel().Button_Release(i, MouseButton::Left); }
  void click(int i) {
    press(i);
    release(i);
  }
  void fader_to(int i, int level) { panel().Fader_Move(i, 255 - level); }

  // Screen n gets a name and one channel level, recorded from the desk.
  void record(int n, const std::string& name, int channel, int level) {
    if (screens().Current_Screen() != n) screens().Screen_Num_sel_Change(n);
    screens().screen_txt_Change(name);
    store().Desk_Level[channel - 1] = static_cast<std::int16_t>(level);
    screens().Screen_Prog_Click();
  }
};

}  // namespace lumaris
