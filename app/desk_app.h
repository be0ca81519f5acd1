#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <QKeySequence>
#include <QObject>
#include <QTimer>

#include "app/desk_window.h"
#include "console/console.h"
#include "platform/clock.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_scheduler.h"

namespace lumaris {

class MainDeskWindow;

// The desktop console: the engine on Qt timers and dialogs, and one Qt window
// per desk window model. After every engine event the shown windows re-sync,
// each only when something it shows may have changed.
class DeskApp {
 public:
  // `services` may carry hardware seams and dialogs; the scheduler and clock are
  // set here, and Qt's dialogs when none are given.
  explicit DeskApp(PlatformServices services = {});
  ~DeskApp();

  void start();
  void show_main_window();
  Console& console() { return *console_; }
  QtScheduler& scheduler() { return scheduler_; }

  // Runs an operator event from a window on the engine, then re-syncs the
  // windows. Nothing runs once the desk is closing.
  template <typename Work>
  void handle(Work&& work) {
    if (closing_) return;
    scheduler_.run_operator_event(std::forward<Work>(work));
  }
  // Re-syncs every shown window in full.
  void refresh_windows();
  // The walks of windows (in full or of some parts) so far; a wiring test counts them.
  long walks() const { return walks_; }

  // Events that are not the operator's (ticks, datagrams, MIDI) re-sync the
  // windows at most once in this many ms: the first at once, the rest of a burst
  // together at the end of the interval. Another console's ArtDmx at 44 Hz, or
  // a fader flood from the surface, then costs no more than the desk's own ticks
  // (20 re-syncs a second at most).
  static constexpr int kBackgroundRefreshMs = 50;
  // 0 re-syncs after every event (tests that look right after a tick).
  void set_background_refresh_interval(int ms) { background_interval_ms_ = ms; }
  // Runs a re-sync held back by the interval now, if one is due.
  void flush_background_refresh();

  const std::vector<std::unique_ptr<DeskWindow>>& windows() const { return windows_; }
  MainDeskWindow& main_window() { return *main_window_; }

 private:
  bool closing_ = false;
  QtScheduler scheduler_;
  QtDialogs dialogs_;
  SystemClock clock_;
  std::unique_ptr<Console> console_;
  std::vector<std::unique_ptr<DeskWindow>> windows_;
  MainDeskWindow* main_window_ = nullptr;
  // Per window: the dry-pass fingerprints of its parts at its last walk; none
  // while not shown.
  std::vector<std::vector<std::uint64_t>> synced_;
  std::vector<std::uint64_t> fingerprints_;  // of the window being refreshed
  long walks_ = 0;
  std::unique_ptr<QObject> edit_commits_;
  int background_interval_ms_ = kBackgroundRefreshMs;
  double last_background_ms_ = -1e300;
  QTimer background_due_;
  bool background_pending_ = false;

  void after_event();
  void refresh(bool background);
  void add_show_file_keys();
};

// The keys of the File menu's show entries ("load", "save", "save-as"), on every desk.
QKeySequence show_file_keys(const std::string& menu_entry);

// Creates every Qt window of the console; the main desk comes first.
std::vector<std::unique_ptr<DeskWindow>> create_desk_windows(DeskApp& app);

}  // namespace lumaris
