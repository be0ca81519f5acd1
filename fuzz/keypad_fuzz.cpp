// Any sequence of key-downs reaching the command line of a console that holds a
// show with playback faders of every function: no index leaves its array, no
// level leaves 0..255, nothing crashes. Each input byte is one key code.
#include <cstdint>
#include <cstdlib>

#include "keypad/cli.h"
#include "keypad/keypad_keys.h"
#include "tests/support/show_builders.h"
#include "tests/support/test_console.h"

namespace {

struct Desk {
  lumaris::TestConsole console;
  Desk() {
    console.build();
    lumaris::build_maximal_show(console.store());
    for (int f = 0; f < lumaris::kPlaybackFaders; ++f) {
      console.store().Fader_Functions[f].Function = static_cast<std::int16_t>(f % 5);
    }
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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Desk desk;  // one console for the whole run, like the real program
  lumaris::CLI& cli = desk.console.console->cli();
  for (std::size_t i = 0; i < size; ++i) {
    cli.CLI_Key(key_of(data[i]));
    if (cli.Token_Index() < 0 || cli.Token_Index() >= lumaris::CLI::kTokens) std::abort();
  }
  const lumaris::Store& store = desk.console.store();
  for (const int level : store.Desk_Level) {
    if (level < 0 || level > 255) std::abort();
  }
  for (const int level : store.Playback_Fader_Level) {
    if (level < 0 || level > 255) std::abort();
  }
  desk.console.scheduler.advance(250);  // the chases the line started take their steps
  return 0;
}
