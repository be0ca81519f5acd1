#include <gtest/gtest.h>

#include <sstream>

#include "tests/keypad/keypad_desk.h"

namespace lumaris {
namespace {

class Terminal : public ::testing::Test, public KeypadDesk {
 protected:
  std::ostringstream out;
  TerminalKeypad terminal{cli(), t.console->status(), out};
};

TEST_F(Terminal, APipedLineSetsLevelsAndReportsEachLineThatEnds) {
  terminal.feed("5.50\n");
  terminal.feed("1*8+12.000");
  EXPECT_EQ(channel(12), 255);
  EXPECT_EQ(out.str(),
            "line: 5 @ 50 \n"
            "lamp green\n"
            "status: CLI -5 @ 50 \n"
            "line: 1 Thru 8 + 12 @ 100 \n"
            "lamp green\n"
            "status: CLI -1 Thru 8 + 12 @ 100 \n");
}

TEST_F(Terminal, ErrorsQueriesAndDifferingStatusLinesAreReported) {
  terminal.feed("61.20\r\n");
  EXPECT_EQ(out.str(), "line: 61 @ 20 \nlamp red\nrefused: channel 61 out of range (1 to 60)\n"
                       "status: CLI -61 @ 20 \n") << "CR LF is one Enter";
  out.str("");
  terminal.feed("5.150\n\n");
  EXPECT_EQ(out.str(), "line: 5 @ 150 \nlamp red\nrefused: level over 100%\nstatus: CLI -61 @ 20 \n"
                       "line: \nlamp grey\nstatus: CLI -61 @ 20 \n") << "a bare Enter is an empty line";
  out.str("");
  store().Desk_Level[6] = 255;
  terminal.feed("7\r");
  EXPECT_EQ(out.str(), "line: 7 \nshows: 100\nlamp grey\nstatus: Main Channel 7 =  100%\n");
  out.str("");
  t.console->status().show(" main", " playback");
  terminal.feed("5*\n");
  EXPECT_EQ(out.str(), "line: 5 Thru  \nlamp red\nrefused: no level: a line ends with @ and a level\n"
                       "status:  main\nplayback status:  playback\n");
}

TEST_F(Terminal, EscapeSequencesOfOtherKeysAreSkippedAndAnApplicationKeypadTypes) {
  terminal.feed("\x1b[3~\x1b[A5.5x0 \n");  // Delete, Up, a stray letter and a blank
  EXPECT_EQ(channel(5), 128);
  EXPECT_EQ(channel(3), 0) << "the 3 of Delete's sequence is no key";
  terminal.feed("\x1bOu\x1bOn\x1bOw\x1bOp\x1bOM");  // keypad 5 . 7 0 Enter
  EXPECT_EQ(channel(5), 178);
  terminal.feed("6,20\n");
  EXPECT_EQ(channel(6), 51) << "a keypad that types a comma";
}

TEST_F(Terminal, ALiveTerminalRedrawsTheLineInPlace) {
  std::ostringstream screen;
  TerminalKeypad live(cli(), t.console->status(), screen, true);
  live.feed("4/");
  EXPECT_EQ(screen.str(), "\rline: 4 \x1b[K\rline: S4 \x1b[K");
}

}  // namespace
}  // namespace lumaris
