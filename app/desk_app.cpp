#include "app/desk_app.h"

#include <QApplication>

#include "app/main_desk_window.h"
#include "app/widgets/sync.h"

namespace lumaris {

DeskApp::DeskApp(PlatformServices services) {
  services.scheduler = &scheduler_;
  services.dialogs = &dialogs_;
  services.clock = &clock_;
  console_ = std::make_unique<Console>(services);
  windows_ = create_desk_windows(*this);
  main_window_ = static_cast<MainDeskWindow*>(windows_.front().get());
  synced_.resize(windows_.size());
  dialogs_.set_parent_provider([] { return QApplication::activeWindow(); });
  scheduler_.set_after_event([this] { refresh(scheduler_.event_was_tick()); });
}

DeskApp::~DeskApp() = default;

void DeskApp::start() {
  scheduler_.run_event([this] { console_->start(); });
}

void DeskApp::show_main_window() {
  main_window_->widget()->show();
  refresh_windows();
}

void DeskApp::refresh_windows() { refresh(false); }

// A window is walked only while it is shown and not minimised. After a timer's
// tick its walk is skipped when a dry pass finds the values it would write
// unchanged; after the operator's events the walk always runs, so a widget the
// operator edited shows the model again even when the model refused the edit.
void DeskApp::refresh(bool timer_tick) {
  for (std::size_t i = 0; i < windows_.size(); ++i) {
    DeskWindow& window = *windows_[i];
    QWidget* widget = window.widget();
    const bool wanted = window.model().visible();
    if (wanted && !widget->isMinimized()) {
      std::uint64_t fingerprint = 0;
      {
        const sync::DryPass dry;
        window.sync();
        fingerprint = dry.value();
      }
      if (!timer_tick || synced_[i] != fingerprint) {
        window.sync();
        ++walks_;
      }
      synced_[i] = fingerprint;
    } else {
      synced_[i].reset();
    }
    if (wanted != widget->isVisible()) {
      widget->setVisible(wanted);
      if (wanted) widget->raise();
    }
  }
}

}  // namespace lumaris
