#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/store.h"

namespace lumaris {

// A block of the file that was not loaded, and why ("Submix block 2", "Num 40 is
// out of range").
struct SkippedBlock {
  std::string block;
  std::string reason;
};

// What one load found in the file.
struct LoadReport {
  bool is_show = false;  // the text has the show file's root element
  bool has_project = false;
  int art_rows = 0;  // Network blocks loaded into Art-Net rows
  int submixes = 0;
  int patch_pairs = 0;
  int named_channels = 0;
  int buttons = 0;
  int faders = 0;
  int chases = 0;
  int screens = 0;
  int pages = 0;
  std::vector<SkippedBlock> skipped;
};

// Whether a text is a show file at all (whole or partial).
bool is_show_text(std::string_view text);

// Loads a show file's text (UTF-8) into the store, merging partial files. A
// damaged block is skipped whole and listed in the report; nothing is ever
// stored outside the store's arrays. A text that is not a show changes nothing.
LoadReport read_project(Store& store, std::string_view text);

}  // namespace lumaris
