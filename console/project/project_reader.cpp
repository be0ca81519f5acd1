#include "console/project/project_reader.h"

#include <functional>
#include <optional>

#include "console/project/block_fields.h"
#include "console/project/chase_blocks_reader.h"
#include "console/project/desk_blocks_reader.h"
#include "console/project/playback_blocks_reader.h"
#include "console/project/project_header_reader.h"
#include "console/project/tag_search.h"

namespace lumaris {

namespace {

using show_reading::BlockFields;
using show_reading::each_element;

constexpr std::string_view kRoot = "Lumaris_XML";

// The line (1-based) of a character of the text; CR, LF and CR LF each end a line.
int line_at(std::string_view text, std::size_t offset) {
  int line = 1;
  for (std::size_t i = 0; i < offset && i < text.size(); ++i) {
    if (text[i] == '\n' || (text[i] == '\r' && (i + 1 >= text.size() || text[i + 1] != '\n'))) ++line;
  }
  return line;
}

// Walks the show file block by block, in the order the desk loads them, and
// keeps the report of what was skipped, brought into range, or cut off.
class Reader {
 public:
  // Stores one sound block and returns true; returns false for a block it leaves out.
  using BlockRead = std::function<bool(BlockFields&)>;

  Reader(Store& store, std::string_view text, LoadReport& report)
      : store_(store), text_(text), report_(report) {
    cut_ = !find_tag(text_, text_.find("<" + std::string(kRoot) + ">"), kRoot);
    // Without an end of the document, reading stops at its last character.
    if (cut_) stopped_at_ = text_.find_last_not_of(" \t\r\n");
  }

  void run() {
    read_project();
    read_blocks("Submix", [this](BlockFields& f) { return show_reading::read_submix(f, store_, report_); });
    read_blocks("FaderName",
                [this](BlockFields& f) { return show_reading::read_fader_name(f, store_, report_); });
    for (ButtonFunction& button : store_.Button_Functions) button.Function = kFunctionOff;
    read_blocks("Button", [this](BlockFields& f) { return show_reading::read_button(f, store_, report_); });
    for (FaderFunction& fader : store_.Fader_Functions) fader.Function = kFunctionOff;
    read_blocks("Fader", [this](BlockFields& f) { return show_reading::read_fader(f, store_, report_); });
    read_patch();
    int last_screen = -1;
    read_blocks("Screen", [this, &last_screen](BlockFields& f) {
      return show_reading::read_screen(f, store_, report_, last_screen);
    });
    if (last_screen >= 0) store_.Screen_Count = static_cast<std::int16_t>(last_screen);
    read_blocks("Chase", [this](BlockFields& f) { return show_reading::read_chase(f, store_, report_); });
    read_blocks("Page", [this](BlockFields& f) { return show_reading::read_page(f, store_, report_); });
    if (cut_) report_.cut_at_line = line_at(text_, stopped_at_);
  }

 private:
  // Every block of a kind, in file order.
  void read_blocks(std::string_view tag, const BlockRead& read) {
    int ordinal = 0;
    each_element(
        text_, tag, [&](std::string_view content) { read_block(tag, ++ordinal, content, read); },
        [&](std::size_t at, bool at_end) { unclosed(tag, ++ordinal, at, at_end); });
  }

  void read_block(std::string_view tag, int ordinal, std::string_view content, const BlockRead& read) {
    BlockFields fields(content);
    if (read(fields)) {
      note_clamps(tag, ordinal, fields);
    } else if (!fields.ok()) {
      skip(tag, ordinal, fields.problem());
    }
  }

  // Only the first <Project> counts.
  void read_project() {
    bool seen = false;
    each_element(
        text_, "Project",
        [&](std::string_view body) {
          if (!seen) {
            read_block("Project", 1, body, [this](BlockFields& f) {
              return show_reading::read_project_header(f, store_, report_);
            });
          }
          seen = true;
        },
        [&](std::size_t at, bool at_end) {
          if (!seen) unclosed("Project", 1, at, at_end);
          seen = true;
        });
  }

  // Only the first <Patch> counts; an empty one leaves the patch as it is.
  void read_patch() {
    std::optional<std::string_view> found;
    each_element(
        text_, "Patch",
        [&](std::string_view list) {
          if (!found) found = list;
        },
        [&](std::size_t at, bool at_end) {
          if (!found) unclosed("Patch", 1, at, at_end);
          found = std::string_view{};
        });
    if (!found || found->empty()) return;
    read_block("Patch", 1, *found,
               [this](BlockFields& f) { return show_reading::read_patch(f, store_, report_); });
  }

  // A block whose closing tag never comes. In a file that ends early it is where
  // the file was cut, and reading stops there.
  void unclosed(std::string_view tag, int ordinal, std::size_t at, bool at_end) {
    if (cut_ && at_end && at < stopped_at_) stopped_at_ = at;
    skip(tag, ordinal,
         at_end ? "the file ends before </" + std::string(tag) + ">"
                : "</" + std::string(tag) + "> is missing");
  }

  void skip(std::string_view tag, int ordinal, const std::string& why) {
    report_.skipped.add({block_name(tag, ordinal), why});
  }

  void note_clamps(std::string_view tag, int ordinal, BlockFields& fields) {
    for (std::string& note : fields.notes()) report_.clamped.add({block_name(tag, ordinal), std::move(note)});
  }

  static std::string block_name(std::string_view tag, int ordinal) {
    return std::string(tag) + " block " + std::to_string(ordinal);
  }

  Store& store_;
  std::string_view text_;
  LoadReport& report_;
  bool cut_ = false;
  std::size_t stopped_at_ = 0;
};

}  // namespace

bool is_show_text(std::string_view text) {
  return text.find("<" + std::string(kRoot) + ">") != std::string_view::npos;
}

LoadReport read_project(Store& store, std::string_view text) {
  LoadReport report;
  report.is_show = is_show_text(text);
  if (!report.is_show) return report;
  Reader(store, text, report).run();
  return report;
}

}  // namespace lumaris
