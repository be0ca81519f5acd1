#include "app/channel_properties_window.h"
#include "app/chases_window.h"
#include "app/cli_window.h"
#include "app/cue_editor_window.h"
#include "app/desk_app.h"
#include "app/fixture_prop_window.h"
#include "app/main_desk_window.h"
#include "app/output_monitor_window.h"
#include "app/patch_editor_window.h"
#include "app/project_info_window.h"
#include "app/art_config_window.h"
#include "app/bcf_configure_window.h"
#include "app/bcf_window.h"
#include "app/function_setup_window.h"
#include "app/instant_screen_window.h"
#include "app/playdesk_window.h"
#include "app/portsetup_window.h"
#include "app/ola_config_window.h"
#include "app/sacn_config_window.h"

namespace lumaris {

std::vector<std::unique_ptr<DeskWindow>> create_desk_windows(DeskApp& app) {
  std::vector<std::unique_ptr<DeskWindow>> windows;
  windows.push_back(std::make_unique<MainDeskWindow>(app));
  windows.push_back(std::make_unique<PatchEditorWindow>(app));
  windows.push_back(std::make_unique<ChannelPropertiesWindow>(app));
  windows.push_back(std::make_unique<OutputMonitorWindow>(app));
  windows.push_back(std::make_unique<ProjectInfoWindow>(app));
  windows.push_back(std::make_unique<ChasesWindow>(app));
  windows.push_back(std::make_unique<FixturePropWindow>(app));
  windows.push_back(std::make_unique<ArtConfigWindow>(app));
  windows.push_back(std::make_unique<PortsetupWindow>(app));
  windows.push_back(std::make_unique<SacnConfigWindow>(app));
  windows.push_back(std::make_unique<OlaConfigWindow>(app));
  windows.push_back(std::make_unique<PlaydeskWindow>(app));
  windows.push_back(std::make_unique<FunctionSetupWindow>(app, FunctionSetupWindow::Kind::Buttons));
  windows.push_back(std::make_unique<FunctionSetupWindow>(app, FunctionSetupWindow::Kind::Faders));
  windows.push_back(std::make_unique<CueEditorWindow>(app));
  windows.push_back(std::make_unique<CliWindow>(app));
  windows.push_back(std::make_unique<InstantScreenWindow>(app));
  windows.push_back(std::make_unique<BcfConfigureWindow>(app));
  windows.push_back(std::make_unique<BcfWindow>(app));
  return windows;
}

}  // namespace lumaris
