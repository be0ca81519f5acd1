#include "console/project/project_file.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <sstream>

#include "console/console.h"
#include "core/main_desk.h"
#include "base/number_text.h"
#include "platform/atomic_save.h"
#include "console/project/project_writer.h"
#include "base/windows_1252.h"
#include "net/art_net_setup.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/settings.h"
#include "playback/playback_desk.h"
#include "playback/run_mode.h"
#include "sequence/chase_runtime.h"
#include "sequence/sequence_desk.h"
#include "surface/bcf.h"

namespace lumaris {

namespace {

constexpr const char* kFilter = "XML|*.xml";
constexpr const char* kNothingChosen = "*.xml";

constexpr const char* kUnsavedTitle = "Unsaved Changes";
constexpr const char* kUnsavedIntro = "The show ";
constexpr const char* kUntitledShow = "on the desk";
constexpr const char* kUnsavedMiddle = " has changes that are not saved.\nSave them before ";
constexpr const char* kBeforeLoading = "loading another show";
constexpr const char* kRecentKey = "recent-shows";
constexpr const char* kUntitledName = "Untitled show.xml";
constexpr const char* kRecentMissingTitle = " Recent Show Missing";
constexpr const char* kRecentMissingEnd = "\nIt has been taken off Recent shows.";
constexpr const char* kLoadTitle = " Load Lumaris Project";
constexpr const char* kLoadedMain = "Project Loaded ";
constexpr const char* kLoadedPlayback = "Project Loaded";
constexpr const char* kSkippedStatusMiddle = " Blocks Skipped";
constexpr const char* kSkippedStatusMiddleOne = " Block Skipped";
constexpr const char* kClampedStatusMiddle = " Values Clamped";
constexpr const char* kClampedStatusMiddleOne = " Value Clamped";
constexpr const char* kCutStatus = " File damaged: loaded up to line";
constexpr const char* kNotLoadedMain = " Project Not Loaded ";
constexpr const char* kNotLoadedPlayback = " Project Not Loaded";
constexpr const char* kLoadErrorTitle = " Load Error";
constexpr const char* kCouldNotRead = "Could not read ";
constexpr const char* kNotAShow = " is not a Lumaris project file.";
constexpr const char* kNothingLoaded = "Nothing was loaded.";
constexpr const char* kDamagedTitle = " Damaged Project";
constexpr const char* kCutIntro = "The file ends before its last line: ";
constexpr const char* kCutIntroEnd = " was loaded up to line ";
constexpr const char* kSkippedIntro = "Some blocks of ";
constexpr const char* kSkippedIntroEnd = " could not be read and were skipped:";
constexpr const char* kClampedIntro = "Some values of ";
constexpr const char* kClampedIntroEnd = " were beyond what the desk can hold and were brought into range:";
constexpr const char* kListedMore = "... and ";
constexpr const char* kListedMoreEnd = " more";
constexpr const char* kSaveToKeep = "Check the show before saving: saving writes what was loaded.";
constexpr std::size_t kProblemsListed = 20;

// ", 2 Blocks Skipped" and the like; nothing for none.
std::string counted(std::size_t count, const char* one, const char* many) {
  if (count == 0) return {};
  return "," + str_number(static_cast<long>(count)) + (count == 1 ? one : many);
}

void list_problems(std::string& text, const ProblemList& problems) {
  const std::vector<LoadProblem>& kept = problems.kept();
  for (std::size_t i = 0; i < kept.size() && i < kProblemsListed; ++i) {
    text.append("\n").append(kept[i].block).append(": ").append(kept[i].reason);
  }
  if (problems.count() > kProblemsListed) {
    text.append("\n").append(kListedMore);
    text.append(std::to_string(problems.count() - kProblemsListed)).append(kListedMoreEnd);
  }
}

constexpr const char* kSaveProjectTitle = "Save DMX Project";
constexpr const char* kSaveSubmixTitle = "Save DMX Submixes";
constexpr const char* kSavePatchTitle = "Save DMX Patches";
constexpr const char* kSaveSequenceTitle = "Save DMX Sequences";
constexpr const char* kProjectSavedMain = " Project Saved ";
constexpr const char* kProjectSavedPlayback = " Project Saved";
constexpr const char* kSubmixSavedMain = " Submix Saved ";
constexpr const char* kSubmixSavedPlayback = " Submix Saved";
constexpr const char* kPatchesSavedMain = " Patches Saved ";
constexpr const char* kPatchesSavedPlayback = " Patches Saved";
constexpr const char* kSequencesSavedMain = " Sequences Saved ";
constexpr const char* kSequencesSavedPlayback = " Sequences Saved";
constexpr const char* kNotSavedMain = " Not Saved ";
constexpr const char* kNotSavedPlayback = " Not Saved";
constexpr const char* kSaveErrorTitle = " Save Error";
constexpr const char* kCouldNotSave = "Could not save ";
constexpr const char* kOldFileKept = "The file on disk is unchanged.";

// Shipped examples (the checkout's examples/ or the installed copy) are there
// to be read: saving one keeps the example and starts a show of the operator's own.
bool is_example(const std::string& path) {
  return std::filesystem::path(path).parent_path().filename() == "examples";
}

}  // namespace

ProjectFile::ProjectFile(Console& console) : console_(console) {}

void ProjectFile::Load() {
  if (may_close_show(kBeforeLoading)) load_from_dialog(true);
}

void ProjectFile::Load_Patches() { load_from_dialog(false); }

bool ProjectFile::Load_File(const std::string& path) {
  if (!load_path(path)) return false;
  console_.main_desk().Refresh_Desk_Panel();
  console_.playback_desk().Refresh_Playback_Panel();
  return true;
}

void ProjectFile::start_surface_from_show() {
  BCF& surface = console_.surface();
  surface.Start_From_Show(console_.store().BCF_Mode);
}

void ProjectFile::load_from_dialog(bool replaces_show) {
  const std::string& current = console_.store().Project_File;
  const std::string name = console_.dialogs().open_file(
      {kLoadTitle, kFilter, current.empty() ? kNothingChosen : current});
  // Cancelling keeps the current file name; the dialog's untouched pattern
  // means nothing was chosen either.
  if (name.empty() || name == kNothingChosen) return;
  load_path(name, replaces_show);
}

bool ProjectFile::may_close_show(const std::string& before) {
  Store& store = console_.store();
  if (!store.Project_Changed) return true;
  const std::string name = store.Project_File.empty()
                               ? std::string(kUntitledShow)
                               : std::filesystem::path(store.Project_File).filename().string();
  const MessageResult answer = console_.dialogs().message(
      {kUnsavedTitle, kUnsavedIntro + name + kUnsavedMiddle + before + "?", MessageIcon::Question,
       MessageButtons::SaveDiscardCancel, MessageResult::Cancel});
  if (answer == MessageResult::Discard) return true;
  if (answer != MessageResult::Save) return false;
  Save_Project();
  return !store.Project_Changed;  // a failed or cancelled save keeps the show
}

// Takes, chases and the playback output of the old show end with it.
void ProjectFile::stop_old_show() {
  Console& c = console_;
  c.playback_desk().run_mode().stop();
  ChaseRuntime& sequence = c.sequence_desk().runtime();
  if (sequence.Chase_Running()) sequence.Stop_Chase(false);
  c.playback_desk().Clear_All();
}

std::vector<std::string> ProjectFile::recent_shows() const {
  std::vector<std::string> shows;
  const Settings* settings = console_.services().settings;
  if (settings == nullptr) return shows;
  std::istringstream lines(settings->read(kRecentKey).value_or(""));
  for (std::string line; std::getline(lines, line);) {
    if (!line.empty()) shows.push_back(line);
  }
  return shows;
}

void ProjectFile::store_recent(std::vector<std::string> shows) {
  Settings* settings = console_.services().settings;
  if (settings == nullptr) return;
  if (shows.size() > kRecentShows) shows.resize(kRecentShows);
  std::string text;
  for (const std::string& show : shows) text.append(show).append("\n");
  settings->write(kRecentKey, text);
}

void ProjectFile::remember(const std::string& path) {
  std::vector<std::string> shows = recent_shows();
  std::erase(shows, path);
  shows.insert(shows.begin(), path);
  store_recent(std::move(shows));
}

void ProjectFile::Load_Recent(const std::string& path) {
  std::string bytes;
  const FileStatus read = console_.file_system().read_file(path, kLargestShow, bytes);
  if (!read.ok) {
    console_.dialogs().message({kRecentMissingTitle,
                                kCouldNotRead + path + ":\n" + read.reason + kRecentMissingEnd,
                                MessageIcon::Exclamation});
    std::vector<std::string> shows = recent_shows();
    std::erase(shows, path);
    store_recent(std::move(shows));
    return;
  }
  if (!may_close_show(kBeforeLoading)) return;
  if (load_path(path, true)) {
    console_.main_desk().Refresh_Desk_Panel();
    console_.playback_desk().Refresh_Playback_Panel();
  }
}

// Save As offers the show's own file; a show of no file or an example gets a
// new name in the folder the operator last used (the documents folder when none).
std::string ProjectFile::save_as_proposal() const {
  const std::string& current = console_.store().Project_File;
  if (!current.empty() && !is_example(current)) return current;
  for (const std::string& show : recent_shows()) {
    if (!is_example(show)) {
      return (std::filesystem::path(show).parent_path() / kUntitledName).string();
    }
  }
  return kUntitledName;
}

bool ProjectFile::load_path(const std::string& path, bool replaces_show) {
  Console& c = console_;
  std::string bytes;
  const FileStatus read = c.file_system().read_file(path, kLargestShow, bytes);
  std::string problem;
  if (!read.ok) {
    problem = kCouldNotRead + path + ":\n" + read.reason + "\n" + kNothingLoaded;
  } else {
    const std::string text = windows_1252_to_utf8(bytes);
    if (is_show_text(text)) {
      if (replaces_show) stop_old_show();
      last_load_ = read_project(c.store(), text);
    } else {
      problem = path + kNotAShow + "\n" + kNothingLoaded;
    }
  }
  if (!problem.empty()) {
    c.dialogs().message({kLoadErrorTitle, problem, MessageIcon::Exclamation});
    c.status().show(kNotLoadedMain, kNotLoadedPlayback);
    return false;
  }

  Store& store = c.store();
  store.Project_File = path;
  store.Project_Title = path;
  if (last_load_.art_rows > 0) c.art_net_setup().Start_From_Show();
  if (last_load_.has_project && store.BCF_Mode > 0) start_surface_from_show();
  c.sequence_desk().Refresh_Desk();
  remember(path);

  if (!last_load_.damaged()) {
    // A whole show read as it was saved has nothing unsaved.
    if (replaces_show && last_load_.has_project) store.Project_Changed = false;
    c.status().show(kLoadedMain, kLoadedPlayback);
    return true;
  }
  std::string status;
  if (last_load_.cut_at_line > 0) {
    status = kCutStatus + str_number(last_load_.cut_at_line);
  } else {
    status = std::string(kLoadedPlayback) +
             counted(last_load_.skipped.count(), kSkippedStatusMiddleOne, kSkippedStatusMiddle) +
             counted(last_load_.clamped.count(), kClampedStatusMiddleOne, kClampedStatusMiddle);
  }
  c.status().show(status + " ", status);
  // What was lost or changed is not in the file any more than on the desk: the
  // desk holds a show that differs from the file, and Exit must ask.
  store.Project_Changed = true;
  report_damage(path);
  return true;
}

void ProjectFile::report_damage(const std::string& path) {
  std::string text;
  auto paragraph = [&text](const std::string& intro) {
    if (!text.empty()) text.append("\n\n");
    text.append(intro);
  };
  if (last_load_.cut_at_line > 0) {
    paragraph(kCutIntro + path + kCutIntroEnd + std::to_string(last_load_.cut_at_line) + ".");
  }
  if (!last_load_.skipped.empty()) {
    paragraph(kSkippedIntro + path + kSkippedIntroEnd);
    list_problems(text, last_load_.skipped);
  }
  if (!last_load_.clamped.empty()) {
    paragraph(kClampedIntro + path + kClampedIntroEnd);
    list_problems(text, last_load_.clamped);
  }
  paragraph(kSaveToKeep);
  console_.dialogs().message({kDamagedTitle, text, MessageIcon::Exclamation});
}

bool ProjectFile::ask_save_name(const char* title) {
  std::string& file = console_.store().Project_File;
  // The dialog's answer becomes the current file name, even an empty one.
  file = console_.dialogs().save_file({title, kFilter, file.empty() ? kNothingChosen : file});
  return !file.empty();
}

void ProjectFile::Save_Project() {
  const std::string& file = console_.store().Project_File;
  if (file.empty() || is_example(file)) {
    Save_As_Project();
    return;
  }
  save_whole_project();
}

// Cancelling keeps the show's file name.
void ProjectFile::Save_As_Project() {
  const std::string name =
      console_.dialogs().save_file({kSaveProjectTitle, kFilter, save_as_proposal()});
  if (name.empty()) return;
  console_.store().Project_File = name;
  save_whole_project();
}

void ProjectFile::save_whole_project() {
  Store& store = console_.store();
  // The version advances before the file is touched, so a failed save still counts.
  if (store.Project_Version < INT16_MAX) ++store.Project_Version;
  const std::string document = whole_project_document(store, console_.clock().today());
  if (write_document(document, kProjectSavedMain, kProjectSavedPlayback)) {
    store.Project_Changed = false;
    remember(store.Project_File);
  }
}

void ProjectFile::Save_Submix() {
  if (!ask_save_name(kSaveSubmixTitle)) return;
  write_document(submix_document(console_.store()), kSubmixSavedMain, kSubmixSavedPlayback);
}

void ProjectFile::Save_Patch() {
  if (!ask_save_name(kSavePatchTitle)) return;
  write_document(patch_document(console_.store()), kPatchesSavedMain, kPatchesSavedPlayback);
}

void ProjectFile::Save_Sequence() {
  if (!ask_save_name(kSaveSequenceTitle)) return;
  write_document(sequence_document(console_.store()), kSequencesSavedMain,
                 kSequencesSavedPlayback);
}

bool ProjectFile::write_document(const std::string& document, const char* main_status,
                                 const char* playback_status) {
  Console& c = console_;
  const std::string& path = c.store().Project_File;
  const FileStatus saved = save_file_atomically(c.file_system(), path, file_bytes(document));
  if (!saved.ok) {
    c.dialogs().message({kSaveErrorTitle,
                         kCouldNotSave + path + ":\n" + saved.reason + "\n" + kOldFileKept,
                         MessageIcon::Exclamation});
    c.status().show(kNotSavedMain, kNotSavedPlayback);
    return false;
  }
  c.status().show(main_status, playback_status);
  return true;
}

}  // namespace lumaris
