#include "playback/playback_desk.h"

#include <algorithm>

#include "core/desk_context.h"
#include "playback/button_setup.h"
#include "playback/cue_editor.h"
#include "playback/fader_setup.h"
#include "playback/instant_cues.h"
#include "playback/page_controls.h"
#include "playback/playback_chases.h"
#include "playback/playback_panel.h"
#include "playback/run_mode.h"
#include "playback/screen_panel.h"
#include "playback/screen_table.h"

namespace lumaris {

namespace {

constexpr const char* kCaption = "Playback desk  ";
constexpr const char* kRunning = " Playback Desk Running";
constexpr const char* kCueMenu = "&Cues";
constexpr const char* kSetupMenu = "&Setup";
constexpr const char* kViewMenu = "&View";

}  // namespace

PlaybackDesk::PlaybackDesk(DeskContext& context, MainDesk& main_desk)
    : Window(kCaption), context_(context), main_desk_(main_desk) {
  table_ = std::make_unique<ScreenTable>(context);
  chases_ = std::make_unique<PlaybackChases>(context);
  PlaybackPanel::Desk panel_desk;
  panel_desk.cue = [this](int screen) { cue_pressed(screen); };
  panel_desk.open_button_setup = [this](int b) { Open_Button_Setup(b); };
  panel_desk.open_fader_setup = [this](int f) { Open_Fader_Setup(f); };
  panel_desk.refresh_main_desk = [this] { main_desk_.Refresh_Desk_Panel(); };
  panel_ = std::make_unique<PlaybackPanel>(context, *chases_, panel_desk);
  ScreenPanel::Desk screen_desk;
  screen_desk.refresh_main_desk = panel_desk.refresh_main_desk;
  screen_desk.refresh_playback = [this] { redraw(); };
  screen_desk.preset_value = [this] { return preset_; };
  screen_desk.set_preset_value = [this](int value) { Preset_Change(value); };
  screens_ = std::make_unique<ScreenPanel>(context, *table_, *chases_, screen_desk);
  pages_ = std::make_unique<PageControls>(context, [this] { redraw(); });
  cue_editor_ = std::make_unique<CueEditor>(context, *table_, [this] { screens_->Show_Screen(); });
  button_setup_ = std::make_unique<ButtonSetup>(context, [this] { redraw(); });
  fader_setup_ = std::make_unique<FaderSetup>(context, [this] { redraw(); });
  chases_->on_chase_finished([this] { panel_->Refresh_Playback_Panel(); });
  instant_ = std::make_unique<InstantCues>(
      context, InstantCues::Desk{[this](int screen) { run_mode_->Autotake(screen); },
                                    [this](int screen) { Open_Cue_Editor(screen); }});
  RunMode::Desk run_desk;
  run_desk.refresh_main_desk = panel_desk.refresh_main_desk;
  run_desk.refresh_playback = [this] { redraw(); };
  run_desk.set_preset_value = [this](int value) { Preset_Change(value); };
  run_desk.show_screen = [this](int screen) { screens_->follow_screen(screen); };
  run_desk.run_mode_changed = [this](bool on) {
    screens_->set_run_mode(on);
    if (instant_->visible()) instant_->Refresh_Instant_Panel();
  };
  run_mode_ = std::make_unique<RunMode>(context, *chases_, run_desk);
  set_autotake([this](int screen) { run_mode_->Autotake(screen); });
}

void PlaybackDesk::Instant_screens_Click() { instant_->Show(); }

void PlaybackDesk::set_output_interval(std::function<int()> interval) { run_mode_->set_output_interval(std::move(interval)); }

PlaybackDesk::~PlaybackDesk() = default;

void PlaybackDesk::Form_Load() {
  loaded_ = true;
  context_.store().Screen_Count = std::max<std::int16_t>(context_.store().Screen_Count, 1);
  screens_->Form_Load();
  redraw();
  context_.status().show_playback(kRunning);
}

void PlaybackDesk::Show() {
  if (!loaded_) Form_Load();
  Window::Show();
}

void PlaybackDesk::Main_Change(int value) {
  value = std::clamp(value, 0, 255);
  if (value == main_) return;
  main_ = value;
  if (main_desk_.main_value() != value) main_desk_.Main_Change(value);
}

void PlaybackDesk::Preset_Change(int value) { preset_ = std::clamp(value, 0, 255); }

void PlaybackDesk::set_reset_caption() { set_caption(kCaption); }

void PlaybackDesk::Refresh_Playback_Panel() {
  screens_->Show_Screen();
  pages_->refresh();
  panel_->Refresh_Playback_Panel();
}

void PlaybackDesk::redraw() {
  Refresh_Playback_Panel();
  Compute_Live_Output();
}

void PlaybackDesk::Compute_Live_Output() { panel_->Compute_Live_Output(); }

void PlaybackDesk::Clear_All() {
  panel_->Clear_All();
  pages_->refresh();
}

void PlaybackDesk::Submix_Clear() { panel_->Submix_Clear(); }

void PlaybackDesk::cue_pressed(int screen) {
  if (context_.store().Run_Mode) {
    if (autotake_) autotake_(screen);
    return;
  }
  screens_->Cue_Recall(screen);
}

void PlaybackDesk::Open_Button_Setup(int b) { button_setup_->Open(b); }
void PlaybackDesk::Open_Fader_Setup(int f) { fader_setup_->Open(f); }
void PlaybackDesk::Open_Cue_Editor(int screen) { cue_editor_->Open(screen); }

const std::string& PlaybackDesk::Status() const { return context_.status().playback(); }

std::vector<MenuEntry> PlaybackDesk::menu_entries() const {
  return {
      {kCueMenu, "copy-cue", "&Copy Cue"},
      {kCueMenu, "paste-cue", "&Paste Cue"},
      {kCueMenu, "insert-cue", "&Insert Cue"},
      {kCueMenu, "delete-cue", "&Delete Cue"},
      {kCueMenu, "clear-cue", "Clear Cue"},
      {kCueMenu, "cue-editor", "&Edit Cues"},
      {kSetupMenu, "button-setup", "&Buttons"},
      {kSetupMenu, "fader-setup", "&Faders"},
      {kViewMenu, "page-text", "&Page Text"},
  };
}

void PlaybackDesk::Menu_Click(const std::string& name) {
  const int n = screens_->Current_Screen();
  const Store& store = context_.store();
  if (name == "copy-cue") {
    table_->Copy_Screen(n);
  } else if (name == "paste-cue") {
    table_->Paste_Screen(n);
  } else if (name == "insert-cue") {
    table_->Insert_Screen(n);
  } else if (name == "delete-cue") {
    table_->Delete_Screen(n);
  } else if (name == "clear-cue") {
    table_->Clear_Screen(n);
  } else if (name == "cue-editor") {
    Open_Cue_Editor();
  } else if (name == "button-setup") {
    Open_Button_Setup(store.Playback_Page * kButtonsPerPage);
  } else if (name == "fader-setup") {
    Open_Fader_Setup(store.Playback_Page * kFadersPerPlaybackPage);
  } else if (name == "page-text") {
    pages_->Page_Text_Enable_Click();
  }
  screens_->Show_Screen();
}

}  // namespace lumaris
