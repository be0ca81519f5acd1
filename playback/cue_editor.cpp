#include "playback/cue_editor.h"

#include <algorithm>

#include "base/number_text.h"
#include "core/colour_dialog.h"
#include "core/desk_context.h"
#include "platform/dialogs.h"
#include "playback/playback_output.h"
#include "playback/screen_table.h"

namespace lumaris {

namespace {

constexpr const char* kUpdated = " Cue's Updated";

}  // namespace

CueEditor::CueEditor(DeskContext& context, ScreenTable& table, std::function<void()> changed)
    : Window("Edit Cues"), context_(context), table_(table), changed_(std::move(changed)) {}

bool CueEditor::has_selection() const { return selected_ >= 1 && selected_ <= context_.store().Screen_Count; }

void CueEditor::Open(int screen) {
  refresh_lists();
  if (screen >= 1) {
    select(screen);
  } else if (!has_selection()) {
    select(1);
  } else {
    select(selected_);
  }
  Show();
}

void CueEditor::refresh_lists() {
  const Store& store = context_.store();
  screen_list_.clear();
  for (int n = 1; n <= std::min<int>(store.Screen_Count, ScreenTable::kLastScreen); ++n) {
    screen_list_.push_back(std::to_string(n) + " " + store.Screens[n].Name);
  }
}

void CueEditor::screen_list_clicked(int index) { select(index + 1); }

void CueEditor::select(int screen) {
  if (screen < 1 || screen > static_cast<int>(screen_list_.size())) return;
  selected_ = screen;
  const Screen& s = context_.store().Screens[screen];
  name_box_ = s.Name;
  fade_time_box_ = std::to_string(s.Time);
  next_index_ = s.Next >= 1 && s.Next <= static_cast<int>(screen_list_.size()) ? s.Next - 1 : -1;
  delay_ = std::clamp<int>(s.Delay, 0, kDelayMax);
  instant_box_ = s.Instant;
  auto_box_ = s.Auto;
  colour_box_ = colour_from_text(s.Colour);
  fill_contents();
}

namespace {

// Buttons, faders, submixes and sequences counted from 1, as the playback desk's
// captions count them ("Submix 1" is submix 0); screens are numbered as they are.
std::string shown_value(int function, int value) {
  const bool counted_from_zero = function == kFunctionSubmix || function == kFunctionSequence;
  return std::to_string(counted_from_zero ? value + 1 : value);
}

}  // namespace

std::string CueEditor::item_line(const Item& item) const {
  const Store& store = context_.store();
  const Screen& s = store.Screens[selected_];
  switch (item.kind) {
    case Item::Channel:
      return "Preset Channel " + std::to_string(item.index + 1) + " @ " + std::to_string(s.Preset[item.index]);
    case Item::Button: {
      const ButtonFunction& b = store.Button_Functions[item.index];
      return "Button " + std::to_string(item.index + 1) + " " + function_name(b.Function) + " " +
             shown_value(b.Function, b.Value) + " " + b.Name + " ON";
    }
    case Item::Fader: {
      const FaderFunction& f = store.Fader_Functions[item.index];
      return "Fader " + std::to_string(item.index + 1) + " " + function_name(f.Function) + " " +
             shown_value(f.Function, f.Value) + " " + f.Name + " @ " + std::to_string(s.Fad_Sel[item.index]);
    }
  }
  return {};
}

void CueEditor::fill_contents() {
  const Screen& s = context_.store().Screens[selected_];
  items_.clear();
  for (int c = 0; c < kDeskChannels; ++c) {
    if (s.Preset[c] > 0) items_.push_back({Item::Channel, c});
  }
  for (int b = 0; b < kPlaybackButtons; ++b) {
    if (s.But_Sel[b]) items_.push_back({Item::Button, b});
  }
  for (int f = 0; f < kPlaybackFaders; ++f) {
    if (s.Fad_Sel[f] > 0) items_.push_back({Item::Fader, f});
  }
  content_list_.clear();
  for (const Item& item : items_) content_list_.push_back(item_line(item));
  item_ = -1;
  item_label_.clear();
  level_box_.clear();
  level_fader_ = 255;
}

void CueEditor::content_list_clicked(int index) {
  if (index < 0 || index >= static_cast<int>(items_.size())) return;
  item_ = index;
  show_item();
}

bool CueEditor::level_fader_enabled() const { return item_ >= 0 && items_[item_].kind != Item::Button; }

void CueEditor::show_item() {
  const Item& item = items_[item_];
  const Screen& s = context_.store().Screens[selected_];
  switch (item.kind) {
    case Item::Channel:
      item_label_ = "Preset Channel " + std::to_string(item.index + 1);
      level_box_ = std::to_string(s.Preset[item.index]);
      level_fader_ = 255 - s.Preset[item.index];
      break;
    case Item::Button:
      item_label_ = "Button " + std::to_string(item.index + 1);
      level_box_.clear();
      break;
    case Item::Fader:
      item_label_ = "Fader " + std::to_string(item.index + 1);
      level_box_ = std::to_string(s.Fad_Sel[item.index]);
      level_fader_ = 255 - s.Fad_Sel[item.index];
      break;
  }
}

// The line stays in the list at its new level, even at 0, until the lists are
// filled again, so the operator does not lose the item under the slider.
void CueEditor::level_fader_changed(int value) {
  if (!has_selection() || !level_fader_enabled()) return;
  const auto level = static_cast<std::int16_t>(255 - std::clamp(value, 0, 255));
  Screen& s = context_.store().Screens[selected_];
  const Item& item = items_[item_];
  if (item.kind == Item::Channel) s.Preset[item.index] = level;
  if (item.kind == Item::Fader) s.Fad_Sel[item.index] = level;
  content_list_[item_] = item_line(item);
  show_item();
  context_.store().Project_Changed = true;
}

void CueEditor::Screen_Delay_Change(int value) { delay_ = std::clamp(value, 0, kDelayMax); }

void CueEditor::instant_box_clicked(bool checked) {
  instant_box_ = checked;
  if (!has_selection()) return;
  context_.store().Screens[selected_].Instant = checked;
  table_changed();
}

void CueEditor::auto_box_clicked(bool checked) {
  auto_box_ = checked;
  if (!has_selection()) return;
  context_.store().Screens[selected_].Auto = checked;
  table_changed();
}

void CueEditor::colour_box_clicked() {
  if (!has_selection()) return;
  const std::optional<Rgb> colour = context_.dialogs().choose_colour(kColourTitle, colour_box_);
  if (!colour) return;
  colour_box_ = *colour;
  context_.store().Screens[selected_].Colour = colour_to_text(*colour);
  table_changed();
}

void CueEditor::update_clicked() {
  if (!has_selection()) return;
  Screen& s = context_.store().Screens[selected_];
  if (next_index_ >= 0) s.Next = static_cast<std::int16_t>(next_index_ + 1);
  s.Name = name_box_;
  s.Time = static_cast<std::int16_t>(std::clamp(text_to_int(fade_time_box_, s.Time), 0, 32767));
  s.Delay = static_cast<std::int16_t>(delay_);
  context_.status().show_playback(kUpdated);
  table_changed();
  refresh_lists();
  select(selected_);
}

void CueEditor::table_changed() {
  context_.store().Project_Changed = true;
  if (changed_) changed_();
}

void CueEditor::copy_clicked() {
  if (has_selection()) table_.Copy_Screen(selected_);
}

void CueEditor::paste_clicked() {
  if (!has_selection()) return;
  table_.Paste_Screen(selected_);
  table_changed();
  refresh_lists();
  select(selected_);
}

void CueEditor::insert_clicked() {
  if (!has_selection()) return;
  if (table_.Insert_Screen(selected_)) table_changed();
  refresh_lists();
  select(selected_);
}

void CueEditor::delete_clicked() {
  if (!has_selection()) return;
  if (table_.Delete_Screen(selected_)) table_changed();
  refresh_lists();
  select(std::min(selected_, static_cast<int>(screen_list_.size())));
}

}  // namespace lumaris
