#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>

#include "core/main_desk.h"
#include "keypad/keypad_keys.h"
#include "platform/num_lock.h"
#include "playback/playback_chases.h"
#include "playback/playback_desk.h"
#include "playback/run_mode.h"
#include "playback/screen_panel.h"
#include "tests/keypad/keypad_desk.h"
#include "tests/support/memory_settings.h"
#include "console/window_registry.h"

namespace lumaris {
namespace {

using History = std::vector<std::string>;

class CommandLine : public ::testing::Test, public KeypadDesk {};

// Levels over channels first..last, or over playback faders when the line marks them.
struct Span {
  int first, last, level;
};
struct LineCase {
  const char* keys;
  std::vector<Span> channels, faders;
  Rgb lamp;
};

// Each line typed on a fresh desk: percentages round half to even, Thru ranges
// are swapped and held to the desk, and an item that fails keeps those already set.
TEST(CommandLineLines, ItemsAndThruRangesSetTheirLevels) {
  const Rgb done = CLI::kLampDone;
  const Rgb error = CLI::kLampError;
  const LineCase cases[] = {
      {"5.50\n", {{5, 5, 128}}, {}, done},
      {"4/.30\n", {{4, 4, 0}}, {{4, 4, 76}}, done},
      {"1*8+12.000", {{1, 8, 255}, {9, 11, 0}, {12, 12, 255}}, {}, done},  // no Enter after three zeros
      {"8*3.10\n", {{2, 2, 0}, {3, 8, 26}, {9, 9, 0}}, {}, done},
      {"0*999.20\n", {{1, 1, 51}, {64, 64, 51}, {65, 65, 0}}, {}, done},
      {"99*60.40\n", {{59, 59, 0}, {60, 64, 102}}, {}, done},
      {"5*0.50\n", {{1, 5, 128}, {6, 6, 0}}, {}, done},  // swapped as typed, then held to 1
      {"1*0.50\n", {{1, 2, 128}, {3, 3, 0}}, {}, done},  // an end below 1 becomes 2
      {"50/*64.100\n", {}, {{49, 49, 0}, {50, 61, 255}}, done},
      {"2+61.40\n", {{2, 2, 102}}, {}, error},
      {"1*3*5.60\n", {{1, 3, 153}, {5, 5, 0}}, {}, error},  // Thru after a Thru item ends the usable line
      {"61+7.30\n", {{7, 7, 76}}, {}, done},                // the final item that succeeds lights green
  };
  for (const LineCase& c : cases) {
    SCOPED_TRACE(c.keys);
    KeypadDesk d;
    // What follows the playback fader levels in the store must stay untouched.
    const auto* past_faders = reinterpret_cast<const char*>(d.store().Playback_Fader_Level.data() + kPlaybackFaders);
    const std::string after_faders(past_faders, 8);
    d.type(c.keys);
    EXPECT_EQ(std::string(past_faders, 8), after_faders);
    for (const Span& s : c.channels) {
      for (int n = s.first; n <= s.last; ++n) EXPECT_EQ(d.channel(n), s.level) << "channel " << n;
    }
    for (const Span& s : c.faders) {
      for (int n = s.first; n <= s.last; ++n) EXPECT_EQ(d.fader(n), s.level) << "fader " << n;
    }
    EXPECT_EQ(d.cli().CLI_Status(), c.lamp);
  }
}

TEST_F(CommandLine, AnAssignmentRecordsTheLineLightsGreenAndRedrawsTheDesk) {
  type("5.50\n");
  EXPECT_EQ(std::tuple(main_status(), playback_status(), cli().CLI_Error(), cli().String_In(), cli().Token_Index()),
            std::tuple("CLI -5 @ 50 ", "CLI -5 @ 50 ", false, "", 0));
  EXPECT_EQ(t.console->main_desk().strips()[4].level_box, "128");
  type("4/.30\n1*8+12.000 2+61.40\n");
  EXPECT_EQ(cli().history_list(), (History{"5 @ 50 ", "S4 @ 30 ", "1 Thru 8 + 12 @ 100 ", "2 + 61 @ 40 "}))
      << "a fader number shows with S; an execution error still enters the history";
  EXPECT_EQ(main_status(), "CLI -2 + 61 @ 40 ");
}

TEST_F(CommandLine, TheFirstCommandAfterTheWindowLoadsAlreadyWorks) {
  t.console->windows().open("command-line");
  type("c");
  EXPECT_EQ(cli().Tokens()[0], "c") << "the first command starts at token 0";
  type("\n5.50\n");
  EXPECT_EQ(channel(5), 128);
}

TEST_F(CommandLine, RefusedLinesChangeNothingAndStayOutOfTheHistory) {
  for (const char* line : {"61.20\n", "5.\n", "5+6\n", "5.150\n", "0.50\n", ".50\n", "5*000"}) {
    SCOPED_TRACE(line);
    type(line);
    EXPECT_EQ(std::tuple(cli().CLI_Status(), cli().CLI_Error(), cli().Token_Index()),
              std::tuple(CLI::kLampError, true, 0));
  }
  for (int n = 1; n <= 64; ++n) ASSERT_EQ(channel(n), 0) << "channel " << n;
  EXPECT_EQ(fader(61), 0);
  // "5.", "5+6", "5.150" and 000 not after @ are refused at once; the others
  // fail on their number while executing, and the history shows what was tried.
  EXPECT_EQ(cli().history_list(), (History{"61 @ 20 ", "0 @ 50 ", " @ 50 "}));

  type("7\n");
  EXPECT_EQ(cli().CLI_Status(), CLI::kLampTyping) << "every key first greys the lamp";
}

TEST_F(CommandLine, TokensAreEditedKeyByKey) {
  type("1234");
  EXPECT_EQ(std::tuple(cli().Tokens()[0], cli().String_In()), std::tuple("123", "123 "));
  type("..000");
  EXPECT_EQ(cli().Tokens()[0], "000") << "below token 2 the zeros are only digits";
  EXPECT_EQ(cli().CLI_Status(), CLI::kLampTyping);

  type("..");
  EXPECT_EQ(cli().Token_Index(), 0) << "the decimal key twice clears the line";
  EXPECT_EQ(cli().String_In(), "");

  type("12\b");
  EXPECT_EQ(cli().Tokens()[0], "");
  EXPECT_EQ(cli().String_In(), "12 ") << "Backspace redraws at the next key";
  type("3.50\n");
  EXPECT_EQ(std::tuple(channel(3), channel(12)), std::tuple(128, 0));

  type("5c");
  EXPECT_EQ(cli().Tokens()[0], "c") << "C at the first token replaces it";
  type("\n5.c-");
  EXPECT_EQ(cli().Tokens()[0], "5") << "C later in the line and keypad - do nothing";
  EXPECT_EQ(cli().String_In(), "5 @  ");
  cli().CLI_Key(keys::kPadSlash);
  EXPECT_EQ(cli().String_In(), "5 @ S ") << "the mark shows before the token being typed";
}

TEST_F(CommandLine, ALineLongerThanTheTokenArrayIsRefused) {
  for (int i = 0; i < 49; ++i) type("1+");
  type("1");
  EXPECT_EQ(cli().Token_Index(), 98);
  type("+");
  EXPECT_EQ(cli().Token_Index(), 100) << "token 100 is the last one";
  type("2.");
  EXPECT_EQ(cli().Token_Index(), 0) << "an @ would need token 101";
  type("52.50+3.50");
  EXPECT_EQ(cli().CLI_Status(), CLI::kLampError) << "the rest of the line does nothing until Enter";
  EXPECT_EQ(cli().refusal(), "line too long: a line holds 101 numbers and words");
  type("\n3.50\n");
  EXPECT_EQ(std::tuple(cli().history_list(), channel(52) + channel(1)), std::tuple(History{"3 @ 50 "}, 0));
  for (int i = 0; i < 50; ++i) type("1+");
  type("4.50..4.50\n");
  EXPECT_EQ(channel(4), 128) << "Clear also ends a refused line";

  type("c");  // a line begun with C types on odd tokens
  for (int i = 0; i < 49; ++i) type("1+");
  EXPECT_EQ(cli().Token_Index(), 99);
  type("1*");
  EXPECT_EQ(cli().CLI_Status(), CLI::kLampError) << "a Thru would need token 101";
  EXPECT_EQ(cli().Token_Index(), 0);
}

TEST_F(CommandLine, QueriesShowTheLevelInPercent) {
  store().Desk_Level[6] = 128;
  type("7\n");
  EXPECT_EQ(std::tuple(cli().String_In(), main_status(), playback_status(), cli().Token_Index()),
            std::tuple("50.1960784313726", "Main Channel 7 =  50%", "Main Channel 7 =  50%", 0));

  store().Playback_Fader_Level[3] = 76;
  type("4/\n");
  EXPECT_EQ(std::tuple(cli().String_In(), main_status()), std::tuple("29.8039215686275", "Submix Channel 4 =  29%"));

  store().Desk_Level[64] = 255;
  type("65\n");
  EXPECT_EQ(main_status(), "Main Channel 65 =  100%");
  store().Playback_Fader_Level[60] = 255;
  type("61/\n");
  EXPECT_EQ(main_status(), "Submix Channel 61 =  100%");

  for (const char* out_of_range : {"66\n", "62/\n", "0\n", "\n"}) {
    type(out_of_range);
    EXPECT_EQ(main_status(), "Submix Channel 61 =  100%") << out_of_range << " is ignored";
  }
  EXPECT_TRUE(cli().history_list().empty()) << "queries do not enter the history";
}

TEST_F(CommandLine, CAndANumberRecallAScreenOrInRunModeTakeToIt) {
  store().Screens[12].Preset[0] = 200;
  store().Screens[3].Preset[0] = 90;
  store().Screen_Count = 13;
  type("c12\n");
  EXPECT_EQ(t.console->playback_desk().screens().Screen_Num_sel(), 12);
  EXPECT_EQ(channel(1), 200) << "the screen is recalled";
  EXPECT_EQ(std::tuple(main_status(), playback_status(), cli().String_In()),
            std::tuple("Cue 12 Selected", "Cue 12 Selected", ""));
  type("c0\nc200\n");
  EXPECT_EQ(main_status(), "Cue 12 Selected") << "screen numbers outside the desk are ignored";

  PlaybackDesk& desk = t.console->playback_desk();
  desk.Show();
  desk.run_mode().Run_Switch_Click();
  ASSERT_TRUE(store().Run_Mode);
  type("c3\n");
  EXPECT_EQ(std::tuple(store().Autotake_Running, store().Run_Screen), std::tuple(true, 3));
  EXPECT_EQ(channel(1), 0) << "no recall: the take crossfades";
  EXPECT_EQ(main_status(), "Cue 3 Selected");
}

TEST_F(CommandLine, SequenceFadersStartTheirChaseAndTheSurfaceFollowsOnlyInItsMode) {
  store().Fader_Functions[2].Function = kFunctionSequence;
  store().Fader_Functions[2].Value = 4;
  type("3/.50\n");
  PlaybackChases& chases = t.console->playback_desk().chases();
  EXPECT_EQ(std::tuple(chases.Seq_Level(4), chases.running(4)), std::tuple(128, true));
  type("3/.0\n");
  EXPECT_FALSE(chases.running(4)) << "level 0 stops it";
  EXPECT_EQ(chases.Seq_Level(4), 0);

  type("5.50\n4/.30\n");
  EXPECT_TRUE(surface.faders.empty()) << "no surface connected";
  store().BCF_Mode = 1;
  type("5.50\n4/.30\n");
  EXPECT_EQ(surface.faders, (std::vector<std::pair<int, int>>{{4, 128}}));
  surface.faders.clear();
  store().BCF_Mode = 2;
  type("5.50\n4/.30\n");
  EXPECT_EQ(surface.faders, (std::vector<std::pair<int, int>>{{3, 76}}));
}

TEST_F(CommandLine, TheMainDeskPassesKeysAndItsMenuOpensTheWindowWhichKeepsItsLine) {
  MainDesk& desk = t.console->main_desk();
  for (const int code : {101, keys::kPadPoint, 101, keys::kPad0, keys::kEnter}) desk.Key_Down(code);
  EXPECT_EQ(channel(5), 128);
  EXPECT_FALSE(cli().visible()) << "keys load the window without showing it";
  desk.Key_Down(keys::kTop0 + 5);
  EXPECT_EQ(cli().Tokens()[0], "") << "the top-row digits are not the keypad's";

  const std::vector<MenuEntry> entries = desk.menu_entries();
  EXPECT_TRUE(std::any_of(entries.begin(), entries.end(),
                          [](const MenuEntry& e) { return e.name == "command-line" && e.enabled; }));
  type("3");
  desk.Menu_Click("command-line");
  EXPECT_TRUE(cli().visible());
  cli().hide_clicked();
  EXPECT_FALSE(cli().visible());
  desk.Menu_Click("command-line");
  EXPECT_EQ(std::tuple(cli().String_In(), cli().history_list()), std::tuple("3 ", History{"5 @ 50 "}));
}

TEST(LaptopKeys, TopRowKeysActAsTheKeypadInTheWindowOnlyWhenTicked) {
  MemorySettings settings;
  {
    TestConsole t;
    t.services.settings = &settings;
    t.build();
    CLI& cli = t.console->cli();
    EXPECT_FALSE(cli.Laptop_Keys()) << "off by default";
    cli.Form_KeyDown(keys::kTop0 + 5);
    EXPECT_EQ(cli.Tokens()[0], "");
    cli.Laptop_Keys_Click(true);
    for (const int code : {keys::kTop0 + 9, keys::kTopAsterisk, keys::kTop0 + 2, keys::kTopPlus,
                           keys::kTop0 + 1, keys::kTopSlash, keys::kTopPoint, keys::kTop0 + 4,
                           keys::kTop0, keys::kEnter}) {
      cli.Form_KeyDown(code);
    }
    EXPECT_EQ(std::tuple(cli.history_list(), t.store().Desk_Level[1], t.store().Playback_Fader_Level[0]),
              std::tuple(History{"9 Thru 2 + S1 @ 40 "}, 102, 102));
    t.console->main_desk().Key_Down(keys::kTop0 + 5);
    EXPECT_EQ(cli.Tokens()[0], "") << "the main desk keeps the keypad's keys";
  }
  EXPECT_EQ(settings.read(CLI::kLaptopKeysSetting), "1");
  TestConsole again;
  again.services.settings = &settings;
  again.build();
  EXPECT_TRUE(again.console->cli().Laptop_Keys()) << "kept with this computer's settings";
}

struct FakeNumLock final : NumLock {
  std::optional<bool> on;
  int sets = 0;
  std::optional<bool> state() const override { return on; }
  void set(bool wanted) override {
    on = wanted;
    ++sets;
  }
};

TEST(NumLockKey, SwitchesNumLockBackOnOnlyWhenItIsOff) {
  FakeNumLock num_lock;
  TestConsole t;
  t.services.num_lock = &num_lock;
  t.build();
  num_lock.on = false;
  t.console->main_desk().Key_Down(keys::kNumLock);
  EXPECT_EQ(std::tuple(num_lock.on, num_lock.sets), std::tuple(true, 1));
  t.console->cli().CLI_Key(keys::kNumLock);
  EXPECT_EQ(num_lock.sets, 1) << "already on: left alone";
  num_lock.on.reset();
  t.console->cli().CLI_Key(keys::kNumLock);
  EXPECT_EQ(num_lock.sets, 1) << "a keyboard that cannot be asked is left alone";

  TestConsole without;
  without.build();
  without.console->cli().CLI_Key(keys::kNumLock);  // no keyboard seam: nothing happens
  EXPECT_EQ(without.console->cli().CLI_Status(), CLI::kLampTyping);
}

}  // namespace
}  // namespace lumaris
