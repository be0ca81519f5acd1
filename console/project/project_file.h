#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "console/project/project_reader.h"
#include "core/show_files.h"

namespace lumaris {

class Console;

// Loading and saving the show file: the File menu of the main desk and the
// sequence desk's Load/Save Sequence.
class ProjectFile final : public ShowFiles {
 public:
  // The fullest show the desk can hold is some 1.5 MB; anything far beyond is not
  // a show, and refusing it keeps a load short enough not to hold up the desk.
  static constexpr std::size_t kLargestShow = 8u * 1024u * 1024u;

  explicit ProjectFile(Console& console);
  bool available() const override { return true; }

  // "&Load": asks for a file and loads it (the main desk redraws afterwards).
  void Load() override;
  // "&Load Patches": the same loader; the caller does not redraw.
  void Load_Patches() override;
  // Loads the show named on the command line, without a dialog, and redraws the
  // desks; false when it could not be read or is not a show.
  bool Load_File(const std::string& path);

  void Save_Project() override;
  void Save_As_Project() override;
  void Save_Submix() override;
  void Save_Patch() override;
  void Save_Sequence() override;

  bool may_close_show(const std::string& before) override;
  std::vector<std::string> recent_shows() const override;
  void Load_Recent(const std::string& path) override;
  static constexpr std::size_t kRecentShows = 8;

  // What the last load found (counts, skipped blocks, clamped values, a cut).
  const LoadReport& last_load() const { return last_load_; }

 private:
  void load_from_dialog(bool replaces_show);
  // `replaces_show`: the file is a show of its own, so what the old one has
  // running stops before it is read.
  bool load_path(const std::string& path, bool replaces_show = false);
  void stop_old_show();
  void remember(const std::string& path);
  void store_recent(std::vector<std::string> shows);
  std::string save_as_proposal() const;
  void report_damage(const std::string& path);
  // A show saved with the surface connected connects it again.
  void start_surface_from_show();

  bool ask_save_name(const char* title);
  void save_whole_project();
  bool write_document(const std::string& document, const char* main_status,
                      const char* playback_status);

  Console& console_;
  LoadReport last_load_;
};

}  // namespace lumaris
