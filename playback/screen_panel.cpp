#include "playback/screen_panel.h"

#include <algorithm>

#include "base/rounding.h"
#include "core/colour_dialog.h"
#include "core/desk_context.h"
#include "core/surface_feedback.h"
#include "platform/dialogs.h"
#include "playback/playback_chases.h"

namespace lumaris {

namespace {

std::string recorded_text(int n) { return " Cue " + std::to_string(n) + " Recorded"; }
std::string recalled_text(int n) { return " Screen " + std::to_string(n) + " Recalled"; }

}  // namespace

ScreenPanel::ScreenPanel(DeskContext& context, ScreenTable& table, PlaybackChases& chases, Desk desk)
    : context_(context), table_(table), chases_(chases), desk_(std::move(desk)) {
  fade_time_.on_UserCursorMove([this](double seconds) { Screen_Fade_Time_Change(seconds); });
}

Screen& ScreenPanel::screen() { return context_.store().Screens[current_]; }

void ScreenPanel::changed() { context_.store().Project_Changed = true; }

void ScreenPanel::Form_Load() {
  current_ = 1;
  Show_Screen();
}

void ScreenPanel::show_fade_time(int seconds) {
  fade_time_.set_Value(seconds);
  screen_intxt_ = std::to_string(seconds);
}

void ScreenPanel::Show_Screen() {
  const Screen& s = screen();
  screen_txt_ = s.Name;
  show_fade_time(s.Time);
  cue_colour_ = colour_from_text(s.Colour);
  instant_ = s.Instant;
  auto_next_ = s.Auto;
}

void ScreenPanel::Screen_Num_sel_Change(int value) {
  if (run_mode_ || value < 1 || value > ScreenTable::kLastScreen) return;
  current_ = value;
  Show_Screen();
}

void ScreenPanel::Screen_Prog_Click() {
  if (run_mode_) return;
  Store& store = context_.store();
  const int s = current_;
  Screen& rec = store.Screens[s];
  std::copy_n(store.Desk_Level.begin(), kDeskChannels, rec.Preset.begin());
  rec.Fad_Sel = store.Playback_Fader_Level;
  rec.But_Sel = store.Playback_Button_State;
  rec.Preset_l = static_cast<std::int16_t>(255 - desk_.preset_value());
  rec.Auto = auto_next_;
  rec.Time = static_cast<std::int16_t>(round_half_even(fade_time_.Value()));
  rec.Name = screen_txt_;
  rec.Instant = instant_;
  context_.status().show_playback(recorded_text(s));
  if (s >= store.Screen_Count) store.Screen_Count = static_cast<std::int16_t>(std::min(s + 1, ScreenTable::kLastScreen));
  current_ = std::min(s + 1, ScreenTable::kLastScreen);
  if (current_ > store.Screen_Count) store.Screen_Count = static_cast<std::int16_t>(current_);
  Show_Screen();
  changed();
}

void ScreenPanel::Recall_Screen(int n) {
  if (!ScreenTable::valid(n)) return;
  Store& store = context_.store();
  const Screen& s = store.Screens[n];
  std::copy(s.Preset.begin(), s.Preset.end(), store.Desk_Level.begin());
  if (desk_.refresh_main_desk) desk_.refresh_main_desk();
  store.Playback_Fader_Level = s.Fad_Sel;
  chases_.Stop_All();
  store.Playback_Button_State = s.But_Sel;
  chases_.Start_Take_Sequences(s, PlaybackChases::Entry::Recall);
  desk_.set_preset_value(255 - s.Preset_l);
  desk_.refresh_playback();
  // The panel shows the recalled screen's name, fade time and Auto next, even
  // where it is not the current one.
  screen_txt_ = s.Name;
  auto_next_ = s.Auto;
  show_fade_time(s.Time);
  context_.status().show_playback(recalled_text(n));
  if (store.BCF_Mode == kSurfacePlaybackMode) {
    for (int i = 0; i < kSurfaceElements; ++i) {
      context_.surface().BCF_Fader_Update(PlaybackElement(i), store.Playback_Fader_Level[i]);
      context_.surface().BCF_Button_Update(PlaybackElement(i), store.Playback_Button_State[i]);
    }
  }
}

void ScreenPanel::Cue_Recall(int n) {
  if (!ScreenTable::valid(n)) return;
  current_ = n;
  Show_Screen();
  Recall_Screen(n);
}

void ScreenPanel::screen_txt_Change(const std::string& text) {
  screen_txt_ = text;
  screen().Name = text;
  changed();
}

void ScreenPanel::Screen_Fade_Time_Change(double seconds) {
  const int time = std::clamp(round_half_even(seconds), 0, 32767);
  screen().Time = static_cast<std::int16_t>(time);
  screen_intxt_ = std::to_string(time);
  changed();
}

void ScreenPanel::Screen_intxt_Change(const std::string& text) {
  if (fade_time_.Set_From_Text(text)) show_fade_time(screen().Time);
}

void ScreenPanel::Auto_next_Click(bool checked) {
  auto_next_ = checked;
  screen().Auto = checked;
  changed();
}

void ScreenPanel::Screen_instant_box_Click(bool checked) {
  instant_ = checked;
  screen().Instant = checked;
  changed();
}

void ScreenPanel::Cue_Colour_Click() {
  const std::optional<Rgb> colour = context_.dialogs().choose_colour(kColourTitle, cue_colour_);
  if (!colour) return;
  cue_colour_ = *colour;
  screen().Colour = colour_to_text(*colour);
  changed();
}

}  // namespace lumaris
