#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "core/surface_feedback.h"
#include "keypad/cli.h"
#include "keypad/terminal_keypad.h"
#include "tests/support/test_console.h"

namespace lumaris {

// What the control surface was told.
struct RecordingSurface final : SurfaceFeedback {
  std::vector<std::pair<int, int>> faders;
  void BCF_Fader_Update(SurfaceStrip strip, int level) override { faders.emplace_back(strip.index(), level); }
  void BCF_Fader_Update(PlaybackElement fader, int level) override { faders.emplace_back(fader.number(), level); }
};

// A started console and its command line. Keys are typed as the terminal reads
// them: "5.50\n" is keypad 5, the decimal key, 5, 0, Enter.
struct KeypadDesk {
  TestConsole t;
  RecordingSurface surface;

  KeypadDesk() {
    t.build();
    t.console->attach_surface(&surface);
  }
  CLI& cli() { return t.console->cli(); }
  Store& store() { return t.store(); }
  const std::string& main_status() { return t.console->status().main(); }
  const std::string& playback_status() { return t.console->status().playback(); }
  int channel(int n) { return store().Desk_Level[n - 1]; }
  int fader(int n) { return store().Playback_Fader_Level[n - 1]; }

  void type(std::string_view keys) {
    for (const char c : keys) {
      const int code = TerminalKeypad::key_of(c);
      if (code != 0) cli().CLI_Key(code);
    }
  }
};

}  // namespace lumaris
