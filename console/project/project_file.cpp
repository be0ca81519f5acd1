#include "console/project/project_file.h"

#include <cstdint>

#include "console/console.h"
#include "core/main_desk.h"
#include "base/number_text.h"
#include "platform/atomic_save.h"
#include "console/project/project_writer.h"
#include "base/windows_1252.h"
#include "net/art_net_setup.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "playback/playback_desk.h"
#include "sequence/sequence_desk.h"
#include "surface/bcf.h"

namespace lumaris {

namespace {

constexpr const char* kFilter = "XML|*.xml";
constexpr const char* kNothingChosen = "*.xml";

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

}  // namespace

ProjectFile::ProjectFile(Console& console) : console_(console) {}

void ProjectFile::Load() { load_from_dialog(); }

void ProjectFile::Load_Patches() { load_from_dialog(); }

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

void ProjectFile::load_from_dialog() {
  const std::string& current = console_.store().Project_File;
  const std::string name = console_.dialogs().open_file(
      {kLoadTitle, kFilter, current.empty() ? kNothingChosen : current});
  // Cancelling keeps the current file name; the dialog's untouched pattern
  // means nothing was chosen either.
  if (name.empty() || name == kNothingChosen) return;
  load_path(name);
}

bool ProjectFile::load_path(const std::string& path) {
  Console& c = console_;
  std::string bytes;
  const FileStatus read = c.file_system().read_file(path, kLargestShow, bytes);
  std::string problem;
  if (!read.ok) {
    problem = kCouldNotRead + path + ":\n" + read.reason + "\n" + kNothingLoaded;
  } else {
    const std::string text = windows_1252_to_utf8(bytes);
    if (is_show_text(text)) {
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

  if (!last_load_.damaged()) {
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
  if (console_.store().Project_File.empty() && !ask_save_name(kSaveProjectTitle)) return;
  save_whole_project();
}

void ProjectFile::Save_As_Project() {
  if (!ask_save_name(kSaveProjectTitle)) return;
  save_whole_project();
}

void ProjectFile::save_whole_project() {
  Store& store = console_.store();
  // The version advances before the file is touched, so a failed save still counts.
  if (store.Project_Version < INT16_MAX) ++store.Project_Version;
  const std::string document = whole_project_document(store, console_.clock().today());
  if (write_document(document, kProjectSavedMain, kProjectSavedPlayback)) {
    store.Project_Changed = false;
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
