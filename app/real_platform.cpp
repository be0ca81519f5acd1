#include "app/real_platform.h"

#include <QGuiApplication>
#include <QSocketNotifier>
#include <iostream>

#include "net/art_net_node.h"
#include "platform/linux/libftdi_d2xx.h"
#include "platform/linux/ppdev_port_io.h"
#include "platform/linux/vendor_libraries.h"
#include "platform/linux/x11_num_lock.h"

namespace lumaris {

RealPlatform::RealPlatform(const ProgramOptions& line)
    : verbose_(line.verbose),
      d2xx_(std::make_unique<LibftdiD2xx>()),
      port_io_(std::make_unique<PpdevPortIo>(&std::cerr)),
      adapter_libraries_(std::make_unique<VendorLibraries>()) {
  // --artnet-target is the Destination field set from the command line: it is
  // kept, like the field, with this computer's settings. The parser has checked it.
  if (line.artnet_target) settings_.write(D_ArtNet::kDestinationSetting, *line.artnet_target);
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
  services.d2xx = d2xx_.get();
  services.port_io = port_io_.get();
  services.adapter_libraries = adapter_libraries_.get();
}

}  // namespace lumaris
