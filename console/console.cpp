#include "console/console.h"

#include <vector>

#include "console/console_links.h"
#include "console/output_cycle.h"
#include "console/window_registry.h"
#include "console/project/project_file.h"
#include "core/channel_properties.h"
#include "core/main_desk.h"
#include "core/output_monitor.h"
#include "core/patch_editor.h"
#include "core/project_info.h"
#include "fixtures/fixture_properties.h"
#include "fixtures/moving_desk.h"
#include "keypad/cli.h"
#include "net/art_net_setup.h"
#include "net/art_net_node.h"
#include "net/sacn_setup.h"
#include "net/sacn_output.h"
#include "output/ola_setup.h"
#include "output/ola_output.h"
#include "output/output_devices.h"
#include "output/output_device_setup.h"
#include "platform/posix_file_system.h"
#include "platform/scheduler.h"
#include "playback/instant_cues.h"
#include "playback/playback_chases.h"
#include "playback/playback_desk.h"
#include "playback/run_mode.h"
#include "sequence/chase_runtime.h"
#include "sequence/sequence_desk.h"
#include "surface/bcf.h"
#include "surface/bcf_setup.h"

namespace lumaris {

Console::Console(const PlatformServices& services)
    : services_(services), store_(std::make_unique<Store>()) {
  if (services_.file_system == nullptr) {
    own_file_system_ = std::make_unique<PosixFileSystem>();
    services_.file_system = own_file_system_.get();
  }
  reset_store(*store_);
  project_file_ = std::make_unique<ProjectFile>(*this);
  links_ = std::make_unique<ConsoleLinks>(*this);
  windows_ = std::make_unique<WindowRegistry>();
  const DeskContext::Seams seams{services_.scheduler, services_.dialogs,    services_.clock,
                                 services_.file_system, services_.settings, services_.diagnostics};
  const DeskContext::Links links{windows_.get(), project_file_.get(), links_.get(), links_.get()};
  context_ = std::make_unique<DeskContext>(*store_, status_, seams, links);

  // Timers due at the same moment tick in the order they were made: the output
  // timer first, then Art-Net's, then the desks'.
  output_timer_ = services_.scheduler->create_timer(true);
  main_desk_ = std::make_unique<MainDesk>(*context_);
  art_net_ = std::make_unique<ArtNetNode>(*context_, services_.art_socket, *main_desk_);
  output_monitor_ = std::make_unique<OutputMonitor>(*context_);
  patch_editor_ = std::make_unique<PatchEditor>(*context_);
  channel_properties_ = std::make_unique<ChannelProperties>(*context_, *main_desk_);
  project_info_ = std::make_unique<ProjectInfo>(*context_);
  playback_desk_ = std::make_unique<PlaybackDesk>(*context_, *main_desk_);
  sequence_desk_ = std::make_unique<SequenceDesk>(*context_, *main_desk_);
  moving_desk_ = std::make_unique<MovingDesk>(*context_, *sequence_desk_);
  sequence_desk_->set_moving_panel(moving_desk_.get());
  output_devices_ = std::make_unique<OutputDevices>(
      *context_, AdapterSeams{services_.d2xx, services_.port_io, services_.adapter_libraries});
  output_device_setup_ = std::make_unique<OutputDeviceSetup>(*context_, *output_devices_, *output_timer_);
  output_devices_->set_setup_window(*output_device_setup_);
  art_net_setup_ = std::make_unique<ArtNetSetup>(*context_, *art_net_, *main_desk_);
  sacn_output_ = std::make_unique<SacnOutput>(*context_, services_.sacn_socket);
  if (services_.sacn_target) sacn_output_->set_run_target(*services_.sacn_target);
  sacn_setup_ = std::make_unique<SacnSetup>(*context_, *sacn_output_);
  ola_output_ = std::make_unique<OlaOutput>(*context_, services_.ola_client);
  if (services_.ola_universe) ola_output_->set_run_universe(*services_.ola_universe);
  ola_setup_ = std::make_unique<OlaSetup>(*context_, *ola_output_);
  const std::vector<OutputSink*> sinks{output_devices_.get(), art_net_.get(), sacn_output_.get(),
                                       ola_output_.get()};
  output_cycle_ = std::make_unique<OutputCycle>(*context_, *output_timer_, *main_desk_,
                                                *output_monitor_, *playback_desk_, sinks);
  ChaseRuntime& chase = sequence_desk_->runtime();
  output_cycle_->add_fade([&chase](double now) { chase.sample_output(now); });
  // The take first: the playback chases crossfade on its level.
  RunMode& run_mode = playback_desk_->run_mode();
  output_cycle_->add_fade([&run_mode](double now) { run_mode.sample_output(now); });
  PlaybackChases& playback_chases = playback_desk_->chases();
  output_cycle_->add_fade([&playback_chases](double now) { playback_chases.sample_output(now); });
  playback_desk_->set_output_interval([this] { return output_timer_->interval(); });
  cli_ = std::make_unique<CLI>(*context_, *main_desk_, *playback_desk_, services_.num_lock);
  main_desk_->set_cli_key_handler([this](int key_code) { cli_->CLI_Key(key_code); });
  surface_ = std::make_unique<BCF>(*context_, services_.midi, *main_desk_, *playback_desk_);
  surface_setup_ = std::make_unique<BcfSetup>(*context_, *surface_);
  links_->attach_surface(surface_.get());
  register_windows();
}

// The windows the desks open by name: the main desk's menu entries, and the
// playback desk, which no menu entry opens.
void Console::register_windows() {
  WindowRegistry& w = *windows_;
  PatchEditor& patch = *patch_editor_;
  w.add("patch-editor", {&patch, [&patch] { patch.Form_Load(); }, [&patch] { patch.Form_Load(); }});
  ChannelProperties& properties = *channel_properties_;
  const auto refresh_properties = [&properties] { properties.Refresh(); };
  w.add("channel-properties", {&properties, refresh_properties, refresh_properties});
  ProjectInfo& info = *project_info_;
  w.add("project-info", {&info, [&info] { info.Form_Load(); }, [&info] { info.Form_Load(); }});
  w.add("sequence-desk", {sequence_desk_.get(), {}, {}});
  w.add("fixture-properties", {&moving_desk_->fixture_prop(), {}, {}});
  w.add("output-monitor", {output_monitor_.get(), {}, {}});
  OutputDeviceSetup& setup = *output_device_setup_;
  w.add("output-device-setup", {&setup, [&setup] { setup.Form_Load(); }, [&setup] { setup.Refresh(); }});
  ArtNetSetup& art = *art_net_setup_;
  const auto load_art = [&art] { art.Form_Load(); };
  w.add("art-net-setup", {&art, load_art, load_art});
  CLI& cli = *cli_;
  w.add("command-line", {&cli, [&cli] { cli.Form_Load(); }, {}});
  BCF& surface = *surface_;
  w.add("bcf2000", {&surface, [&surface] { surface.Form_Load(); }, {}});
  BcfSetup& surface_setup = *surface_setup_;
  w.add("bcf2000-setup", {&surface_setup, [&surface_setup] { surface_setup.Form_Load(); }, {}});
  SacnSetup& sacn = *sacn_setup_;
  const auto load_sacn = [&sacn] { sacn.Form_Load(); };
  w.add("sacn-setup", {&sacn, load_sacn, load_sacn});
  OlaSetup& ola = *ola_setup_;
  const auto load_ola = [&ola] { ola.Form_Load(); };
  w.add("ola-setup", {&ola, load_ola, load_ola});
  if (playback_desk_->available()) {
    w.add("playback-desk", {playback_desk_.get(), {}, {}});
    w.add("instant-cues", {&playback_desk_->instant_cues(), {}, {}});
  }
}

Console::~Console() = default;

void Console::attach_surface(SurfaceFeedback* surface) { links_->attach_surface(surface); }

void Console::start() {
  main_desk_->Form_Load();
  playback_desk_->Form_Load();
  output_cycle_->start();
}

void Console::shutdown() {
  if (shut_down_) return;
  shut_down_ = true;
  output_cycle_->stop();
  surface_->Form_Unload();
}

}  // namespace lumaris
