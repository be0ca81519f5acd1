#pragma once

#include <ostream>

#include "core/output_timing.h"
#include "core/status_lines.h"
#include "core/store.h"

namespace lumaris {

class Scheduler;
class Dialogs;
class Clock;
class FileSystem;
class Settings;
class WindowOpener;
class ShowFiles;
class DeskLinks;
class SurfaceFeedback;

// What every desk window model is built on: the shared store, the two status
// lines, the platform seams and the ways up to what is built above the desks
// (windows, the show file, the other desks, the control surface). The console
// makes one and keeps it for its whole life.
class DeskContext {
 public:
  struct Seams {
    Scheduler* scheduler = nullptr;
    Dialogs* dialogs = nullptr;
    const Clock* clock = nullptr;
    FileSystem* file_system = nullptr;
    Settings* settings = nullptr;         // null: nothing is remembered
    std::ostream* diagnostics = nullptr;  // null: the log is discarded
  };

  struct Links {
    WindowOpener* windows = nullptr;
    ShowFiles* show_files = nullptr;
    DeskLinks* desks = nullptr;
    SurfaceFeedback* surface = nullptr;
  };

  DeskContext(Store& store, StatusLines& status, const Seams& seams, const Links& links)
      : store_(store), status_(status), seams_(seams), links_(links) {
    output_timing_.load(seams.settings);
  }

  Store& store() const { return store_; }
  StatusLines& status() const { return status_; }
  Scheduler& scheduler() const { return *seams_.scheduler; }
  Dialogs& dialogs() const { return *seams_.dialogs; }
  const Clock& clock() const { return *seams_.clock; }
  FileSystem& file_system() const { return *seams_.file_system; }
  Settings* settings() const { return seams_.settings; }
  std::ostream* diagnostics() const { return seams_.diagnostics; }
  WindowOpener& windows() const { return *links_.windows; }
  ShowFiles& show_files() const { return *links_.show_files; }
  DeskLinks& desks() const { return *links_.desks; }
  SurfaceFeedback& surface() const { return *links_.surface; }
  // Whether fades and Art-Net follow every output tick (this computer's choice).
  OutputTiming& output_timing() { return output_timing_; }
  const OutputTiming& output_timing() const { return output_timing_; }

 private:
  Store& store_;
  StatusLines& status_;
  Seams seams_;
  Links links_;
  OutputTiming output_timing_;
};

}  // namespace lumaris
