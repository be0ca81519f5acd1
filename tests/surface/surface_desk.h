#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "core/main_desk.h"
#include "keypad/cli.h"
#include "keypad/terminal_keypad.h"
#include "playback/playback_desk.h"
#include "surface/bcf.h"
#include "surface/bcf_setup.h"
#include "tests/support/fake_midi.h"
#include "tests/support/test_console.h"

namespace lumaris {

// A desk whose MIDI ports are fake: a BCF2000 can be plugged in, played, and
// the bytes it was sent read back.
struct SurfaceDesk {
  FakeMidi midi;
  TestConsole desk;

  SurfaceDesk() {
    desk.services.midi = &midi;
    desk.build();
  }
  Console& console() { return *desk.console; }
  Store& store() { return desk.store(); }
  BCF& surface() { return console().surface(); }
  BcfSetup& setup() { return console().surface_setup(); }
  MainDesk& main_desk() { return console().main_desk(); }
  PlaybackDesk& playback() { return console().playback_desk(); }

  // A BCF2000 as ALSA lists it, next to a port that is not one.
  void plug_in() {
    midi.set_ports({"Midi Through:Midi Through Port-0 14:0", "BCF2000:BCF2000 Port 1 20:0"},
                   {"Midi Through:Midi Through Port-0 14:0", "BCF2000:BCF2000 Port 1 20:0"});
  }
  // The operator opens "&BCF2000 Setup" and presses the connect button.
  void connect() {
    main_desk().Menu_Click("bcf2000-setup");
    setup().connect_clicked();
  }
  // Plugged in and connected, with nothing sent yet.
  void connected() {
    plug_in();
    connect();
    midi.clear_sent();
  }
  // The surface sends one message; it becomes a desk event of its own.
  void play(const std::vector<std::uint8_t>& message) {
    midi.deliver(message);
    desk.scheduler.run_posted();
  }
  // Keys on the command line as a terminal reads them: "5.50\n" is keypad 5, the
  // decimal key, 5, 0, Enter.
  void type(std::string_view keys) {
    for (const char c : keys) {
      const int code = TerminalKeypad::key_of(c);
      if (code != 0) console().cli().CLI_Key(code);
    }
  }
  // A Control Change on channel 1, as the surface sends it.
  void cc(int controller, int value) {
    play({0xB0, static_cast<std::uint8_t>(controller), static_cast<std::uint8_t>(value)});
  }
};

// The Control Changes that move the eight motor faders (controllers 81..88) to these values.
inline std::vector<std::uint8_t> fader_moves(std::initializer_list<int> values) {
  std::vector<std::uint8_t> bytes;
  std::uint8_t controller = 81;
  for (const int value : values) bytes.insert(bytes.end(), {0xB0, controller++, static_cast<std::uint8_t>(value)});
  return bytes;
}

}  // namespace lumaris
