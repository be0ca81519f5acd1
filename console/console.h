#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include "core/desk_context.h"
#include "core/status_lines.h"
#include "core/store.h"

namespace lumaris {

class Scheduler;
class Dialogs;
class Clock;
class D2xx;
class PortIo;
class AdapterLibraries;
class UdpSocket;
class Midi;
class Settings;
class FileSystem;
class Timer;
class NumLock;

class ConsoleLinks;
class WindowRegistry;
class SurfaceFeedback;
class MainDesk;
class OutputCycle;
class OutputMonitor;
class PatchEditor;
class ChannelProperties;
class ProjectInfo;
class PlaybackDesk;
class SequenceDesk;
class OutputDevices;
class OutputDeviceSetup;
class ArtNetNode;
class ArtNetSetup;
class ProjectFile;
class CLI;
class MovingDesk;
class BCF;
class BcfSetup;
class OlaClient;
class SacnOutput;
class SacnSetup;
class OlaOutput;
class OlaSetup;

// The outside world as the console sees it. Scheduler, dialogs and clock are
// required; a missing hardware seam behaves as hardware that does not answer.
struct PlatformServices {
  Scheduler* scheduler = nullptr;
  Dialogs* dialogs = nullptr;
  const Clock* clock = nullptr;
  D2xx* d2xx = nullptr;
  PortIo* port_io = nullptr;
  AdapterLibraries* adapter_libraries = nullptr;
  UdpSocket* art_socket = nullptr;
  Midi* midi = nullptr;                 // null: no MIDI, so no control surface
  Settings* settings = nullptr;
  std::ostream* diagnostics = nullptr;  // the Art-Net log and similar; null discards
  FileSystem* file_system = nullptr;    // null: the computer's own files
  NumLock* num_lock = nullptr;          // null: the keyboard's Num Lock is left alone
  UdpSocket* sacn_socket = nullptr;
  OlaClient* ola_client = nullptr;      // null: this program has no OLA
  // Command-line choices for this run only; never saved.
  std::optional<std::string> sacn_target;
  std::optional<std::uint32_t> ola_universe;
};

// One console: the store, the platform seams and every window model, built and
// wired. Everything runs on one thread.
class Console {
 public:
  explicit Console(const PlatformServices& services);
  ~Console();
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;

  // Runs the main desk's start-up and starts the output timer.
  void start();
  // The program's exit path: closes devices. Safe to call more than once.
  void shutdown();

  Store& store() { return *store_; }
  const Store& store() const { return *store_; }
  Scheduler& scheduler() { return *services_.scheduler; }
  Dialogs& dialogs() { return *services_.dialogs; }
  const Clock& clock() const { return *services_.clock; }
  const PlatformServices& services() const { return services_; }
  FileSystem& file_system() { return *services_.file_system; }
  StatusLines& status() { return status_; }
  DeskContext& context() { return *context_; }
  WindowRegistry& windows() { return *windows_; }
  // The control surface that follows the desks' faders and buttons; null: none.
  void attach_surface(SurfaceFeedback* surface);

  MainDesk& main_desk() { return *main_desk_; }
  OutputCycle& output_cycle() { return *output_cycle_; }
  OutputMonitor& output_monitor() { return *output_monitor_; }
  PatchEditor& patch_editor() { return *patch_editor_; }
  ChannelProperties& channel_properties() { return *channel_properties_; }
  ProjectInfo& project_info() { return *project_info_; }
  PlaybackDesk& playback_desk() { return *playback_desk_; }
  SequenceDesk& sequence_desk() { return *sequence_desk_; }
  MovingDesk& moving_desk() { return *moving_desk_; }
  OutputDevices& output_devices() { return *output_devices_; }
  OutputDeviceSetup& output_device_setup() { return *output_device_setup_; }
  ArtNetNode& art_net() { return *art_net_; }
  ArtNetSetup& art_net_setup() { return *art_net_setup_; }
  ProjectFile& project_file() { return *project_file_; }
  CLI& cli() { return *cli_; }
  BCF& surface() { return *surface_; }
  BcfSetup& surface_setup() { return *surface_setup_; }
  SacnOutput& sacn_output() { return *sacn_output_; }
  SacnSetup& sacn_setup() { return *sacn_setup_; }
  OlaOutput& ola_output() { return *ola_output_; }
  OlaSetup& ola_setup() { return *ola_setup_; }

 private:
  void register_windows();

  PlatformServices services_;
  std::unique_ptr<FileSystem> own_file_system_;
  std::unique_ptr<Store> store_;
  StatusLines status_;
  bool shut_down_ = false;

  std::unique_ptr<ProjectFile> project_file_;
  std::unique_ptr<ConsoleLinks> links_;
  std::unique_ptr<WindowRegistry> windows_;
  std::unique_ptr<DeskContext> context_;
  std::unique_ptr<Timer> output_timer_;
  std::unique_ptr<MainDesk> main_desk_;
  std::unique_ptr<ArtNetNode> art_net_;
  std::unique_ptr<OutputMonitor> output_monitor_;
  std::unique_ptr<PatchEditor> patch_editor_;
  std::unique_ptr<ChannelProperties> channel_properties_;
  std::unique_ptr<ProjectInfo> project_info_;
  std::unique_ptr<PlaybackDesk> playback_desk_;
  std::unique_ptr<SequenceDesk> sequence_desk_;
  std::unique_ptr<MovingDesk> moving_desk_;
  std::unique_ptr<OutputDevices> output_devices_;
  std::unique_ptr<OutputDeviceSetup> output_device_setup_;
  std::unique_ptr<ArtNetSetup> art_net_setup_;
  std::unique_ptr<SacnOutput> sacn_output_;
  std::unique_ptr<SacnSetup> sacn_setup_;
  std::unique_ptr<OlaOutput> ola_output_;
  std::unique_ptr<OlaSetup> ola_setup_;
  std::unique_ptr<OutputCycle> output_cycle_;
  std::unique_ptr<CLI> cli_;
  std::unique_ptr<BCF> surface_;
  std::unique_ptr<BcfSetup> surface_setup_;
};

}  // namespace lumaris
