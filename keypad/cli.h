#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/colour.h"
#include "core/window.h"

namespace lumaris {

class DeskContext;
class MainDesk;
class PlaybackDesk;
class NumLock;

// The command line `CLI`: a numeric-keypad line that sets main desk channels and
// playback faders to a percentage, asks for a level and selects a screen. Keys
// come from its own window, from the main desk (every key-down) and from a
// terminal; all of them are skins of this one model.
//
// Choices where the desk's rules leave room:
// - Every command starts at token index 0, the first one after the window loads
//   as well: started at 1, the walk would begin at the empty token 0 and the
//   first assignment (or a first "C n") would silently do nothing.
// - A line that needs more than the 101 tokens is refused like a malformed line
//   (red lamp, nothing set, not in the history). A line refused before its Enter
//   stays refused: the keys that follow do nothing until Enter or Clear (the
//   decimal key twice), so its rest never runs as a line of its own.
// - A level above 100 % is refused the same way: a channel never goes beyond full.
// - A "Thru" item that ends the line lights the lamp green like a single number.
// - Number 0 before "@" or "+" fails the item's check like a number above 60.
// - A "Thru" range swapped from its typed values is held to the desk afterwards:
//   channels 1..64, playback faders 1..61 (the fader array's end).
class CLI : public Window {
 public:
  static constexpr int kTokens = 101;  // Tokens 0..100
  static constexpr Rgb kLampTyping{0xE0, 0xE0, 0xE0};
  static constexpr Rgb kLampError{255, 0, 0};
  static constexpr Rgb kLampDone{0, 255, 0};
  static constexpr const char* kLaptopKeysSetting = "keypad/laptop_keys";

  CLI(DeskContext& context, MainDesk& main_desk, PlaybackDesk& playback_desk, NumLock* num_lock);

  // The window's load: runs once, on first open.
  void Form_Load();

  // One key-down from the main desk or a terminal (keyboard virtual key codes).
  void CLI_Key(int key_code);
  // One key-down on the window itself: with "Laptop keys" ticked, the top-row
  // digits and . / * + act as the keypad's.
  void Form_KeyDown(int key_code);
  void CLI_Execute();
  void CLI_Clear();
  void CLI_Set_NumLock(bool on);

  void hide_clicked() { Hide(); }
  void Laptop_Keys_Click(bool checked);

  // State of the window.
  const std::string& String_In() const { return string_in_; }
  Rgb CLI_Status() const { return lamp_; }
  const std::vector<std::string>& history_list() const { return history_; }
  bool Laptop_Keys() const { return laptop_keys_; }
  const std::array<std::string, kTokens>& Tokens() const { return tokens_; }
  const std::array<bool, kTokens>& Submix_Marks() const { return marks_; }
  int Token_Index() const { return index_; }
  int CLI_Level() const { return level_; }
  bool CLI_Error() const { return error_; }
  // A line refused before its Enter: keys are ignored until Enter or Clear.
  bool refusing() const { return refusing_; }
  // Why the last line (or an item of it) was refused; empty once a key starts
  // the next line. The desk's status texts do not say it, the window and the
  // terminal do.
  const std::string& refusal() const { return refusal_; }

  // Every line that ended (executed, refused, a query or a selection) counts one,
  // and the line as it was shown is kept, so a terminal can report each of them.
  int lines_ended() const { return lines_ended_; }
  const std::string& ended_line() const { return ended_line_; }

 private:
  void digit(char d);
  void append_word(const char* word);
  void point();
  void enter();
  void query_or_select();
  void full_level_shortcut();
  void error(const std::string& reason);
  void refuse(const std::string& reason);
  void refused_key(int key_code);
  void clear_tokens();
  void redisplay();
  void end_line(const std::string& shown);
  bool token_numeric(int i) const;
  int token_value(int i) const;
  const std::string& token(int i) const;

  // Execution
  bool single(int i, bool& any_set);
  bool range(int i, bool& any_set);
  void set_number(int n, bool playback);
  void set_channel(int n);
  void set_fader(int n);

  DeskContext& context_;
  MainDesk& main_desk_;
  PlaybackDesk& playback_desk_;
  NumLock* num_lock_;

  std::array<std::string, kTokens> tokens_{};
  std::array<bool, kTokens> marks_{};
  int index_ = 0;
  int level_ = 0;
  bool error_ = false;
  bool refusing_ = false;
  bool refused_point_ = false;
  bool line_over_ = false;
  std::string refusal_;
  std::string string_in_;
  Rgb lamp_ = kLampTyping;
  std::vector<std::string> history_;
  bool laptop_keys_ = false;
  bool loaded_ = false;
  int lines_ended_ = 0;
  std::string ended_line_;
};

}  // namespace lumaris
