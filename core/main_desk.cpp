#include "core/main_desk.h"

#include <algorithm>
#include <filesystem>

#include "base/number_text.h"
#include "core/desk_links.h"
#include "core/keys_help.h"
#include "core/show_files.h"
#include "core/surface_feedback.h"
#include "core/window_opener.h"
#include "platform/dialogs.h"

namespace lumaris {

namespace {
constexpr const char* kMainDeskCaption = "DMX 512 Main Desk";
constexpr const char* kResetCaption = " Lumaris   ";
constexpr const char* kRunningStatus = " Main Desk Running ";
constexpr const char* kClearedStatus = " Desk Cleared ";
constexpr const char* kResetStatus = " Desk Reset";
constexpr const char* kResetTitle = " Reset Desk";
constexpr const char* kResetQuestion = "All Current Information will Be Lost Are You Sure ";
constexpr const char* kBeforeClosing = "closing Lumaris";
constexpr const char* kExitMenuStatus = " Exit Software";
constexpr const char* kExitWindowStatus = " Exit";
constexpr const char* kAboutTitle = " About Lumaris";
constexpr const char* kAboutText =
    "Lumaris " LUMARIS_VERSION "\nA lighting console for one DMX512 universe.";
}  // namespace

MainDesk::MainDesk(DeskContext& context) : Window(kMainDeskCaption), context_(context) {}

int MainDesk::channel_of(int strip) const {
  return context_.store().Fader_Page * kStrips + strip;
}

std::string MainDesk::title() const {
  const Store& store = context_.store();
  std::string text = caption();
  while (!text.empty() && text.back() == ' ') text.pop_back();
  if (!store.Project_File.empty()) {
    text += " - " + std::filesystem::path(store.Project_File).filename().string();
  }
  if (store.Project_Changed) text += " *";
  return text;
}

const std::string& MainDesk::Status() const { return context_.status().main(); }

void MainDesk::reset_masters() {
  main_ = 0;
  channels_ = 0;
  submix_master_ = 255;
  context_.desks().Main_Change(main_);
}

void MainDesk::Form_Load() {
  Store& store = context_.store();
  store.Port_Address = 888;
  store.Project_Changed = false;
  reset_store(store);
  current_submix_ = 0;
  submix_number_ = "1";
  submix_text_ = " ";
  sub_colour_.reset();
  reset_masters();
  store.Fader_Page = 0;
  dec_channels_enabled_ = false;
  inc_channel_enabled_ = true;
  store.Desk_Level.fill(0);
  draw_start_up_panel();
  context_.status().show_main(kRunningStatus);
  Show();
}

// The panel as start-up and Reset Desk leave it: the start-up tooltips, the
// levels and name boxes of page 0, and the submix label blank.
void MainDesk::draw_start_up_panel() {
  const Store& store = context_.store();
  for (int i = 0; i < kStrips; ++i) {
    ChannelStrip& strip = strips_[i];
    const std::string number = std::to_string(i + 1);
    const int level = store.Desk_Level[channel_of(i)];
    strip.fader = 255 - level;
    strip.level_box = std::to_string(level);
    draw_strip_names(i);
    strip.fader_tooltip = "level on channel " + number;
    strip.level_box_tooltip = "Channel level " + number;
    strip.max_button_tooltip = "Max on channel " + number;
    strip.min_button_tooltip = "Min on channel " + number;
  }
  submix_number_ = "1";
  submix_text_ = " ";
  sub_colour_.reset();
}

void MainDesk::set_level(int i, int level) {
  Store& store = context_.store();
  const int ch = channel_of(i);
  strips_[i].fader = 255 - level;
  strips_[i].level_box = std::to_string(level);
  store.Desk_Level[ch] = static_cast<std::int16_t>(level);
  if (store.BCF_Mode == kSurfaceMainMode) {
    context_.surface().BCF_Fader_Update(SurfaceStrip::of_channel(store.Fader_Page, ch), level);
  }
}

void MainDesk::channel_fader_changed(int i, int value) {
  if (i < 0 || i >= kStrips) return;
  set_level(i, 255 - std::clamp(value, 0, 255));
}

void MainDesk::max_clicked(int i) {
  if (i >= 0 && i < kStrips) set_level(i, 255);
}

void MainDesk::min_clicked(int i) {
  if (i >= 0 && i < kStrips) set_level(i, 0);
}

void MainDesk::Open_Channel_Properties(int i) {
  if (i < 0 || i >= kStrips) return;
  context_.store().Edit_Channel = static_cast<std::int16_t>(channel_of(i));
  context_.windows().open("channel-properties");
}

void MainDesk::Inc_Channel_Click() {
  Store& store = context_.store();
  dec_channels_enabled_ = true;
  if (store.Fader_Page < 1) ++store.Fader_Page;
  if (store.Fader_Page == 1) inc_channel_enabled_ = false;
  Refresh_Desk_Panel();
  send_page_to_surface();
  context_.status().show_main(" Faders " + str_number(store.Fader_Page) + " Selected");
}

void MainDesk::Dec_Channels_Click() {
  Store& store = context_.store();
  inc_channel_enabled_ = true;
  if (store.Fader_Page > 0) --store.Fader_Page;
  if (store.Fader_Page == 0) dec_channels_enabled_ = false;
  Refresh_Desk_Panel();
  send_page_to_surface();
  context_.status().show_main(" Faders " + str_number(store.Fader_Page) + " Selected");
}

// The surface's faders are the strips of the page on show: they follow a page change.
void MainDesk::send_page_to_surface() {
  const Store& store = context_.store();
  if (store.BCF_Mode != kSurfaceMainMode) return;
  for (int i = 0; i < kStrips; ++i) {
    const int ch = channel_of(i);
    context_.surface().BCF_Fader_Update(SurfaceStrip::of_channel(store.Fader_Page, ch), store.Desk_Level[ch]);
  }
}

void MainDesk::Clearall_Click() {
  Store& store = context_.store();
  for (ChannelStrip& strip : strips_) {
    strip.fader = 255;
    strip.level_box = "0";
  }
  std::fill(store.Desk_Level.begin(), store.Desk_Level.begin() + kDeskChannels, 0);
  if (store.BCF_Mode == kSurfaceMainMode) {
    for (int i = 0; i < kStrips; ++i) {
      context_.surface().BCF_Fader_Update(SurfaceStrip::of_channel(store.Fader_Page, channel_of(i)), 0);
    }
  }
  context_.status().show_main(kClearedStatus);
}

void MainDesk::channels_Change(int value) { channels_ = std::clamp(value, 0, 255); }

void MainDesk::Submix_Master_Change(int value) { submix_master_ = std::clamp(value, 0, 255); }

void MainDesk::Main_Change(int value) {
  main_ = std::clamp(value, 0, 255);
  context_.desks().Main_Change(main_);
}

void MainDesk::Key_Down(int key_code) {
  if (cli_key_) cli_key_(key_code);
}

void MainDesk::draw_strip_names(int i) {
  const Store& store = context_.store();
  const int ch = channel_of(i);
  const FaderName& fader = store.Fader_Names[ch];
  const std::string number = std::to_string(ch + 1);
  ChannelStrip& strip = strips_[i];
  strip.name_box = fader.Desc.empty() ? number : fader.Name;
  strip.name_box_tooltip = " Ch " + number + " " + fader.Desc;
  strip.fader_tooltip = " Channel " + number + " " + fader.Desc;
  strip.name_box_colour = colour_from_text(fader.Colour);
  strip.level_box_colour =
      fader.Colour != kDefaultChannelColour ? colour_from_text(fader.Colour) : Paint{};
}

void MainDesk::Refresh_Desk_Panel() {
  const Store& store = context_.store();
  for (int i = 0; i < kStrips; ++i) {
    const int level = store.Desk_Level[channel_of(i)];
    strips_[i].fader = 255 - level;
    strips_[i].level_box = std::to_string(level);
    draw_strip_names(i);
  }
  show_submix();
}

void MainDesk::sequence_desk_clicked() { Menu_Click("sequence-desk"); }
void MainDesk::playback_desk_clicked() { context_.windows().open("playback-desk"); }
void MainDesk::output_monitor_clicked() { Menu_Click("output-monitor"); }

std::vector<MenuEntry> MainDesk::menu_entries() const {
  const WindowOpener& windows = context_.windows();
  const bool project_file = context_.show_files().available();
  return {
      {"&File", "load", "&Load", project_file},
      {"&File", "load-patches", "&Load Patches", project_file},
      {"&File", "save-as", "&Save As Project", project_file},
      {"&File", "save", "&Save Project", project_file},
      {"&File", "save-submix", "Save Submix", project_file},
      {"&File", "save-patch", "Save Patch", project_file},
      {"&File", "save-sequence", "Save Sequence", project_file},
      {"&File", "reset-desk", "&Reset Desk", true},
      {"&File", "exit", "&Exit", true},
      {"&Edit", "patch-editor", "&Edit Patches", windows.can_open("patch-editor")},
      {"&Edit", "channel-properties", "&Channel Edit", windows.can_open("channel-properties")},
      {"&Edit", "project-info", "&Project Info", windows.can_open("project-info")},
      {"&Desks", "sequence-desk", "&Sequence", windows.can_open("sequence-desk")},
      {"&Desks", "output-monitor", "&Show Output", windows.can_open("output-monitor")},
      {"&Desks", "command-line", "Command &Line", windows.can_open("command-line")},
      {"&Setup", "output-device-setup", "&Output Device Setup", windows.can_open("output-device-setup")},
      {"&Setup", "bcf2000-setup", "&BCF2000 Setup", windows.can_open("bcf2000-setup")},
      {"&Setup", "art-net-setup", "&Art-Net Setup", windows.can_open("art-net-setup")},
      {"&Setup", "sacn-setup", "&sACN Setup", windows.can_open("sacn-setup")},
      {"&Setup", "ola-setup", "O&LA Output Setup", windows.can_open("ola-setup")},
      {"&Help", "keys-help", "&Keyboard and keypad", true},
      {"&Help", "about", "&About", true},
  };
}

bool MainDesk::button_enabled(const std::string& name) const {
  if (name == "sequence-desk") return context_.windows().can_open("sequence-desk");
  if (name == "playback-desk") return context_.windows().can_open("playback-desk");
  return true;
}

void MainDesk::Menu_Click(const std::string& name) {
  bool known = false;
  for (const MenuEntry& entry : menu_entries()) {
    if (entry.name != name) continue;
    if (!entry.enabled) return;
    known = true;
  }
  if (!known) return;
  ShowFiles& file = context_.show_files();
  if (name == "load") {
    file.Load();
    Refresh_Desk_Panel();
    context_.desks().Refresh_Playback_Panel();
  } else if (name == "load-patches") {
    file.Load_Patches();
  } else if (name == "save-as") {
    file.Save_As_Project();
  } else if (name == "save") {
    file.Save_Project();
  } else if (name == "save-submix") {
    file.Save_Submix();
  } else if (name == "save-patch") {
    file.Save_Patch();
  } else if (name == "save-sequence") {
    file.Save_Sequence();
  } else if (name == "reset-desk") {
    resetdesk_Click();
  } else if (name == "exit") {
    exit_clicked();
  } else if (name == "keys-help") {
    context_.dialogs().message({kKeysTitle, kKeysText, MessageIcon::Information});
  } else if (name == "about") {
    context_.dialogs().message({kAboutTitle, kAboutText, MessageIcon::Information});
  } else {
    context_.windows().open(name);
  }
}

std::vector<std::string> MainDesk::recent_shows() const { return context_.show_files().recent_shows(); }
void MainDesk::open_recent_show(const std::string& path) { context_.show_files().Load_Recent(path); }

void MainDesk::resetdesk_Click() {
  Store& store = context_.store();
  const MessageResult answer =
      context_.dialogs().message({kResetTitle, kResetQuestion, MessageIcon::Question,
                                  MessageButtons::OkCancel, MessageResult::Cancel});
  if (answer != MessageResult::Ok) return;
  store.Project_Title = "untitled";
  reset_playback_functions(store);
  reset_chases(store);
  reset_screens(store);
  reset_submixes(store);
  current_submix_ = 0;
  submix_number_ = "1";
  submix_text_ = " ";
  reset_masters();
  reset_fader_names(store);
  store.Project_Text.clear();
  set_caption(kResetCaption);
  reset_patch(store, 32);
  store.Project_File.clear();
  store.Project_Changed = false;
  context_.desks().reset_desks();
  draw_start_up_panel();
  context_.status().show_both(kResetStatus);
}

bool MainDesk::confirm_exit() {
  if (!context_.show_files().may_close_show(kBeforeClosing)) return false;
  context_.desks().shutdown();
  exit_requested_ = true;
  return true;
}

bool MainDesk::exit_clicked() {
  context_.status().show_both(kExitMenuStatus);
  return confirm_exit();
}

bool MainDesk::Form_Unload() {
  context_.status().show_both(kExitWindowStatus);
  return confirm_exit();
}

}  // namespace lumaris
