#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/desk_window.h"
#include "console/console.h"
#include "platform/clock.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_scheduler.h"

namespace lumaris {

class MainDeskWindow;

// The desktop console: the engine on Qt timers and dialogs, and one Qt window
// per desk window model. After every engine event the shown windows re-sync.
class DeskApp {
 public:
  // `services` may carry hardware seams; scheduler, dialogs and clock are set here.
  explicit DeskApp(PlatformServices services = {});
  ~DeskApp();

  void start();
  void show_main_window();
  Console& console() { return *console_; }
  QtScheduler& scheduler() { return scheduler_; }

  // Runs an operator event on the engine, then re-syncs the windows.
  template <typename Work>
  void handle(Work&& work) {
    scheduler_.run_event(std::forward<Work>(work));
  }
  void refresh_windows();

  const std::vector<std::unique_ptr<DeskWindow>>& windows() const { return windows_; }
  MainDeskWindow& main_window() { return *main_window_; }

 private:
  QtScheduler scheduler_;
  QtDialogs dialogs_;
  SystemClock clock_;
  std::unique_ptr<Console> console_;
  std::vector<std::unique_ptr<DeskWindow>> windows_;
  MainDeskWindow* main_window_ = nullptr;
};

// Creates every Qt window of the console; the main desk comes first.
std::vector<std::unique_ptr<DeskWindow>> create_desk_windows(DeskApp& app);

}  // namespace lumaris
