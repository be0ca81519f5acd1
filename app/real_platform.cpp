#include "app/real_platform.h"

#include <QGuiApplication>
#include <QSocketNotifier>
#include <iostream>

#include "platform/linux/libftdi_d2xx.h"
#ifdef LUMARIS_HAVE_OLA
#include "platform/linux/ola_streaming_client.h"
#endif
#include "platform/linux/ppdev_port_io.h"
#include "platform/linux/vendor_libraries.h"
#include "platform/linux/x11_num_lock.h"
#include "platform/midi.h"
#ifdef LUMARIS_HAVE_RTMIDI
#include "platform/linux/rtmidi_midi.h"
#endif

namespace lumaris {

RealPlatform::RealPlatform(const ProgramOptions& line)
    : verbose_(line.verbose),
      d2xx_(std::make_unique<LibftdiD2xx>()),
      port_io_(std::make_unique<PpdevPortIo>(&std::cerr)),
      adapter_libraries_(std::make_unique<VendorLibraries>()),
      sacn_target_(line.sacn_target),
      ola_universe_(line.ola_universe) {
#ifdef LUMARIS_HAVE_OLA
  ola_client_ = std::make_unique<OlaStreamingClient>();
#endif
#ifdef LUMARIS_HAVE_RTMIDI
  midi_ = std::make_unique<RtMidiMidi>();
#endif
  art_socket_.on_descriptor_change([this](int descriptor) { watch_art_socket(descriptor); });
  // Num Lock can be kept on only where the windows are on an X11 display.
  if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr &&
      QGuiApplication::platformName() == QStringLiteral("xcb")) {
    num_lock_ = std::make_unique<X11NumLock>();
  }
}

RealPlatform::~RealPlatform() {
  art_socket_.on_descriptor_change(nullptr);
  art_notifier_.reset();
}

void RealPlatform::watch_art_socket(int descriptor) {
  art_notifier_.reset();
  if (descriptor < 0) return;
  art_notifier_ = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
  // The node turns each datagram into a desk event of its own (Scheduler::post).
  QObject::connect(art_notifier_.get(), &QSocketNotifier::activated,
                   [this] { art_socket_.read_pending(); });
}

void RealPlatform::fill(PlatformServices& services) {
  services.diagnostics = verbose_ ? &std::cerr : nullptr;
  services.art_socket = &art_socket_;
  services.settings = &settings_;
  services.num_lock = num_lock_.get();
  services.sacn_socket = &sacn_socket_;
  services.ola_client = ola_client_.get();
  services.sacn_target = sacn_target_;
  services.ola_universe = ola_universe_;
  services.d2xx = d2xx_.get();
  services.port_io = port_io_.get();
  services.adapter_libraries = adapter_libraries_.get();
  services.midi = midi_.get();
}

}  // namespace lumaris
