#include "tests/project/store_compare.h"

#include <tuple>

namespace lumaris {
namespace {

auto fields(const FaderName& n) { return std::tie(n.Desc, n.Name, n.Colour, n.Main_F, n.Cross_F); }
auto fields(const SubmixRec& s) { return std::tie(s.Level, s.Chan, s.Name, s.Colour); }
auto fields(const ButtonFunction& b) {
  return std::tie(b.Name, b.Value, b.Colour, b.Function, b.Latch, b.Channel1, b.Channel2,
                  b.Channel3, b.Data1, b.Data2, b.Data3, b.Level, b.Preset);
}
auto fields(const FaderFunction& f) {
  return std::tie(f.Name, f.Value, f.Colour, f.Function, f.Channel1, f.Channel2, f.Channel3,
                  f.Data1, f.Data2, f.Data3, f.Level);
}
auto fields(const ChaseRec& c) {
  return std::tie(c.Name, c.Data, c.Fade, c.Speed, c.Time, c.Channels, c.Steps, c.Loop, c.Colour,
                  c.Fixture, c.Fix);
}
auto fields(const Screen& s) {
  return std::tie(s.Preset, s.But_Sel, s.Fad_Sel, s.Preset_l, s.Time, s.Auto, s.Delay, s.Next,
                  s.Name, s.Instant, s.Colour);
}
auto fields(const Page& p) { return std::tie(p.Name, p.Text, p.Colour); }
auto fields(const ArtUniverse& a) { return std::tie(a.Enable, a.Universe); }

template <typename T>
bool same(const T& a, const T& b) {
  return fields(a) == fields(b);
}

}  // namespace

std::vector<std::string> saved_item_differences(const Store& saved, const Store& loaded) {
  std::vector<std::string> out;
  auto check = [&out](bool equal, const std::string& name) {
    if (!equal) out.push_back(name);
  };
  check(saved.Project_Name == loaded.Project_Name, "Project_Name");
  check(saved.Project_Version == loaded.Project_Version, "Project_Version");
  check(saved.Project_Text == loaded.Project_Text, "Project_Text");
  check(saved.Adapter == loaded.Adapter, "Adapter");
  check(saved.BCF_Mode == loaded.BCF_Mode, "BCF_Mode");
  for (int row = 0; row < kArtRows; ++row) {
    check(same(saved.Art_Universes[row], loaded.Art_Universes[row]), "Art row " + std::to_string(row));
  }
  for (int s = 0; s <= kSubmixes; ++s) check(same(saved.Submix[s], loaded.Submix[s]), "Submix " + std::to_string(s));
  check(saved.Patch == loaded.Patch, "Patch");
  for (int i = 0; i < kDeskChannels; ++i) {
    check(same(saved.Fader_Names[i], loaded.Fader_Names[i]), "FaderName " + std::to_string(i));
  }
  for (int b = 0; b < kPlaybackButtons; ++b) {
    const ButtonFunction& a = saved.Button_Functions[b];
    check(a.Function >= kFunctionOff ? loaded.Button_Functions[b].Function == kFunctionOff
                                     : same(a, loaded.Button_Functions[b]),
          "Button " + std::to_string(b));
  }
  for (int f = 0; f < kPlaybackFaders; ++f) {
    const FaderFunction& a = saved.Fader_Functions[f];
    check(a.Function >= kFunctionOff ? loaded.Fader_Functions[f].Function == kFunctionOff
                                     : same(a, loaded.Fader_Functions[f]),
          "Fader " + std::to_string(f));
  }
  for (int c = 0; c < 32; ++c) {
    check(same(saved.Chase_Table[c], loaded.Chase_Table[c]), "Chase " + std::to_string(c));
  }
  check(saved.Screen_Count == loaded.Screen_Count, "Screen_Count");
  for (int r = 0; r <= saved.Screen_Count && r < kScreens; ++r) {
    check(same(saved.Screens[r], loaded.Screens[r]), "Screen " + std::to_string(r));
  }
  for (int p = 0; p < kPlaybackPages; ++p) check(same(saved.Pages[p], loaded.Pages[p]), "Page " + std::to_string(p));
  return out;
}

}  // namespace lumaris
