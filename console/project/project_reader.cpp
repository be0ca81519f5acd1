#include "console/project/project_reader.h"

#include <cstdint>
#include <functional>
#include <optional>

#include "base/number_text.h"
#include "console/project/tag_search.h"

namespace lumaris {

namespace {

constexpr std::string_view kRoot = "<Lumaris_XML>";

// The fields of one block. Single fields are searched from the block's start;
// the first problem found is kept and makes the caller skip the whole block.
class Fields {
 public:
  explicit Fields(std::string_view text) : text_(text) {}

  std::optional<std::string_view> content(std::string_view tag) const {
    const std::optional<TagSpan> span = find_tag(text_, 0, tag);
    if (!span) return std::nullopt;
    return text_.substr(span->content_begin, span->content_end - span->content_begin);
  }

  std::string text(std::string_view tag) const {
    return std::string(content(tag).value_or(std::string_view{}));
  }

  std::int16_t number(std::string_view tag) {
    return checked(tag_number_value(content(tag).value_or(std::string_view{})), tag);
  }

  bool flag(std::string_view tag) const {
    return tag_number_value(content(tag).value_or(std::string_view{})) != 0;
  }

  double seconds(std::string_view tag) const {
    return parse_number(content(tag).value_or(std::string_view{})).value_or(0.0);
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

  // Calls `each` with the content of every `tag` element in turn.
  void each(std::string_view tag, const std::function<void(std::string_view)>& each_content) const {
    std::size_t from = 0;
    while (const std::optional<TagSpan> span = find_tag(text_, from, tag)) {
      each_content(text_.substr(span->content_begin, span->content_end - span->content_begin));
      from = span->after;
    }
  }

  // A ":"-separated list into `values`, which must hold every item.
  template <typename Array>
  void list(std::string_view tag, Array& values) {
    const std::string_view content = this->content(tag).value_or(std::string_view{});
    const std::vector<std::string_view> items = split_items(content, ':');
    if (items.size() > values.size()) {
      fail(std::string(tag) + " has " + std::to_string(items.size()) + " items, more than " +
           std::to_string(values.size()));
      return;
    }
    for (std::size_t k = 0; k < items.size(); ++k) values[k] = checked(tag_number_value(items[k]), tag);
  }

  void fail(std::string why) {
    if (problem_.empty()) problem_ = std::move(why);
  }
  bool ok() const { return problem_.empty(); }
  const std::string& problem() const { return problem_; }
  std::string_view whole() const { return text_; }

 private:
  std::string_view text_;
  std::string problem_;
};

std::pair<std::int64_t, std::int64_t> pair_of(std::string_view content) {
  const std::size_t colon = content.find(':');
  if (colon == std::string_view::npos) return {0, 0};
  return {tag_number_value(content.substr(0, colon)), tag_number_value(content.substr(colon + 1))};
}

class Reader {
 public:
  Reader(Store& store, std::string_view text, LoadReport& report)
      : store_(store), text_(text), report_(report) {}

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
  }

 private:
  // Every block of a kind, in file order; `read` stores a block when it is sound
  // and returns whether it did.
  void read_blocks(std::string_view tag, const std::function<bool(Fields&)>& read) {
    std::size_t from = 0;
    int ordinal = 0;
    while (const std::optional<TagSpan> span = find_tag(text_, from, tag)) {
      ++ordinal;
      Fields fields(text_.substr(span->content_begin, span->content_end - span->content_begin));
      if (!read(fields) && !fields.ok()) skip(tag, ordinal, fields.problem());
      from = span->after;
    }
  }

  void skip(std::string_view tag, int ordinal, const std::string& why) {
    report_.skipped.push_back({std::string(tag) + " block " + std::to_string(ordinal), why});
  }

  void read_project() {
    const std::optional<TagSpan> span = find_tag(text_, 0, "Project");
    if (!span) return;
    const std::string_view body =
        text_.substr(span->content_begin, span->content_end - span->content_begin);
    Fields fields(body);
    std::string name = fields.text("Name");
    std::string date = fields.text("Date");
    const std::int16_t version = fields.number("Version");
    std::string project_text = fields.text("Text");
    const std::int16_t adapter = fields.number("Adapter");
    const std::int16_t bcf = fields.number("BCF");
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
      submix.Level[k] = f.checked(level, "Level");
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
    const std::optional<TagSpan> span = find_tag(text_, 0, "Patch");
    if (!span) return;
    const std::string_view list =
        text_.substr(span->content_begin, span->content_end - span->content_begin);
    if (list.empty()) return;
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
    // The chase's own fields come before its steps, which carry a Num of their own.
    const std::string_view whole = block.whole();
    const std::size_t first_step = whole.find("<Step>");
    Fields f(whole.substr(0, first_step));
    const int c = f.index("Num", kChases - 1);
    if (!f.ok()) return fail_into(block, f);
    ChaseRec chase = store_.Chase_Table[c];
    chase.Name = f.text("Name");
    chase.Colour = f.text("Colour");
    chase.Steps = static_cast<std::int16_t>(f.in_range(f.number("Steps"), 0, kChaseSteps, "Steps"));
    chase.Fixture = static_cast<std::int16_t>(
        f.in_range(f.number("Fixture"), 0, kFixtures - 1, "Fixture"));
    chase.Loop = f.number("Loop");
    f.list("Channels", chase.Channels);
    for (std::size_t k = 0; f.ok() && k < chase.Channels.size(); ++k) {
      f.in_range(chase.Channels[k], 0, kDeskChannels - 1, "Chase channel");
    }
    if (!f.ok()) return fail_into(block, f);
    block.each("Step", [&](std::string_view step_text) {
      Fields step(step_text);
      const int t = step.index("Num", kChaseSteps);
      const double speed = step.seconds("Speed");
      const double time = step.seconds("Time");
      auto data = chase.Data[t];
      auto fade = chase.Fade[t];
      auto fix = chase.Fix[t];
      step.list("Data", data);
      step.list("Fade", fade);
      step.list("Fix", fix);
      if (!step.ok()) {
        block.fail("Step: " + step.problem());
        return;
      }
      chase.Speed[t] = speed;
      chase.Time[t] = time;
      chase.Data[t] = data;
      chase.Fade[t] = fade;
      chase.Fix[t] = fix;
    });
    if (!block.ok()) return false;
    store_.Chase_Table[c] = std::move(chase);
    ++report_.chases;
    return true;
  }

  bool read_page(Fields& f) {
    const int p = f.index("Num", kPlaybackPages);
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
};

}  // namespace

bool is_show_text(std::string_view text) { return text.find(kRoot) != std::string_view::npos; }

LoadReport read_project(Store& store, std::string_view text) {
  LoadReport report;
  report.is_show = is_show_text(text);
  if (!report.is_show) return report;
  Reader(store, text, report).run();
  return report;
}

}  // namespace lumaris
