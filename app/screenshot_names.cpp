#include "app/screenshot_names.h"

#include <cctype>
#include <map>

namespace lumaris {

namespace {
// Several windows' own names are Dutch or abbreviated, and some captions say
// little ("Edit patchlist "); these are the names the README and menus use.
const std::map<std::string, std::string>& labels() {
  static const std::map<std::string, std::string> known{
      {"Hoofdblad", "main-desk"},
      {"Playdesk", "playback-desk"},
      {"Chases", "sequence-desk"},
      {"Realout", "output-monitor"},
      {"editpatchlist", "patch-editor"},
      {"Channel_Names", "channel-properties"},
      {"Project_text", "project-info"},
      {"Portsetup", "output-device-setup"},
      {"Art_Config", "art-net-setup"},
      {"namedit", "edit-cues"},
      {"Button_Function_Form", "playback-button-functions"},
      {"Fader_Function_Form", "playback-fader-functions"},
  };
  return known;
}

std::string slug(const std::string& text) {
  std::string out;
  for (const char c : text) {
    if (std::isalnum(static_cast<unsigned char>(c)) != 0) {
      out += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    } else if (!out.empty() && out.back() != '-') {
      out += '-';
    }
  }
  while (!out.empty() && out.back() == '-') out.pop_back();
  return out.empty() ? std::string("window") : out;
}
}  // namespace

std::string screenshot_file_name(const std::string& window_name, const std::string& caption) {
  const auto found = labels().find(window_name);
  return (found != labels().end() ? found->second : slug(caption)) + "_" + window_name;
}

}  // namespace lumaris
