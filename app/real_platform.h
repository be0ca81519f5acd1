#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "app/program_options.h"
#include "console/console.h"
#include "platform/linux/posix_udp_socket.h"
#include "platform/ola_client.h"
#include "platform/qt/qt_settings.h"

class QSocketNotifier;

namespace lumaris {

class LibftdiD2xx;
class PpdevPortIo;
class VendorLibraries;
class X11NumLock;
class Midi;

// The product's own hardware and network seams (FTDI, parallel port, vendor
// libraries, the Art-Net socket, MIDI, settings), owned for the life of the program.
// Needs the Qt application object to exist.
class RealPlatform {
 public:
  explicit RealPlatform(const ProgramOptions& line);
  ~RealPlatform();
  RealPlatform(const RealPlatform&) = delete;
  RealPlatform& operator=(const RealPlatform&) = delete;

  // Sets the seams this platform provides; scheduler, dialogs and clock are the caller's.
  void fill(PlatformServices& services);
  // Why this computer's settings file cannot be read; empty when it can.
  const std::string& settings_problem() const { return settings_.problem(); }

 private:
  void watch_art_socket(int descriptor);

  bool verbose_ = false;
  std::unique_ptr<LibftdiD2xx> d2xx_;
  std::unique_ptr<PpdevPortIo> port_io_;
  std::unique_ptr<VendorLibraries> adapter_libraries_;
  std::unique_ptr<Midi> midi_;  // null where the program was built without RtMidi
  QtSettings settings_;
  std::unique_ptr<X11NumLock> num_lock_;  // only on an X11 display
  PosixUdpSocket art_socket_;
  PosixUdpSocket sacn_socket_;  // sends only; nothing is read from it
  std::unique_ptr<OlaClient> ola_client_;
  std::optional<std::string> sacn_target_;
  std::optional<std::uint32_t> ola_universe_;
  std::unique_ptr<QSocketNotifier> art_notifier_;
};

}  // namespace lumaris
