#include "playback/screen_table.h"

#include <string>

#include "core/desk_context.h"

namespace lumaris {

namespace {

std::string cue_text(int n, const char* what) { return " Cue " + std::to_string(n) + what; }

constexpr const char* kCopied = " Copied";
constexpr const char* kPasted = " Pasted";
constexpr const char* kInserted = " Inserted";
constexpr const char* kDeleted = " Deleted";
constexpr const char* kCleared = " Cleared";
constexpr const char* kTableFull = " Not Inserted, Cue Table Full";

}  // namespace

ScreenTable::ScreenTable(DeskContext& context) : context_(context) { clear_screen(clipboard_, 0); }

Store& ScreenTable::store() { return context_.store(); }

void ScreenTable::changed() { store().Project_Changed = true; }

void ScreenTable::Copy_Screen(int n) {
  if (!valid(n)) return;
  clipboard_ = store().Screens[n];
  changed();
  context_.status().show_playback(cue_text(n, kCopied));
}

void ScreenTable::Paste_Screen(int n) {
  if (!valid(n)) return;
  Store& s = store();
  s.Screens[n] = clipboard_;
  if (n > s.Screen_Count) s.Screen_Count = static_cast<std::int16_t>(n);
  changed();
  context_.status().show_playback(cue_text(n, kPasted));
}

bool ScreenTable::Insert_Screen(int n) {
  Store& s = store();
  if (!valid(n) || n >= s.Screen_Count) return false;
  if (s.Screen_Count >= kLastScreen) {
    context_.status().show_playback(cue_text(n, kTableFull));
    return false;
  }
  for (int k = s.Screen_Count; k >= n; --k) s.Screens[k + 1] = s.Screens[k];
  clear_screen(s.Screens[n], n);
  ++s.Screen_Count;
  changed();
  context_.status().show_playback(cue_text(n, kInserted));
  return true;
}

bool ScreenTable::Delete_Screen(int n) {
  Store& s = store();
  if (!valid(n) || n >= s.Screen_Count || s.Screen_Count < 2) return false;
  for (int k = n; k < s.Screen_Count && k < kLastScreen; ++k) s.Screens[k] = s.Screens[k + 1];
  clear_screen(s.Screens[s.Screen_Count], s.Screen_Count);
  --s.Screen_Count;
  changed();
  context_.status().show_playback(cue_text(n, kDeleted));
  return true;
}

// Delay and Colour stay: clearing empties the look, not the screen's place in a show.
void ScreenTable::Clear_Screen(int n) {
  if (!valid(n)) return;
  clear_screen(store().Screens[n], n);
  changed();
  context_.status().show_playback(cue_text(n, kCleared));
}

}  // namespace lumaris
