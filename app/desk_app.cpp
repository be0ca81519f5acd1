#include "app/desk_app.h"

#include <QApplication>

#include "app/main_desk_window.h"

namespace lumaris {

DeskApp::DeskApp(PlatformServices services) {
  services.scheduler = &scheduler_;
  services.dialogs = &dialogs_;
  services.clock = &clock_;
  console_ = std::make_unique<Console>(services);
  windows_ = create_desk_windows(*this);
  main_window_ = static_cast<MainDeskWindow*>(windows_.front().get());
  dialogs_.set_parent_provider([] { return QApplication::activeWindow(); });
  scheduler_.set_after_event([this] { refresh_windows(); });
}

DeskApp::~DeskApp() = default;

void DeskApp::start() {
  scheduler_.run_event([this] { console_->start(); });
}

void DeskApp::show_main_window() {
  main_window_->widget()->show();
  refresh_windows();
}

void DeskApp::refresh_windows() {
  for (const auto& window : windows_) {
    QWidget* widget = window->widget();
    const bool wanted = window->model().visible();
    if (wanted) window->sync();
    if (wanted != widget->isVisible()) {
      widget->setVisible(wanted);
      if (wanted) widget->raise();
    }
  }
}

}  // namespace lumaris
