#include "console/project/show_tools.h"

#include <memory>

#include "platform/atomic_save.h"
#include "console/project/fixture_tools.h"
#include "console/project/project_file.h"
#include "console/project/project_reader.h"
#include "console/project/project_writer.h"
#include "base/windows_1252.h"
#include "core/store.h"
#include "fixtures/fxt_file.h"
#include "platform/clock.h"
#include "platform/posix_file_system.h"

namespace lumaris {

namespace {

constexpr int kClean = 0;
constexpr int kDamaged = 1;
constexpr int kNotAShow = 2;

constexpr const char* kCannotRead = "lumaris: cannot read ";
constexpr const char* kNotAShowText = " is not a Lumaris project file\n";
constexpr const char* kCannotWrite = "lumaris: cannot write ";

// The show's data in a fresh desk's store. No console exists, so nothing can
// start an adapter, Art-Net or the control surface, whatever the show says.
struct LoadedShow {
  std::unique_ptr<Store> store = std::make_unique<Store>();
  LoadReport report;
};

bool load_show(const std::string& path, LoadedShow& show, std::ostream& err) {
  PosixFileSystem files;
  std::string bytes;
  const FileStatus read = files.read_file(path, ProjectFile::kLargestShow, bytes);
  if (!read.ok) {
    err << kCannotRead << path << ": " << read.reason << "\n";
    return false;
  }
  const std::string text = windows_1252_to_utf8(bytes);
  if (!is_show_text(text)) {
    err << "lumaris: " << path << kNotAShowText;
    return false;
  }
  reset_store(*show.store);
  show.report = read_project(*show.store, text);
  return true;
}

// The first problems of a kind and a count of the rest.
void print_problems(const char* heading, const ProblemList& problems, std::ostream& out) {
  out << heading << ": " << problems.count() << "\n";
  for (const LoadProblem& problem : problems.kept()) {
    out << "  " << problem.block << ": " << problem.reason << "\n";
  }
  if (problems.count() > problems.kept().size()) {
    out << "  ... and " << problems.count() - problems.kept().size() << " more\n";
  }
}

void print_damage(const LoadReport& report, std::ostream& out) {
  if (report.cut_at_line > 0) {
    out << "File ends early: reading stopped at line " << report.cut_at_line << "\n";
  }
  print_problems("Skipped blocks", report.skipped, out);
  print_problems("Clamped values", report.clamped, out);
}

}  // namespace

int run_show_check(const std::string& show, std::ostream& out, std::ostream& err) {
  if (is_fxt_path(show)) return run_fixture_check(show, out, err);
  LoadedShow loaded;
  if (!load_show(show, loaded, err)) return kNotAShow;
  const Store& store = *loaded.store;
  const LoadReport& report = loaded.report;
  out << "Show: " << show << "\n";
  if (report.has_project) {
    out << "Name: " << store.Project_Name << "\n";
    out << "Version: " << store.Project_Version << "\n";
    out << "Date: " << store.Project_Date << "\n";
  } else {
    out << "Project header: none (a partial file)\n";
  }
  out << "Submixes: " << report.submixes << "\n";
  out << "Patched slots: " << report.patch_pairs << "\n";
  out << "Named channels: " << report.named_channels << "\n";
  out << "Buttons: " << report.buttons << "\n";
  out << "Faders: " << report.faders << "\n";
  out << "Chases: " << report.chases << "\n";
  out << "Screens: " << report.screens << "\n";
  out << "Pages: " << report.pages << "\n";
  out << "Art-Net rows: " << report.art_rows << "\n";
  print_damage(report, out);
  return report.damaged() ? kDamaged : kClean;
}

int run_show_resave(const std::string& in, const std::string& out_path, std::ostream& out,
                    std::ostream& err) {
  if (is_fxt_path(in)) return run_fixture_resave(in, out_path, out, err);
  LoadedShow loaded;
  if (!load_show(in, loaded, err)) return kNotAShow;
  Store& store = *loaded.store;
  // As Save As does: the version advances and today's date is written.
  if (store.Project_Version < INT16_MAX) ++store.Project_Version;
  const SystemClock clock;
  PosixFileSystem files;
  const FileStatus saved = save_file_atomically(
      files, out_path, file_bytes(whole_project_document(store, clock.today())));
  if (!saved.ok) {
    err << kCannotWrite << out_path << ": " << saved.reason << "\n";
    return kNotAShow;
  }
  out << "Saved " << out_path << " (version " << store.Project_Version << ")\n";
  if (loaded.report.damaged()) print_damage(loaded.report, out);
  return loaded.report.damaged() ? kDamaged : kClean;
}

}  // namespace lumaris
