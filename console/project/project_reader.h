#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/store.h"

namespace lumaris {

// One thing a load found wrong with a block ("Submix block 2", "Num 40 is out of
// range"; "Chase block 1", "Steps 0 set to 1").
struct LoadProblem {
  std::string block;
  std::string reason;
};

// Problems of one kind: the first ones in full and a count of all, so that a
// hostile file of millions of bad blocks costs no more than a hundred lines.
class ProblemList {
 public:
  static constexpr std::size_t kKept = 100;

  void add(LoadProblem problem) {
    if (kept_.size() < kKept) kept_.push_back(std::move(problem));
    ++count_;
  }
  const std::vector<LoadProblem>& kept() const { return kept_; }
  std::size_t count() const { return count_; }
  bool empty() const { return count_ == 0; }

 private:
  std::vector<LoadProblem> kept_;
  std::size_t count_ = 0;
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
  ProblemList skipped;  // blocks not loaded at all
  ProblemList clamped;  // values brought into the range the desk can hold
  // The file ends before its document does (no "</Lumaris_XML>"): the line at
  // which reading stopped, 1-based. 0 when the document is whole.
  int cut_at_line = 0;

  bool damaged() const { return cut_at_line > 0 || !skipped.empty() || !clamped.empty(); }
};

// Whether a text is a show file at all (whole, partial or cut short).
bool is_show_text(std::string_view text);

// Loads a show file's text (UTF-8) into the store, merging partial files. A
// damaged block is skipped whole, a value beyond what the desk's control for it
// can hold is brought into that range, and both are listed in the report;
// nothing is ever stored outside the store's arrays. A text that is not a show
// changes nothing.
LoadReport read_project(Store& store, std::string_view text);

}  // namespace lumaris
