#include "core/main_desk.h"

#include <algorithm>

#include "core/channel_properties.h"
#include "console/console.h"
#include "base/number_text.h"
#include "core/output_monitor.h"
#include "core/patch_editor.h"
#include "console/project/project_file.h"
#include "core/project_info.h"
#include "net/art_config.h"
#include "output/portsetup.h"
#include "platform/dialogs.h"
#include "playback/playdesk.h"
#include "sequence/chases.h"

namespace lumaris {

namespace {
constexpr const char* kMainDeskCaption = "DMX 512 Main Desk";
constexpr const char* kResetCaption = " Lumaris   ";
constexpr const char* kRunningStatus = " Main Desk Running ";
constexpr const char* kClearedStatus = " Desk Cleared ";
constexpr const char* kResetStatus = " Desk Reset";
constexpr const char* kResetTitle = " Reset Desk";
constexpr const char* kResetQuestion = "All Current Information will Be Lost Are You Sure ";
constexpr const char* kUnsavedQuestion = "Current Project is not saved Are You Sure ";
constexpr const char* kExitMenuStatus = " Exit Software";
constexpr const char* kExitWindowStatus = " Exit";
constexpr const char* kAboutTitle = " About Lumaris";
constexpr const char* kAboutText =
    "Lumaris " LUMARIS_VERSION "\nA lighting console for one DMX512 universe.";
}  // namespace

Hoofdblad::Hoofdblad(Console& console) : Window(kMainDeskCaption), console_(console) {}

int Hoofdblad::channel_of(int strip) const {
  return console_.store().Fader_Page * kStrips + strip;
}

const std::string& Hoofdblad::Status() const { return console_.status().main(); }

void Hoofdblad::reset_masters() {
  main_ = 0;
  channels_ = 0;
  submix_master_ = 255;
  console_.playback_desk().Main_Change(main_);
}

void Hoofdblad::Form_Load() {
  Store& store = console_.store();
  store.Port_Address = 888;
  store.Project_Changed = false;
  reset_store(store);
  current_submix_ = 0;
  text9_ = "1";
  submix_text_ = " ";
  sub_colour_.reset();
  reset_masters();
  for (int i = 0; i < kStrips; ++i) {
    ChannelStrip& strip = strips_[i];
    const std::string number = std::to_string(i + 1);
    strip.Slider1_tooltip = "level on channel " + number;
    strip.Text1_tooltip = "Channel level " + number;
    strip.Command1_tooltip = "Max on channel " + number;
    strip.Command2_tooltip = "Min on channel " + number;
    strip.Text1 = "0";
  }
  store.Fader_Page = 0;
  dec_channels_enabled_ = false;
  inc_channel_enabled_ = true;
  store.Desk_Level.fill(0);
  Refresh_Desk_Panel();
  console_.status().show_main(kRunningStatus);
  Show();
}

void Hoofdblad::set_level(int i, int level) {
  Store& store = console_.store();
  const int ch = channel_of(i);
  strips_[i].Slider1 = 255 - level;
  strips_[i].Text1 = std::to_string(level);
  store.Desk_Level[ch] = static_cast<std::int16_t>(level);
  if (store.BCF_Mode == 1 && surface_fader_) surface_fader_(ch, level);
}

void Hoofdblad::Slider1_Change(int i, int value) {
  if (i < 0 || i >= kStrips) return;
  set_level(i, 255 - std::clamp(value, 0, 255));
}

void Hoofdblad::Command1_Click(int i) {
  if (i >= 0 && i < kStrips) set_level(i, 255);
}

void Hoofdblad::Command2_Click(int i) {
  if (i >= 0 && i < kStrips) set_level(i, 0);
}

void Hoofdblad::Open_Channel_Properties(int i) {
  if (i < 0 || i >= kStrips) return;
  console_.store().Edit_Channel = static_cast<std::int16_t>(channel_of(i));
  ChannelNames& properties = console_.channel_properties();
  properties.Refresh();
  properties.Show();
}

void Hoofdblad::Inc_Channel_Click() {
  Store& store = console_.store();
  dec_channels_enabled_ = true;
  if (store.Fader_Page < 1) ++store.Fader_Page;
  if (store.Fader_Page == 1) inc_channel_enabled_ = false;
  Refresh_Desk_Panel();
  console_.status().show_main(" Faders" + str_number(store.Fader_Page) + " Selected");
}

void Hoofdblad::Dec_Channels_Click() {
  Store& store = console_.store();
  inc_channel_enabled_ = true;
  if (store.Fader_Page > 0) --store.Fader_Page;
  if (store.Fader_Page == 0) dec_channels_enabled_ = false;
  Refresh_Desk_Panel();
  console_.status().show_main(" Faders" + str_number(store.Fader_Page) + " Selected");
}

void Hoofdblad::Clearall_Click() {
  Store& store = console_.store();
  for (ChannelStrip& strip : strips_) {
    strip.Slider1 = 255;
    strip.Text1 = "0";
  }
  std::fill(store.Desk_Level.begin(), store.Desk_Level.begin() + kDeskChannels, 0);
  if (store.BCF_Mode == 1 && surface_fader_) {
    for (int ch = 0; ch < kDeskChannels; ++ch) surface_fader_(ch, 0);
  }
  console_.status().show_main(kClearedStatus);
}

void Hoofdblad::channels_Change(int value) { channels_ = std::clamp(value, 0, 255); }

void Hoofdblad::Submix_Master_Change(int value) { submix_master_ = std::clamp(value, 0, 255); }

void Hoofdblad::Main_Change(int value) {
  main_ = std::clamp(value, 0, 255);
  console_.playback_desk().Main_Change(main_);
}

void Hoofdblad::Key_Down(int key_code) {
  if (cli_key_) cli_key_(key_code);
}

void Hoofdblad::draw_strip_names(int i) {
  const Store& store = console_.store();
  const int ch = channel_of(i);
  const FaderName& fader = store.Fader_Names[ch];
  const std::string number = std::to_string(ch + 1);
  ChannelStrip& strip = strips_[i];
  strip.Text3 = fader.Desc.empty() ? number : fader.Name;
  strip.Text3_tooltip = " Ch " + number + " " + fader.Desc;
  strip.Slider1_tooltip = " Channel " + number + " " + fader.Desc;
  strip.Text3_colour = colour_from_text(fader.Colour);
  strip.Text1_colour =
      fader.Colour != kDefaultChannelColour ? colour_from_text(fader.Colour) : Paint{};
}

void Hoofdblad::Refresh_Desk_Panel() {
  const Store& store = console_.store();
  for (int i = 0; i < kStrips; ++i) {
    const int level = store.Desk_Level[channel_of(i)];
    strips_[i].Slider1 = 255 - level;
    strips_[i].Text1 = std::to_string(level);
    draw_strip_names(i);
  }
  show_submix();
}

void Hoofdblad::Command3_Click() { Menu_Click("Chase_Screen"); }
void Hoofdblad::Command21_Click() { console_.playback_desk().Show(); }
void Hoofdblad::Command22_Click() { Menu_Click("realoutput"); }

std::vector<MenuEntry> Hoofdblad::menu_entries() const {
  Console& c = console_;
  const bool project_file = c.project_file().available();
  return {
      {"&File", "LoadXML", "&Load", project_file},
      {"&File", "Load_P_XML", "&Load Patches", project_file},
      {"&File", "SaveXML", "&Save As Project", project_file},
      {"&File", "Save_Instant", "&Save Project", project_file},
      {"&File", "Save_Submix_XML", "Save Submix", project_file},
      {"&File", "Save_Patch_XML", "Save Patch", project_file},
      {"&File", "Save_Chase_XML", "Save Sequence", project_file},
      {"&File", "resetdesk", "&Reset Desk", true},
      {"&File", "eruit", "&Exit", true},
      {"&Edit", "editpatch", "&Edit Patches", true},
      {"&Edit", "Channel_Edit", "&Channel Edit", true},
      {"&Edit", "project_info", "&Project Info", true},
      {"&Desks", "Chase_Screen", "&Sequence", c.sequence_desk().available()},
      {"&Desks", "realoutput", "&Show Output", true},
      {"&Desks", "CLI_sel", "Command &Line", false},
      {"&Setup", "port_setup", "&Output Device Setup", c.port_setup().available()},
      {"&Setup", "BCF2000_setup", "&BCF2000 Setup", false},
      {"&Setup", "Art_setup", "&Art-Net Setup", c.art_config().available()},
      {"&Help", "Aboutmenu", "&About", true},
  };
}

bool Hoofdblad::button_enabled(const std::string& name) const {
  if (name == "Command3") return console_.sequence_desk().available();
  if (name == "Command21") return console_.playback_desk().available();
  return true;
}

void Hoofdblad::Menu_Click(const std::string& name) {
  for (const MenuEntry& entry : menu_entries()) {
    if (entry.name == name && !entry.enabled) return;
  }
  Console& c = console_;
  ProjectFile& file = c.project_file();
  if (name == "LoadXML") {
    file.Load();
    Refresh_Desk_Panel();
    c.playback_desk().Refresh_Playback_Panel();
  } else if (name == "Load_P_XML") {
    file.Load_Patches();
  } else if (name == "SaveXML") {
    file.Save_As_Project();
  } else if (name == "Save_Instant") {
    file.Save_Project();
  } else if (name == "Save_Submix_XML") {
    file.Save_Submix();
  } else if (name == "Save_Patch_XML") {
    file.Save_Patch();
  } else if (name == "Save_Chase_XML") {
    file.Save_Sequence();
  } else if (name == "resetdesk") {
    resetdesk_Click();
  } else if (name == "eruit") {
    eruit_Click();
  } else if (name == "editpatch") {
    c.patch_editor().Form_Load();
    c.patch_editor().Show();
  } else if (name == "Channel_Edit") {
    c.channel_properties().Refresh();
    c.channel_properties().Show();
  } else if (name == "project_info") {
    c.project_info().Form_Load();
    c.project_info().Show();
  } else if (name == "Chase_Screen") {
    c.sequence_desk().Show();
  } else if (name == "realoutput") {
    c.output_monitor().Show();
  } else if (name == "port_setup") {
    c.port_setup().Form_Load();
    c.port_setup().Show();
  } else if (name == "Art_setup") {
    c.art_config().Form_Load();
    c.art_config().Show();
  } else if (name == "Aboutmenu") {
    c.dialogs().message({kAboutTitle, kAboutText, MessageIcon::Information});
  }
}

void Hoofdblad::resetdesk_Click() {
  Console& c = console_;
  Store& store = c.store();
  const MessageResult answer =
      c.dialogs().message({kResetTitle, kResetQuestion, MessageIcon::Question,
                           MessageButtons::OkCancel, MessageResult::Cancel});
  if (answer != MessageResult::Ok) return;
  store.Project_Title = "untitled";
  reset_playback_functions(store);
  reset_chases(store);
  reset_screens(store);
  reset_submixes(store);
  current_submix_ = 0;
  text9_ = "1";
  submix_text_ = " ";
  reset_masters();
  reset_fader_names(store);
  store.Project_Text.clear();
  c.playback_desk().set_reset_caption();
  set_caption(kResetCaption);
  reset_patch(store, 32);
  store.Project_File.clear();
  store.Project_Changed = false;
  c.playback_desk().Clear_All();
  c.playback_desk().Refresh_Playback_Panel();
  c.sequence_desk().Refresh_Desk();
  Refresh_Desk_Panel();
  c.status().show_both(kResetStatus);
}

bool Hoofdblad::confirm_exit() {
  Console& c = console_;
  if (c.store().Project_Changed) {
    const MessageResult answer =
        c.dialogs().message({kResetTitle, kUnsavedQuestion, MessageIcon::Question,
                             MessageButtons::OkCancel, MessageResult::Cancel});
    if (answer != MessageResult::Ok) return false;
  }
  c.shutdown();
  exit_requested_ = true;
  return true;
}

bool Hoofdblad::eruit_Click() {
  console_.status().show_both(kExitMenuStatus);
  return confirm_exit();
}

bool Hoofdblad::Form_Unload() {
  console_.status().show_both(kExitWindowStatus);
  return confirm_exit();
}

}  // namespace lumaris
