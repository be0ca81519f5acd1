#include "console/project/playback_blocks_reader.h"

#include <utility>

namespace lumaris::show_reading {

namespace {

template <typename Record>
void read_function_fields(BlockFields& f, Record& r) {
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

}  // namespace

bool read_button(BlockFields& f, Store& store, LoadReport& report) {
  const int b = f.index("Number", kPlaybackButtons - 1);
  ButtonFunction button;
  read_function_fields(f, button);
  button.Latch = f.flag("Latch");
  button.Preset = f.flag("Preset");
  if (!f.ok()) return false;
  store.Button_Functions[b] = std::move(button);
  ++report.buttons;
  return true;
}

bool read_fader(BlockFields& f, Store& store, LoadReport& report) {
  const int n = f.index("Number", kPlaybackFaders - 1);
  FaderFunction fader;
  read_function_fields(f, fader);
  if (!f.ok()) return false;
  store.Fader_Functions[n] = std::move(fader);
  ++report.faders;
  return true;
}

bool read_screen(BlockFields& f, Store& store, LoadReport& report, int& last_screen) {
  const int r = f.index("Num", kScreens - 1);
  if (!f.ok()) return false;
  Screen screen = store.Screens[r];
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
  store.Screens[r] = std::move(screen);
  if (r > last_screen) last_screen = r;
  ++report.screens;
  return true;
}

bool read_page(BlockFields& f, Store& store, LoadReport& report) {
  const int p = f.index("Num", kPlaybackPages - 1);
  if (!f.ok()) return false;
  Page& page = store.Pages[p];
  page.Name = f.text("Name");
  page.Text = f.text("Text");
  page.Colour = f.text("Colour");
  ++report.pages;
  return true;
}

}  // namespace lumaris::show_reading
