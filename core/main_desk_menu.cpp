#include "core/main_desk.h"

#include "core/desk_links.h"
#include "core/keys_help.h"
#include "core/show_files.h"
#include "core/window_opener.h"
#include "platform/dialogs.h"

// The main desk's menus and the buttons that open the other desks.
namespace lumaris {

namespace {
constexpr const char* kAboutTitle = " About Lumaris";
constexpr const char* kAboutText =
    "Lumaris " LUMARIS_VERSION "\nA lighting console for one DMX512 universe.";
}  // namespace

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

}  // namespace lumaris
