#include "core/main_desk.h"

#include <algorithm>
#include <filesystem>

#include "base/number_text.h"
#include "core/desk_links.h"
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
