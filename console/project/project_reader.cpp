#include "console/project/project_reader.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <optional>

#include "base/number_text.h"
#include "console/project/tag_search.h"
#include "controls/log_slider.h"

namespace lumaris {

namespace {

constexpr std::string_view kRoot = "Lumaris_XML";

// The ranges of the controls that edit what the file holds.
constexpr int kLastAdapter = 5;            // the set-up list: None .. Oksidizer USB2DMX
constexpr int kLastSurfaceMode = 6;        // BCF2000: not connected .. User Config
constexpr int kLastChaseDeskChannel = 62;  // a chase channel's box takes desk channels 1..63
constexpr int kLongestLoop = 100;          // Loop_Times
constexpr int kLastChaseFunction = kChaseStep;

std::string_view between(std::string_view text, const TagSpan& span) {
  return text.substr(span.content_begin, span.content_end - span.content_begin);
}

// Every `tag` element of a text in turn. An element whose closing tag is missing
// runs into the next one of its kind; it is reported with the offset of its
// opening tag and reading goes on from that next one. An opening tag with no
// closing tag after it ends the search.
void each_element(std::string_view text, std::string_view tag,
                  const std::function<void(std::string_view content)>& element,
                  const std::function<void(std::size_t at, bool at_end)>& unclosed) {
  const std::string opening = "<" + std::string(tag) + ">";
  std::size_t from = 0;
  for (;;) {
    const std::size_t at = text.find(opening, from);
    if (at == std::string_view::npos) return;
    const std::optional<TagSpan> span = find_tag(text, at, tag);
    if (!span) {
      unclosed(at, true);
      return;
    }
    const std::size_t nested = between(text, *span).find(opening);
    if (nested != std::string_view::npos) {
      unclosed(at, false);
      from = span->content_begin + nested;
      continue;
    }
    element(between(text, *span));
    from = span->after;
  }
}

// The fields of one block. Single fields are searched from the block's start.
// The first problem found makes the caller skip the whole block; values that
// are only out of range are brought into range and noted.
class Fields {
 public:
  explicit Fields(std::string_view text) : text_(text) {}

  std::optional<std::string_view> content(std::string_view tag) const {
    const std::optional<TagSpan> span = find_tag(text_, 0, tag);
    if (!span) return std::nullopt;
    return between(text_, *span);
  }

  std::string text(std::string_view tag) const {
    return std::string(content(tag).value_or(std::string_view{}));
  }

  std::int64_t raw_number(std::string_view tag) const {
    return tag_number_value(content(tag).value_or(std::string_view{}));
  }

  std::int16_t number(std::string_view tag) { return checked(raw_number(tag), tag); }

  // Any number but 0 is true: the desk's own true is -1, the writer's 1.
  bool flag(std::string_view tag) const { return raw_number(tag) != 0; }

  // A step time. 0 is the time of a step never set; any other time is kept to
  // the travel of the time sliders.
  double seconds(std::string_view tag) {
    const double value = parse_number(content(tag).value_or(std::string_view{})).value_or(0.0);
    if (value == 0.0) return 0.0;
    if (value < LogSlider::kDefaultMin) return noted(value, LogSlider::kDefaultMin, tag);
    if (value > LogSlider::kDefaultMax) return noted(value, LogSlider::kDefaultMax, tag);
    return value;
  }

  // The block's index: present, numeric and within 0..last.
  int index(std::string_view tag, int last) {
    const std::optional<std::string_view> value = content(tag);
    if (!value) {
      fail(std::string(tag) + " is missing");
      return 0;
    }
    if (!tag_is_numeric(*value)) {
      fail(std::string(tag) + " is not a number");
      return 0;
    }
    return in_range(tag_number_value(*value), 0, last, tag);
  }

  int in_range(std::int64_t value, int low, int high, std::string_view what) {
    if (value < low || value > high) {
      fail(std::string(what) + " " + std::to_string(value) + " is out of range");
      return low;
    }
    return static_cast<int>(value);
  }

  std::int16_t checked(std::int64_t value, std::string_view what) {
    return static_cast<std::int16_t>(in_range(value, INT16_MIN, INT16_MAX, what));
  }

  // A value brought into low..high, noted when it had to move.
  std::int16_t clamped(std::int64_t value, int low, int high, std::string_view what) {
    if (value < low) return static_cast<std::int16_t>(noted(static_cast<double>(value), low, what));
    if (value > high) return static_cast<std::int16_t>(noted(static_cast<double>(value), high, what));
    return static_cast<std::int16_t>(value);
  }

  // A choice from a list: a number that names no entry becomes `fallback`.
  std::int16_t choice(std::int64_t value, int last, int fallback, std::string_view what) {
    if (value >= 0 && value <= last) return static_cast<std::int16_t>(value);
    return static_cast<std::int16_t>(noted(static_cast<double>(value), fallback, what));
  }

  // Calls `each_content` with the content of every `tag` element in turn; an
  // element without its closing tag is a problem of the block.
  void each(std::string_view tag, const std::function<void(std::string_view)>& each_content) {
    each_element(text_, tag, each_content, [this, tag](std::size_t, bool) {
      fail("a <" + std::string(tag) + "> has no closing tag");
    });
  }

  // A ":"-separated list into `values`, which must hold every item; each item
  // is brought into low..high.
  template <typename Array>
  void list(std::string_view tag, Array& values, int low, int high) {
    const std::string_view content = this->content(tag).value_or(std::string_view{});
    const std::vector<std::string_view> items = split_items(content, ':');
    if (items.size() > values.size()) {
      fail(std::string(tag) + " has " + std::to_string(items.size()) + " items, more than " +
           std::to_string(values.size()));
      return;
    }
    for (std::size_t k = 0; k < items.size(); ++k) {
      values[k] = clamped(tag_number_value(items[k]), low, high, tag);
    }
  }

  void fail(std::string why) {
    if (problem_.empty()) problem_ = std::move(why);
  }
  bool ok() const { return problem_.empty(); }
  const std::string& problem() const { return problem_; }
  std::vector<std::string>& notes() { return notes_; }
  std::string_view whole() const { return text_; }

 private:
  template <typename T>
  T noted(double read, T kept, std::string_view what) {
    notes_.push_back(std::string(what) + " " + number_text(read) + " set to " + number_text(kept));
    return kept;
  }
  static std::string number_text(double value) {
    if (std::fabs(value) < 1e15 && value == std::trunc(value)) {
      return std::to_string(static_cast<std::int64_t>(value));
    }
    return significant_text(value, 6);
  }

  std::string_view text_;
  std::string problem_;
  std::vector<std::string> notes_;
};

std::pair<std::int64_t, std::int64_t> pair_of(std::string_view content) {
  const std::size_t colon = content.find(':');
  if (colon == std::string_view::npos) return {0, 0};
  return {tag_number_value(content.substr(0, colon)), tag_number_value(content.substr(colon + 1))};
}

// The line (1-based) of a character of the text; CR, LF and CR LF each end a line.
int line_at(std::string_view text, std::size_t offset) {
  int line = 1;
  for (std::size_t i = 0; i < offset && i < text.size(); ++i) {
    if (text[i] == '\n' || (text[i] == '\r' && (i + 1 >= text.size() || text[i + 1] != '\n'))) ++line;
  }
  return line;
}

class Reader {
 public:
  Reader(Store& store, std::string_view text, LoadReport& report)
      : store_(store), text_(text), report_(report) {
    cut_ = !find_tag(text_, text_.find("<" + std::string(kRoot) + ">"), kRoot);
    // Without an end of the document, reading stops at its last character.
    if (cut_) stopped_at_ = text_.find_last_not_of(" \t\r\n");
  }

  void run() {
    read_project();
    read_blocks("Submix", [this](Fields& f) { return read_submix(f); });
    read_blocks("FaderName", [this](Fields& f) { return read_fader_name(f); });
    for (ButtonFunction& button : store_.Button_Functions) button.Function = kFunctionOff;
    read_blocks("Button", [this](Fields& f) { return read_button(f); });
    for (FaderFunction& fader : store_.Fader_Functions) fader.Function = kFunctionOff;
    read_blocks("Fader", [this](Fields& f) { return read_fader(f); });
    read_patch();
    int last_screen = -1;
    read_blocks("Screen", [this, &last_screen](Fields& f) { return read_screen(f, last_screen); });
    if (last_screen >= 0) store_.Screen_Count = static_cast<std::int16_t>(last_screen);
    read_blocks("Chase", [this](Fields& f) { return read_chase(f); });
    read_blocks("Page", [this](Fields& f) { return read_page(f); });
    if (cut_) report_.cut_at_line = line_at(text_, stopped_at_);
  }

 private:
  // Every block of a kind, in file order; `read` stores a block when it is sound
  // and returns whether it did.
  void read_blocks(std::string_view tag, const std::function<bool(Fields&)>& read) {
    int ordinal = 0;
    each_element(
        text_, tag,
        [&](std::string_view content) {
          ++ordinal;
          Fields fields(content);
          if (read(fields)) {
            note_clamps(tag, ordinal, fields);
          } else if (!fields.ok()) {
            skip(tag, ordinal, fields.problem());
          }
        },
        [&](std::size_t at, bool at_end) { unclosed(tag, ++ordinal, at, at_end); });
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

  void note_clamps(std::string_view tag, int ordinal, Fields& fields) {
    for (std::string& note : fields.notes()) report_.clamped.add({block_name(tag, ordinal), std::move(note)});
  }

  static std::string block_name(std::string_view tag, int ordinal) {
    return std::string(tag) + " block " + std::to_string(ordinal);
  }

  void read_project() {
    bool seen = false;
    each_element(
        text_, "Project",
        [&](std::string_view body) {
          if (!seen) read_project_block(body);
          seen = true;
        },
        [&](std::size_t at, bool at_end) {
          if (!seen) unclosed("Project", 1, at, at_end);
          seen = true;
        });
  }

  void read_project_block(std::string_view body) {
    Fields fields(body);
    std::string name = fields.text("Name");
    std::string date = fields.text("Date");
    const std::int16_t version = fields.number("Version");
    std::string project_text = fields.text("Text");
    // A number that names no adapter or surface mode leaves that output off.
    const std::int16_t adapter = fields.choice(fields.raw_number("Adapter"), kLastAdapter, 0, "Adapter");
    const std::int16_t bcf = fields.choice(fields.raw_number("BCF"), kLastSurfaceMode, 0, "BCF");
    std::vector<std::uint8_t> universes;
    fields.each("Network", [&](std::string_view network) {
      Fields row(network);
      const int universe =
          row.in_range(tag_number_value(row.content("Universe").value_or("")), 0, 255, "Universe");
      if (!row.ok()) fields.fail(row.problem());
      universes.push_back(static_cast<std::uint8_t>(universe));
    });
    if (universes.size() > store_.Art_Universes.size()) {
      fields.fail(std::to_string(universes.size()) + " Network blocks, more than " +
                  std::to_string(store_.Art_Universes.size()) + " Art-Net rows");
    }
    if (!fields.ok()) {
      skip("Project", 1, fields.problem());
      return;
    }
    store_.Project_Name = std::move(name);
    store_.Project_Date = std::move(date);
    store_.Project_Version = version;
    store_.Project_Text = std::move(project_text);
    store_.Adapter = adapter;
    for (std::size_t row = 0; row < universes.size(); ++row) {
      store_.Art_Universes[row].Enable = true;
      store_.Art_Universes[row].Universe = universes[row];
    }
    store_.BCF_Mode = bcf;
    report_.has_project = true;
    report_.art_rows = static_cast<int>(universes.size());
    note_clamps("Project", 1, fields);
  }

  bool read_submix(Fields& f) {
    const int s = f.index("Num", kSubmixes);
    SubmixRec submix;
    submix.Name = f.text("Name");
    submix.Colour = f.text("Colour");
    int k = 0;
    bool ended = false;
    f.each("Level", [&](std::string_view content) {
      if (ended) return;
      const auto [chan, level] = pair_of(content);
      if (chan == 0 && level == 0) {
        ended = true;
        return;
      }
      if (k >= kDeskChannels) {
        f.fail("more Level lines than a submix holds");
        return;
      }
      submix.Chan[k] = static_cast<std::int16_t>(f.in_range(chan, 0, kDeskChannels, "Level channel"));
      submix.Level[k] = f.clamped(level, 0, 255, "Level");
      ++k;
    });
    if (!f.ok()) return false;
    store_.Submix[s] = std::move(submix);
    ++report_.submixes;
    return true;
  }

  bool read_fader_name(Fields& f) {
    const int i = f.index("Num", kDeskChannels - 1);
    if (!f.ok()) return false;
    FaderName& name = store_.Fader_Names[i];
    name.Desc = f.text("Desc");
    name.Name = f.text("Name");
    name.Colour = f.text("Colour");
    name.Main_F = f.flag("Main_F");
    name.Cross_F = f.flag("Cross_F");
    ++report_.named_channels;
    return true;
  }

  template <typename Record>
  void read_function_fields(Fields& f, Record& r) {
    r.Name = f.text("Name");
    r.Value = f.number("Value");
    r.Colour = f.text("Colour");
    r.Function = f.number("Function");
    r.Channel1 = f.number("Channel1");
    r.Channel2 = f.number("Channel2");
    r.Channel3 = f.number("Channel3");
    r.Data1 = f.number("Data1");
    r.Data2 = f.number("Data2");
    r.Data3 = f.number("Data3");
    r.Level = f.number("Level");
  }

  bool read_button(Fields& f) {
    const int b = f.index("Number", kPlaybackButtons - 1);
    ButtonFunction button;
    read_function_fields(f, button);
    button.Latch = f.flag("Latch");
    button.Preset = f.flag("Preset");
    if (!f.ok()) return false;
    store_.Button_Functions[b] = std::move(button);
    ++report_.buttons;
    return true;
  }

  bool read_fader(Fields& f) {
    const int n = f.index("Number", kPlaybackFaders - 1);
    FaderFunction fader;
    read_function_fields(f, fader);
    if (!f.ok()) return false;
    store_.Fader_Functions[n] = std::move(fader);
    ++report_.faders;
    return true;
  }

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
    const std::string_view list = *found;
    Fields f(list);
    auto patch = store_.Patch;
    int pairs = 0;
    for (const std::string_view item : split_items(list, ',')) {
      if (item.find(':') == std::string_view::npos) {
        f.fail("\"" + std::string(item.substr(0, 16)) + "\" is not a slot:channel pair");
        break;
      }
      const auto [slot, channel] = pair_of(item);
      const int s = f.in_range(slot, 0, kDmxSlots, "Slot");
      const int c = f.in_range(channel, 0, kDeskChannels, "Channel");
      if (!f.ok()) break;
      patch[s] = static_cast<std::int16_t>(c);
      ++pairs;
    }
    if (!f.ok()) {
      skip("Patch", 1, f.problem());
      return;
    }
    store_.Patch = patch;
    report_.patch_pairs = pairs;
  }

  bool read_screen(Fields& f, int& last_screen) {
    const int r = f.index("Num", kScreens - 1);
    if (!f.ok()) return false;
    Screen screen = store_.Screens[r];
    // A screen block holds the screen's whole recorded look, and the writer leaves
    // out zero levels: levels and selections a show loaded earlier left in this
    // screen must not survive into the new show's cue.
    screen.Preset.fill(0);
    screen.But_Sel.fill(false);
    screen.Fad_Sel.fill(0);
    screen.Name = f.text("Name");
    screen.Next = f.number("Next");
    screen.Instant = f.flag("Instant");
    screen.Colour = f.text("Colour");
    screen.Preset_l = f.number("Preset_l");
    screen.Auto = f.flag("Auto");
    screen.Delay = f.number("Delay");
    screen.Time = f.number("Time");
    f.each("Fad_Sel", [&](std::string_view content) {
      const auto [fader, value] = pair_of(content);
      const int n = f.in_range(fader, 0, kPlaybackFaders - 1, "Fad_Sel fader");
      const std::int16_t level = f.checked(value, "Fad_Sel");
      if (f.ok()) screen.Fad_Sel[n] = level;
    });
    f.each("Preset", [&](std::string_view content) {
      const auto [channel, value] = pair_of(content);
      const int i = f.in_range(channel, 0, kDeskChannels - 1, "Preset channel");
      const std::int16_t level = f.checked(value, "Preset");
      if (f.ok()) screen.Preset[i] = level;
    });
    f.each("But_Sel", [&](std::string_view content) {
      const int b = f.in_range(tag_number_value(content), 0, kPlaybackButtons - 1, "But_Sel");
      if (f.ok()) screen.But_Sel[b] = true;
    });
    if (!f.ok()) return false;
    store_.Screens[r] = std::move(screen);
    if (r > last_screen) last_screen = r;
    ++report_.screens;
    return true;
  }

  bool read_chase(Fields& block) {
    // The chase's own fields may stand before, between or after its steps, whose
    // Num and Data are not the chase's: search them in the block without its steps.
    std::string own;
    std::vector<std::string_view> steps;
    const std::string_view whole = block.whole();
    constexpr std::size_t kOpening = std::string_view("<Step>").size();
    constexpr std::size_t kClosing = std::string_view("</Step>").size();
    std::size_t from = 0;
    each_element(
        whole, "Step", [&](std::string_view step) { steps.push_back(step); },
        [&](std::size_t, bool) { block.fail("a <Step> has no closing tag"); });
    for (const std::string_view step : steps) {
      const auto content_begin = static_cast<std::size_t>(step.data() - whole.data());
      own.append(whole.substr(from, content_begin - kOpening - from));
      from = content_begin + step.size() + kClosing;
    }
    own.append(whole.substr(std::min(from, whole.size())));
    if (!block.ok()) return false;

    Fields f(own);
    const int c = f.index("Num", kChases - 1);
    if (!f.ok()) return fail_into(block, f);
    ChaseRec chase = store_.Chase_Table[c];
    chase.Name = f.text("Name");
    chase.Colour = f.text("Colour");
    chase.Steps = f.clamped(f.raw_number("Steps"), 1, kChaseSteps, "Steps");
    chase.Fixture = f.clamped(f.raw_number("Fixture"), 0, kFixtures - 1, "Fixture");
    chase.Loop = f.clamped(f.raw_number("Loop"), 0, kLongestLoop, "Loop");
    f.list("Channels", chase.Channels, 0, kLastChaseDeskChannel);
    if (!f.ok()) return fail_into(block, f);
    for (const std::string_view step_text : steps) {
      Fields step(step_text);
      const int t = step.index("Num", kChaseSteps);
      const double speed = step.seconds("Speed");
      const double time = step.seconds("Time");
      auto data = chase.Data[t];
      auto fade = chase.Fade[t];
      auto fix = chase.Fix[t];
      step.list("Data", data, 0, 255);
      step.list("Fade", fade, kChaseOff, kLastChaseFunction);
      step.list("Fix", fix, INT16_MIN, INT16_MAX);
      if (!step.ok()) {
        block.fail("Step: " + step.problem());
        break;
      }
      chase.Speed[t] = speed;
      chase.Time[t] = time;
      chase.Data[t] = data;
      chase.Fade[t] = fade;
      chase.Fix[t] = fix;
      for (std::string& note : step.notes()) f.notes().push_back("Step " + std::to_string(t) + " " + note);
    }
    if (!block.ok()) return false;
    store_.Chase_Table[c] = std::move(chase);
    for (std::string& note : f.notes()) block.notes().push_back(std::move(note));
    ++report_.chases;
    return true;
  }

  bool read_page(Fields& f) {
    const int p = f.index("Num", kPlaybackPages - 1);
    if (!f.ok()) return false;
    Page& page = store_.Pages[p];
    page.Name = f.text("Name");
    page.Text = f.text("Text");
    page.Colour = f.text("Colour");
    ++report_.pages;
    return true;
  }

  static bool fail_into(Fields& block, const Fields& part) {
    block.fail(part.problem());
    return false;
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
