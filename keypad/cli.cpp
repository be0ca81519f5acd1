#include "keypad/cli.h"

#include <cmath>
#include <cstdio>

#include "base/number_text.h"
#include "core/desk_context.h"
#include "core/main_desk.h"
#include "keypad/keypad_keys.h"
#include "platform/num_lock.h"
#include "platform/settings.h"
#include "playback/playback_desk.h"
#include "playback/run_mode.h"
#include "playback/screen_panel.h"
#include "playback/screen_table.h"

namespace lumaris {

namespace {

constexpr const char* kCaption = "Command Line Interface";
constexpr const char* kThru = "Thru";
constexpr const char* kAt = "@";
constexpr const char* kPlus = "+";
constexpr const char* kScreenWord = "c";
constexpr const char* kFaderMark = "S";
constexpr int kTokenChars = 3;
constexpr int kLastQueryFader = 61;
constexpr int kLastQueryChannel = 65;  // Desk_Level holds 0..64

std::string cue_selected(int n) { return "Cue " + std::to_string(n) + " Selected"; }

// A level in percent as the desk prints a number: unrounded, up to 15 digits.
std::string percent_text(double percent) {
  char text[32];
  std::snprintf(text, sizeof text, "%.15g", percent);
  return text;
}

std::string level_query(const char* words, int n, int level) {
  const double percent = level / 2.55;
  return words + std::to_string(n) + " = " + str_number(static_cast<long>(std::trunc(percent))) +
         "%";
}

}  // namespace

CLI::CLI(DeskContext& context, MainDesk& main_desk, PlaybackDesk& playback_desk, NumLock* num_lock)
    : Window(kCaption),
      context_(context),
      main_desk_(main_desk),
      playback_desk_(playback_desk),
      num_lock_(num_lock) {
  if (const Settings* settings = context_.settings()) {
    laptop_keys_ = settings->read(kLaptopKeysSetting).value_or("0") == "1";
  }
}

void CLI::Form_Load() {
  if (loaded_) return;
  loaded_ = true;
  index_ = 0;
  tokens_.fill({});
  marks_.fill(false);
  string_in_.clear();
  history_.clear();
}

const std::string& CLI::token(int i) const {
  static const std::string none;
  return i >= 0 && i < kTokens ? tokens_[i] : none;
}

bool CLI::token_numeric(int i) const {
  const std::string& t = token(i);
  if (t.empty()) return false;
  for (const char c : t) {
    if (c < '0' || c > '9') return false;
  }
  return true;
}

int CLI::token_value(int i) const { return std::stoi(token(i)); }

void CLI::redisplay() {
  string_in_.clear();
  for (int i = 0; i <= index_; ++i) {
    if (marks_[i]) string_in_ += kFaderMark;
    string_in_ += tokens_[i] + " ";
  }
}

void CLI::clear_tokens() {
  for (int i = 0; i <= index_; ++i) {
    tokens_[i].clear();
    marks_[i] = false;
  }
  index_ = 0;
}

void CLI::CLI_Clear() {
  clear_tokens();
  string_in_.clear();
  refusing_ = false;
}

void CLI::end_line(const std::string& shown) {
  line_over_ = true;
  ++lines_ended_;
  ended_line_ = shown;
}

void CLI::refuse(const std::string& reason) {
  error_ = true;
  lamp_ = kLampError;
  if (refusal_.empty()) refusal_ = reason;
}

void CLI::error(const std::string& reason) {
  refuse(reason);
  const std::string shown = string_in_;
  clear_tokens();
  end_line(shown);
}

void CLI::Form_KeyDown(int key_code) {
  if (laptop_keys_) {
    if (key_code >= keys::kTop0 && key_code <= keys::kTop9) {
      key_code = keys::kPad0 + (key_code - keys::kTop0);
    } else if (key_code == keys::kTopPoint) {
      key_code = keys::kPadPoint;
    } else if (key_code == keys::kTopSlash) {
      key_code = keys::kPadSlash;
    } else if (key_code == keys::kTopPlus) {
      key_code = keys::kPadPlus;
    } else if (key_code == keys::kTopAsterisk) {
      key_code = keys::kPadAsterisk;
    }
  }
  CLI_Key(key_code);
}

void CLI::Laptop_Keys_Click(bool checked) {
  laptop_keys_ = checked;
  if (Settings* settings = context_.settings()) {
    settings->write(kLaptopKeysSetting, checked ? "1" : "0");
  }
}

void CLI::CLI_Key(int key_code) {
  Form_Load();  // keys from the main desk load the window without showing it
  if (refusing_) {
    refused_key(key_code);
    return;
  }
  lamp_ = kLampTyping;
  refusal_.clear();
  // The line that ended stays shown until the next key, which starts a new one:
  // a bare Enter then is an empty line, never the last one again.
  if (line_over_) {
    line_over_ = false;
    string_in_.clear();
  }
  if (key_code >= keys::kPad0 && key_code <= keys::kPad9) {
    digit(static_cast<char>('0' + key_code - keys::kPad0));
    if (key_code == keys::kPad0) full_level_shortcut();
    return;
  }
  switch (key_code) {
    case keys::kPadSlash:
      marks_[index_] = true;
      redisplay();
      break;
    case keys::kPadAsterisk:
      append_word(kThru);
      break;
    case keys::kPadPlus:
      append_word(kPlus);
      break;
    case keys::kPadPoint:
      point();
      break;
    case keys::kLetterC:
      if (index_ == 0) {
        tokens_[0] = kScreenWord;
        index_ = 1;
      }
      redisplay();
      break;
    case keys::kBackspace:
      tokens_[index_].clear();  // shown again at the next key
      break;
    case keys::kNumLock:
      CLI_Set_NumLock(true);
      break;
    case keys::kEnter:
      enter();
      break;
    default:
      break;  // keypad - and every other key only reset the lamp
  }
}

// The rest of a refused line: only Enter or Clear end it, and the lamp stays red
// until then so that the keys doing nothing do not look accepted.
void CLI::refused_key(int key_code) {
  if (key_code == keys::kNumLock) CLI_Set_NumLock(true);
  const bool point = key_code == keys::kPadPoint;
  if (key_code == keys::kEnter || (point && refused_point_)) {
    refusing_ = false;
    lamp_ = kLampTyping;
    refusal_.clear();
    CLI_Clear();
  }
  refused_point_ = point && !refused_point_;
}

void CLI::digit(char d) {
  std::string& t = tokens_[index_];
  t += d;
  if (t.size() > kTokenChars) t.resize(kTokenChars);
  redisplay();
}

// "Thru", "+" and "@" take the next token; the one after is typed into. A line
// that would need more tokens than the line holds is refused.
void CLI::append_word(const char* word) {
  if (index_ + 2 >= kTokens) {
    error("line too long: a line holds " + std::to_string(kTokens) + " numbers and words");
    refusing_ = true;
    refused_point_ = false;
    return;
  }
  tokens_[index_ + 1] = word;
  index_ += 2;
  redisplay();
}

void CLI::point() {
  if (index_ > 0 && tokens_[index_ - 1] == kAt) {
    CLI_Clear();  // the key pressed twice
    return;
  }
  append_word(kAt);
}

void CLI::full_level_shortcut() {
  if (tokens_[index_] != "000" || index_ < 2) return;
  if (tokens_[index_ - 1] != kAt) {
    error("000 is full level and comes only after @");
    refusing_ = true;
    refused_point_ = false;
    return;
  }
  tokens_[index_] = "100";
  level_ = 100;
  redisplay();
  CLI_Execute();
}

void CLI::enter() {
  if (index_ > 1) {
    if (tokens_[index_ - 1] != kAt) {
      error("no level: a line ends with @ and a level");
      return;
    }
    if (!token_numeric(index_)) {
      error("no level after @");
      return;
    }
    if (token_value(index_) > 100) {
      error("level over 100%");
      return;
    }
    level_ = token_value(index_);
    CLI_Execute();
    return;
  }
  query_or_select();
}

void CLI::query_or_select() {
  const std::string shown = string_in_;
  Store& store = context_.store();
  if (tokens_[0] == kScreenWord && token_numeric(1)) {
    const int n = token_value(1);
    if (n >= 1 && n <= ScreenTable::kLastScreen) {
      if (store.Run_Mode) {
        playback_desk_.run_mode().Autotake(n);
      } else {
        playback_desk_.screens().Cue_Recall(n);
      }
      context_.status().show_both(cue_selected(n));
    }
    CLI_Clear();
  } else if (marks_[0]) {
    const int n = token_numeric(0) ? token_value(0) : 0;
    if (n >= 1 && n <= kLastQueryFader) {
      const int level = store.Playback_Fader_Level[n - 1];
      string_in_ = percent_text(level / 2.55);
      context_.status().show_both(level_query("Submix Channel ", n, level));
    }
    clear_tokens();
  } else {
    const int n = token_numeric(0) ? token_value(0) : 0;
    if (n >= 1 && n <= kLastQueryChannel) {
      const int level = store.Desk_Level[n - 1];
      string_in_ = percent_text(level / 2.55);
      context_.status().show_both(level_query("Main Channel ", n, level));
    }
    clear_tokens();
  }
  end_line(shown);
}

void CLI::CLI_Set_NumLock(bool on) {
  if (num_lock_ == nullptr) return;
  const std::optional<bool> state = num_lock_->state();
  if (!state || *state == on) return;
  num_lock_->set(on);
}

}  // namespace lumaris
