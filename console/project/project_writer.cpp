#include "console/project/project_writer.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

#include "base/windows_1252.h"

namespace lumaris {

namespace {

constexpr char kCr = '\r';
constexpr const char* kRootOpen = "<Lumaris_XML>\r";
constexpr const char* kRootClose = "</Lumaris_XML>\r";
// SequenceDesk 0..31 are saved; the last entry of the table never is.
constexpr int kSavedChases = 32;
// Art-Net rows 0..8 are saved.
constexpr int kSavedArtRows = 9;

// Builds lines with their tab indentation.
class Lines {
 public:
  void open(int tabs, const char* tag) {
    indent(tabs);
    text_.append("<").append(tag).append(">").push_back(kCr);
  }
  void close(int tabs, const char* tag) {
    indent(tabs);
    text_.append("</").append(tag).append(">").push_back(kCr);
  }
  void field(int tabs, const char* tag, const std::string& value) {
    indent(tabs);
    text_.append("<").append(tag).append(">").append(value);
    text_.append("</").append(tag).append(">").push_back(kCr);
  }
  void field(int tabs, const char* tag, long value) { field(tabs, tag, std::to_string(value)); }
  void field_if_text(int tabs, const char* tag, const std::string& value) {
    if (!value.empty()) field(tabs, tag, value);
  }
  void field_if_positive(int tabs, const char* tag, long value) {
    if (value > 0) field(tabs, tag, value);
  }
  void flag_if_set(int tabs, const char* tag, bool value) {
    if (value) field(tabs, tag, "1");
  }
  void raw(const std::string& text) { text_.append(text); }
  std::string take() { return std::move(text_); }

 private:
  void indent(int tabs) { text_.append(static_cast<std::size_t>(tabs), '\t'); }
  std::string text_;
};

template <typename Container>
std::string joined(const Container& values, std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) {
    if (i > 0) text.push_back(':');
    text.append(std::to_string(values[i]));
  }
  return text;
}

// Step times carry a literal "0" in front, so that 0.5 (".5") reads "0.5".
std::string step_seconds(double seconds);

bool submix_has_content(const SubmixRec& submix) {
  if (!submix.Name.empty() || !submix.Colour.empty()) return true;
  for (int k = 0; k < kDeskChannels; ++k) {
    if (submix.Level[k] > 0) return true;
  }
  return false;
}

}  // namespace

std::string date_text(const CalendarDate& date) {
  char text[32];
  std::snprintf(text, sizeof text, "%02d/%02d/%04d", date.day, date.month, date.year);
  return text;
}

std::string seconds_text(double seconds) {
  // The largest double has 309 digits before the point.
  char text[400];
  const std::to_chars_result result =
      std::to_chars(text, text + sizeof text, seconds, std::chars_format::fixed);
  std::string value(text, result.ptr);
  if (value.rfind("0.", 0) == 0) {
    value.erase(0, 1);
  } else if (value.rfind("-0.", 0) == 0) {
    value.erase(1, 1);
  }
  return value;
}

namespace {

std::string step_seconds(double seconds) {
  std::string text(1, '0');
  text.append(seconds_text(seconds));
  return text;
}

}  // namespace

std::string Project_Section(const Store& store, const CalendarDate& date) {
  Lines lines;
  lines.open(1, "Project");
  lines.field_if_text(2, "Name", store.Project_Name);
  lines.field(2, "Date", date_text(date));
  lines.field(2, "Version", store.Project_Version);
  lines.field_if_text(2, "Text", store.Project_Text);
  lines.field(2, "Adapter", store.Adapter);
  for (int row = 0; row < kSavedArtRows; ++row) {
    const ArtUniverse& universe = store.Art_Universes[row];
    if (!universe.Enable) continue;
    lines.open(2, "Network");
    lines.field(3, "Universe", universe.Universe);
    lines.close(2, "Network");
  }
  lines.field(2, "BCF", store.BCF_Mode);
  lines.close(1, "Project");
  return lines.take();
}

std::string Submix_Section(const Store& store) {
  Lines lines;
  for (int s = 0; s <= kSubmixes; ++s) {
    const SubmixRec& submix = store.Submix[s];
    if (!submix_has_content(submix)) continue;
    lines.open(1, "Submix");
    lines.field(2, "Num", s);
    lines.field_if_text(2, "Name", submix.Name);
    lines.field_if_text(2, "Colour", submix.Colour);
    for (int k = 0; k < kDeskChannels; ++k) {
      if (submix.Level[k] <= 0) continue;
      lines.field(2, "Level", std::to_string(submix.Chan[k]) + ":" + std::to_string(submix.Level[k]));
    }
    lines.close(1, "Submix");
  }
  return lines.take();
}

std::string Patch_Section(const Store& store) {
  std::string pairs;
  for (int s = 0; s <= kDmxSlots; ++s) {
    if (store.Patch[s] == 0) continue;
    if (!pairs.empty()) pairs.push_back(',');
    pairs.append(std::to_string(s)).append(":").append(std::to_string(store.Patch[s]));
  }
  if (pairs.empty()) return {};
  Lines lines;
  lines.field(1, "Patch", pairs);
  return lines.take();
}

std::string FaderName_Section(const Store& store) {
  Lines lines;
  for (int i = 0; i < kDeskChannels; ++i) {
    const FaderName& name = store.Fader_Names[i];
    if (name.Desc == std::to_string(i + 1)) continue;
    lines.open(1, "FaderName");
    lines.field(2, "Num", i);
    lines.field(2, "Desc", name.Desc);
    lines.field(2, "Name", name.Name);
    lines.field(2, "Colour", name.Colour);
    lines.flag_if_set(2, "Main_F", name.Main_F);
    lines.flag_if_set(2, "Cross_F", name.Cross_F);
    lines.close(1, "FaderName");
  }
  return lines.take();
}

namespace {

// One playback button or fader block, written only when it has a field to hold.
void numbered_block(Lines& out, const char* tag, int number, Lines& fields) {
  const std::string body = fields.take();
  if (body.empty()) return;
  out.open(1, tag);
  out.field(2, "Number", number);
  out.raw(body);
  out.close(1, tag);
}

// Buttons and faders share their records' first four fields...
template <typename Function>
void identity_fields(Lines& fields, const Function& function) {
  fields.field_if_text(2, "Name", function.Name);
  fields.field_if_positive(2, "Value", function.Value);
  fields.field_if_text(2, "Colour", function.Colour);
  fields.field_if_positive(2, "Function", function.Function);
}

// ...and the channels, colour data and level that follow them.
template <typename Function>
void routing_fields(Lines& fields, const Function& function) {
  fields.field_if_positive(2, "Channel1", function.Channel1);
  fields.field_if_positive(2, "Channel2", function.Channel2);
  fields.field_if_positive(2, "Channel3", function.Channel3);
  fields.field_if_positive(2, "Data1", function.Data1);
  fields.field_if_positive(2, "Data2", function.Data2);
  fields.field_if_positive(2, "Data3", function.Data3);
  fields.field_if_positive(2, "Level", function.Level);
}

}  // namespace

std::string Button_Section(const Store& store) {
  Lines out;
  for (int b = 0; b < kPlaybackButtons; ++b) {
    const ButtonFunction& button = store.Button_Functions[b];
    if (button.Function == kFunctionOff) continue;
    Lines fields;
    identity_fields(fields, button);
    fields.flag_if_set(2, "Latch", button.Latch);
    routing_fields(fields, button);
    fields.flag_if_set(2, "Preset", button.Preset);
    numbered_block(out, "Button", b, fields);
  }
  return out.take();
}

std::string Fader_Section(const Store& store) {
  Lines out;
  for (int f = 0; f < kPlaybackFaders; ++f) {
    const FaderFunction& fader = store.Fader_Functions[f];
    if (fader.Function == kFunctionOff) continue;
    Lines fields;
    identity_fields(fields, fader);
    routing_fields(fields, fader);
    numbered_block(out, "Fader", f, fields);
  }
  return out.take();
}

std::string Chase_Section(const Store& store) {
  Lines lines;
  for (int c = 0; c < kSavedChases; ++c) {
    const ChaseRec& chase = store.Chase_Table[c];
    if (chase.Steps <= 1) continue;
    // A table holds steps 0..32; a larger count cannot come from the desk.
    const int last_step = std::min<int>(chase.Steps, kChaseSteps);
    lines.open(1, "Chase");
    lines.field(2, "Num", c);
    lines.field(2, "Name", chase.Name);
    lines.field(2, "Colour", chase.Colour);
    lines.field(2, "Steps", chase.Steps);
    lines.field(2, "Fixture", chase.Fixture);
    lines.field(2, "Loop", chase.Loop);
    lines.field(2, "Channels", joined(chase.Channels, kChaseChannels));
    for (int t = 0; t <= last_step; ++t) {
      lines.open(2, "Step");
      lines.field(3, "Num", t);
      lines.field(3, "Speed", step_seconds(chase.Speed[t]));
      lines.field(3, "Time", step_seconds(chase.Time[t]));
      lines.field(3, "Data", joined(chase.Data[t], kChaseChannels));
      lines.field(3, "Fade", joined(chase.Fade[t], kChaseChannels));
      lines.field(3, "Fix", joined(chase.Fix[t], chase.Fix[t].size()));
      lines.close(2, "Step");
    }
    lines.close(1, "Chase");
  }
  return lines.take();
}

std::string Screen_Section(const Store& store) {
  Lines lines;
  // Recording the last screen leaves the count one past the table.
  const int last = std::min<int>(store.Screen_Count, kScreens - 1);
  for (int r = 0; r <= last; ++r) {
    const Screen& screen = store.Screens[r];
    lines.open(1, "Screen");
    lines.field(2, "Num", r);
    lines.field_if_text(2, "Name", screen.Name);
    lines.field(2, "Next", screen.Next);
    lines.field(2, "Colour", screen.Colour);
    lines.field(2, "Instant", screen.Instant ? 1 : 0);
    lines.field(2, "Auto", screen.Auto ? 1 : 0);
    lines.field_if_positive(2, "Preset_l", screen.Preset_l);
    lines.field_if_positive(2, "Delay", screen.Delay);
    lines.field_if_positive(2, "Time", screen.Time);
    for (int f = 0; f < kPlaybackFaders; ++f) {
      if (screen.Fad_Sel[f] == 0) continue;
      lines.field(2, "Fad_Sel", std::to_string(f) + ":" + std::to_string(screen.Fad_Sel[f]));
    }
    for (int i = 0; i < kDeskChannels; ++i) {
      if (screen.Preset[i] == 0) continue;
      lines.field(2, "Preset", std::to_string(i) + ":" + std::to_string(screen.Preset[i]));
    }
    for (int b = 0; b < kPlaybackButtons; ++b) {
      if (screen.But_Sel[b]) lines.field(2, "But_Sel", b);
    }
    lines.close(1, "Screen");
  }
  return lines.take();
}

std::string Page_Section(const Store& store) {
  Lines lines;
  for (int p = 0; p < kPlaybackPages; ++p) {
    const Page& page = store.Pages[p];
    if (page.Name.empty() && page.Text.empty() && page.Colour.empty()) continue;
    lines.open(1, "Page");
    lines.field(2, "Num", p);
    lines.field_if_text(2, "Name", page.Name);
    lines.field_if_text(2, "Text", page.Text);
    lines.field_if_text(2, "Colour", page.Colour);
    lines.close(1, "Page");
  }
  return lines.take();
}

namespace {

std::string rooted(const std::string& body) { return kRootOpen + body + kRootClose; }

}  // namespace

std::string whole_project_document(const Store& store, const CalendarDate& date) {
  return rooted(Project_Section(store, date) + Submix_Section(store) + Patch_Section(store) +
                FaderName_Section(store) + Button_Section(store) + Fader_Section(store) +
                Chase_Section(store) + Screen_Section(store) + Page_Section(store));
}

std::string submix_document(const Store& store) { return rooted(Submix_Section(store)); }
std::string patch_document(const Store& store) { return rooted(Patch_Section(store)); }
std::string sequence_document(const Store& store) { return rooted(Chase_Section(store)); }

std::string file_bytes(const std::string& document) {
  return utf8_to_windows_1252(document) + "\r\n";
}

}  // namespace lumaris
