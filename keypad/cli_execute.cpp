#include <algorithm>
#include <cstdint>
#include <string>

#include "base/rounding.h"
#include "core/desk_context.h"
#include "core/main_desk.h"
#include "core/surface_feedback.h"
#include "keypad/cli.h"
#include "playback/playback_chases.h"
#include "playback/playback_desk.h"

namespace lumaris {

namespace {

constexpr int kLastSingleNumber = 60;
constexpr const char* kHistoryStatus = "CLI -";

}  // namespace

// The line is a list of items ended by "@": a number, or a number "Thru" a
// number, joined by "+". A marked first number makes the item playback faders.
void CLI::CLI_Execute() {
  bool any_set = false;
  int i = 0;
  while (i < kTokens) {
    const std::string& next = token(i + 1);
    if (next == "@") {
      if (single(i, any_set)) {
        lamp_ = kLampDone;
        error_ = false;
      }
      break;
    }
    if (next == "+") {
      single(i, any_set);
      i += 2;
    } else if (next == "Thru") {
      const bool set = range(i, any_set);
      const std::string& after = token(i + 3);
      if (after == "@") {
        if (set) {
          lamp_ = kLampDone;
          error_ = false;
        }
        break;
      }
      if (after == "+") {
        i += 4;
      } else {
        refuse("a Thru range is followed by + or @");
        i += 3;
      }
    } else {
      break;
    }
  }

  const std::string shown = string_in_;
  clear_tokens();
  history_.push_back(shown);
  context_.status().show_both(kHistoryStatus + shown);
  string_in_.clear();
  if (any_set) {
    main_desk_.Refresh_Desk_Panel();
    playback_desk_.Refresh_Playback_Panel();
    playback_desk_.Compute_Live_Output();
  }
  end_line(shown);
}

bool CLI::single(int i, bool& any_set) {
  const int n = token_numeric(i) ? token_value(i) : 0;
  if (n < 1 || n > kLastSingleNumber) {
    const std::string what = marks_[i] ? "fader" : "channel";
    refuse(token(i).empty() ? "no " + what + " number"
                            : what + " " + token(i) + " out of range (1 to " + std::to_string(kLastSingleNumber) + ")");
    return false;
  }
  set_number(n, marks_[i]);
  any_set = true;
  return true;
}

bool CLI::range(int i, bool& any_set) {
  if (!token_numeric(i) || !token_numeric(i + 2)) {
    refuse("Thru needs a number on each side");
    return false;
  }
  const int typed_a = token_value(i);
  const int typed_b = token_value(i + 2);
  int a = typed_a < 1 ? 1 : std::min(typed_a, kDeskChannels);
  int b = typed_b < 1 ? 2 : std::min(typed_b, kDeskChannels);
  if (b < a) {
    a = typed_b;
    b = typed_a;
  }
  const bool playback = marks_[i];
  const int last = playback ? kPlaybackFaders : kDeskChannels;
  a = std::max(a, 1);
  b = std::min(b, last);
  for (int n = a; n <= b; ++n) {
    set_number(n, playback);
    any_set = true;
  }
  return true;
}

void CLI::set_number(int n, bool playback) {
  if (playback) {
    set_fader(n);
  } else {
    set_channel(n);
  }
}

void CLI::set_channel(int n) {
  Store& store = context_.store();
  const int level = percent_to_level(level_);
  store.Desk_Level[n - 1] = static_cast<std::int16_t>(level);
  if (store.BCF_Mode == kSurfaceMainMode) {
    context_.surface().BCF_Fader_Update(SurfaceStrip::of_channel(store.Fader_Page, n - 1), level);
  }
}

void CLI::set_fader(int n) {
  Store& store = context_.store();
  const int level = percent_to_level(level_);
  store.Playback_Fader_Level[n - 1] = static_cast<std::int16_t>(level);
  const FaderFunction& fader = store.Fader_Functions[n - 1];
  if (fader.Function == kFunctionSequence) {
    playback_desk_.chases().Set_Sequence_Level(fader.Value, level);
  }
  if (store.BCF_Mode == kSurfacePlaybackMode) context_.surface().BCF_Fader_Update(PlaybackElement(n - 1), level);
}

}  // namespace lumaris
