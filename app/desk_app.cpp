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
// tick a part of its walk is skipped when a dry pass finds the values it would
// write unchanged; after the operator's events the walk always runs in full, so
// a widget the operator edited shows the model again even when the model
// refused the edit.
void DeskApp::refresh(bool timer_tick) {
  for (std::size_t i = 0; i < windows_.size(); ++i) {
    DeskWindow& window = *windows_[i];
    QWidget* widget = window.widget();
    const bool wanted = window.model().visible();
    std::vector<std::uint64_t>& synced = synced_[i];
    if (wanted && !widget->isMinimized()) {
      const int parts = window.sync_parts();
      fingerprints_.resize(static_cast<std::size_t>(parts));
      for (int part = 0; part < parts; ++part) {
        const sync::DryPass dry;
        window.sync_part(part);
        fingerprints_[static_cast<std::size_t>(part)] = dry.value();
      }
      if (!timer_tick || synced.size() != fingerprints_.size()) {
        window.sync();
        ++walks_;
      } else if (synced != fingerprints_) {
        for (int part = 0; part < parts; ++part) {
          const auto at = static_cast<std::size_t>(part);
          if (synced[at] != fingerprints_[at]) window.sync_part(part);
        }
        ++walks_;
      }
      synced = fingerprints_;
    } else {
      synced.clear();
    }
    if (wanted != widget->isVisible()) {
      widget->setVisible(wanted);
      if (wanted) widget->raise();
    }
  }
}

}  // namespace lumaris
