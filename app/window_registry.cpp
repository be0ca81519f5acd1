#include "app/channel_properties_window.h"
#include "app/sequence_desk_window.h"
#include "app/cli_window.h"
#include "app/cue_editor_window.h"
#include "app/desk_app.h"
#include "app/fixture_properties_window.h"
#include "app/main_desk_window.h"
#include "app/output_monitor_window.h"
#include "app/patch_editor_window.h"
#include "app/project_info_window.h"
#include "app/art_net_setup_window.h"
#include "app/bcf_setup_window.h"
#include "app/bcf_window.h"
#include "app/function_setup_window.h"
#include "app/instant_cues_window.h"
#include "app/playback_desk_window.h"
#include "app/output_device_setup_window.h"
#include "app/ola_setup_window.h"
#include "app/sacn_setup_window.h"
#include "app/widgets/screen_fit.h"

namespace lumaris {

std::vector<std::unique_ptr<DeskWindow>> create_desk_windows(DeskApp& app) {
  std::vector<std::unique_ptr<DeskWindow>> windows;
  windows.push_back(std::make_unique<MainDeskWindow>(app));
  windows.push_back(std::make_unique<PatchEditorWindow>(app));
  windows.push_back(std::make_unique<ChannelPropertiesWindow>(app));
  windows.push_back(std::make_unique<OutputMonitorWindow>(app));
  windows.push_back(std::make_unique<ProjectInfoWindow>(app));
  windows.push_back(std::make_unique<SequenceDeskWindow>(app));
  windows.push_back(std::make_unique<FixturePropertiesWindow>(app));
  windows.push_back(std::make_unique<ArtNetSetupWindow>(app));
  windows.push_back(std::make_unique<OutputDeviceSetupWindow>(app));
  windows.push_back(std::make_unique<SacnSetupWindow>(app));
  windows.push_back(std::make_unique<OlaSetupWindow>(app));
  windows.push_back(std::make_unique<PlaybackDeskWindow>(app));
  windows.push_back(std::make_unique<FunctionSetupWindow>(app, FunctionSetupWindow::Kind::Buttons));
  windows.push_back(std::make_unique<FunctionSetupWindow>(app, FunctionSetupWindow::Kind::Faders));
  windows.push_back(std::make_unique<CueEditorWindow>(app));
  windows.push_back(std::make_unique<CliWindow>(app));
  windows.push_back(std::make_unique<InstantCuesWindow>(app));
  windows.push_back(std::make_unique<BcfSetupWindow>(app));
  windows.push_back(std::make_unique<BcfWindow>(app));
  for (const auto& window : windows) ScreenFit::watch(window->widget());
  return windows;
}

}  // namespace lumaris
