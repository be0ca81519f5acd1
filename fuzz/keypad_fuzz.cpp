// Any input reaching the command line of a console that holds a show with
// playback faders of every function, on the desk or in run mode: no index
// leaves its array, no level leaves 0..255, nothing crashes. The first byte
// chooses the desk (bit 0: in run mode, where C n Enter takes screens) and the
// path (bit 1: the bytes of a terminal, escape sequences and all, through the
// terminal keypad; otherwise each byte is one key code).
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <ostream>
#include <string_view>

#include "keypad/cli.h"
#include "keypad/keypad_keys.h"
#include "keypad/terminal_keypad.h"
#include "playback/playback_desk.h"
#include "playback/run_mode.h"
#include "tests/support/show_builders.h"
#include "tests/support/test_console.h"

namespace {

void require(bool condition) {
  if (!condition) std::abort();
}

struct Desk {
  lumaris::TestConsole console;
  std::ostream report{nullptr};  // what the terminal keypad prints goes nowhere
  std::unique_ptr<lumaris::TerminalKeypad> terminal;

  explicit Desk(bool run_mode) {
    console.build();
    lumaris::Store& store = console.store();
    lumaris::build_maximal_show(store);
    for (int f = 0; f < lumaris::kPlaybackFaders; ++f) {
      store.Fader_Functions[f].Function = static_cast<std::int16_t>(f % 5);
    }
    terminal = std::make_unique<lumaris::TerminalKeypad>(console.console->cli(), console.console->status(),
                                                         report, true);
    if (!run_mode) return;
    // Fewer screens than a C line can name: a take must stay among them.
    store.Screen_Count = 20;
    for (int r = 1; r < lumaris::kScreens; r += 3) store.Screens[r].Auto = true;
    lumaris::PlaybackDesk& playback = console.console->playback_desk();
    playback.Show();
    playback.run_mode().Run_Switch_Click();
    require(store.Run_Mode);
  }
};

// Mostly the keys the line knows, now and then any other code.
int key_of(std::uint8_t byte) {
  using namespace lumaris::keys;
  static constexpr int known[] = {kPad0,     kPad0 + 1,  kPad0 + 2,    kPad0 + 5,  kPad9,
                                  kPadPoint, kPadSlash,  kPadAsterisk, kPadPlus,   kPadMinus,
                                  kLetterC,  kBackspace, kEnter,       kNumLock,   kPad0};
  constexpr std::uint8_t kinds = sizeof known / sizeof known[0];
  return byte < 240 ? known[byte % kinds] : byte;
}

void require_in_range(Desk& desk) {
  const lumaris::CLI& cli = desk.console.console->cli();
  require(cli.Token_Index() >= 0 && cli.Token_Index() < lumaris::CLI::kTokens);
  const lumaris::Store& store = desk.console.store();
  for (const int level : store.Desk_Level) require(level >= 0 && level <= 255);
  for (const int level : store.Playback_Fader_Level) require(level >= 0 && level <= 255);
  require(store.Run_Screen >= 0 && store.Run_Screen <= store.Screen_Count);
  require(store.Crossfade_Level >= 0 && store.Crossfade_Level <= 255);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  // One console of each kind for the whole run, like the real program.
  static Desk on_the_desk(false);
  static Desk running(true);
  Desk& desk = data[0] & 1 ? running : on_the_desk;
  if (data[0] & 2) {
    desk.terminal->feed(std::string_view(reinterpret_cast<const char*>(data + 1), size - 1));
  } else {
    lumaris::CLI& cli = desk.console.console->cli();
    for (std::size_t i = 1; i < size; ++i) cli.CLI_Key(key_of(data[i]));
  }
  require_in_range(desk);
  desk.console.scheduler.advance(250);  // chases take their steps, takes move and complete
  require_in_range(desk);
  return 0;
}
