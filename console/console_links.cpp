#include "console/console_links.h"

#include "console/console.h"
#include "core/channel_properties.h"
#include "core/output_monitor.h"
#include "core/patch_editor.h"
#include "core/project_info.h"
#include "net/art_config.h"
#include "output/portsetup.h"
#include "playback/playdesk.h"
#include "sequence/chases.h"

namespace lumaris {

bool ConsoleLinks::can_open(const std::string& name) const {
  Console& c = console_;
  if (name == "editpatch") return c.patch_editor().available();
  if (name == "Channel_Edit") return c.channel_properties().available();
  if (name == "project_info") return c.project_info().available();
  if (name == "Chase_Screen") return c.sequence_desk().available();
  if (name == "realoutput") return true;
  if (name == "port_setup") return c.port_setup().available();
  if (name == "Art_setup") return c.art_config().available();
  if (name == "Playdesk") return c.playback_desk().available();
  return false;
}

void ConsoleLinks::open(const std::string& name) {
  Console& c = console_;
  if (name == "editpatch") {
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
  } else if (name == "Playdesk") {
    c.playback_desk().Show();
  }
}

void ConsoleLinks::Main_Change(int value) { console_.playback_desk().Main_Change(value); }

void ConsoleLinks::Refresh_Playback_Panel() { console_.playback_desk().Refresh_Playback_Panel(); }

void ConsoleLinks::reset_desks() {
  Playdesk& playback = console_.playback_desk();
  playback.set_reset_caption();
  playback.Clear_All();
  playback.Refresh_Playback_Panel();
  console_.sequence_desk().Refresh_Desk();
}

void ConsoleLinks::shutdown() { console_.shutdown(); }

void ConsoleLinks::BCF_Fader_Update(int index, int level) {
  if (surface_ != nullptr) surface_->BCF_Fader_Update(index, level);
}

void ConsoleLinks::BCF_Button_Update(int index, bool state) {
  if (surface_ != nullptr) surface_->BCF_Button_Update(index, state);
}

}  // namespace lumaris
