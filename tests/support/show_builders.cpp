#include "tests/support/show_builders.h"

#include <fstream>
#include <iterator>
#include <random>
#include <sstream>

namespace lumaris {

void build_full_show(Store& store) {
  reset_store(store);
  store.Project_Name = "Winter Gala";
  store.Project_Version = 6;
  store.Project_Text = "Main stage \u2013 act 2";
  store.Adapter = 3;
  store.Art_Universes[1] = {true, 1};
  store.Art_Universes[4] = {true, 4};
  store.BCF_Mode = 2;

  SubmixRec& wash = store.Submix[0];
  wash.Name = "Wash";
  wash.Colour = "255";
  wash.Chan[0] = 1, wash.Level[0] = 200;
  wash.Chan[1] = 5, wash.Level[1] = 128;
  wash.Chan[2] = 64, wash.Level[2] = 255;
  store.Submix[3].Name = "Caf\u00e9";
  store.Submix[32].Colour = "65280";
  store.Submix[32].Chan[0] = 10, store.Submix[32].Level[0] = 1;

  store.Patch[5] = 9;
  store.Patch[63] = 64;
  store.Patch[511] = 1;
  store.Patch[512] = 2;

  store.Fader_Names[4] = {"Front wash left", "FWL", "255", true, true};
  store.Fader_Names[9].Name = "X";  // description unchanged: not saved
  store.Fader_Names[20].Desc = "";
  store.Fader_Names[63] = {"Haze", "HZ", "", true, false};

  store.Button_Functions[3].Function = kFunctionOff;
  ButtonFunction& blue = store.Button_Functions[16];
  blue.Name = "Blue", blue.Colour = "16711680", blue.Function = kFunctionPreset, blue.Latch = true;
  blue.Channel1 = 3, blue.Channel2 = 7, blue.Level = 200;
  ButtonFunction& amber = store.Button_Functions[17];
  amber.Name = "Amber", amber.Function = kFunctionColour, amber.Preset = true;
  amber.Channel1 = 1, amber.Channel2 = 2, amber.Channel3 = 3;
  amber.Data1 = 255, amber.Data2 = 191, amber.Data3 = 0;
  store.Button_Functions[18].Function = kFunctionCue;
  store.Button_Functions[18].Value = 4;
  ButtonFunction& run = store.Button_Functions[80];
  run.Function = kFunctionSequence, run.Value = 1, run.Level = 255;

  store.Fader_Functions[0].Level = 0;  // nothing left to save
  FaderFunction& speed = store.Fader_Functions[12];
  speed.Name = "Chase speed", speed.Function = kFunctionSequence, speed.Value = 1;
  speed.Data1 = 1, speed.Level = 255;
  FaderFunction& colour = store.Fader_Functions[60];
  colour.Function = kFunctionColour, colour.Channel1 = 4, colour.Channel2 = 5, colour.Channel3 = 6;

  store.Chase_Table[0].Name = "Solo";  // one step: not saved
  ChaseRec& flash = store.Chase_Table[2];
  flash.Name = "Flash", flash.Steps = 2, flash.Loop = 3;
  flash.Channels[0] = 40;
  flash.Speed[1] = 0.25, flash.Time[1] = 2.5, flash.Data[1][0] = 255, flash.Fade[1][0] = kChaseFade;
  flash.Fix[1][0] = 3, flash.Fix[1][2] = 1;
  flash.Speed[2] = 0.5, flash.Time[2] = 0, flash.Data[2][1] = 128;

  store.Screen_Count = 3;
  Screen& opening = store.Screens[1];
  opening.Name = "Opening", opening.Colour = "33023", opening.Instant = true, opening.Auto = true;
  opening.Preset_l = 200, opening.Delay = 5, opening.Time = 3;
  opening.Fad_Sel[0] = 255, opening.Fad_Sel[12] = 100;
  opening.Preset[0] = 255, opening.Preset[4] = 128, opening.Preset[63] = 10;
  opening.But_Sel[0] = opening.But_Sel[17] = opening.But_Sel[80] = true;
  store.Screens[2].Next = 7, store.Screens[2].Preset_l = 0, store.Screens[2].Time = 0;

  store.Pages[0] = {"Act 1", "Scenes 1-4", ""};
  store.Pages[4].Colour = "8421504";
}

void build_maximal_show(Store& store) {
  reset_store(store);
  store.Project_Name = "Maximal";
  store.Project_Text = "Every section full";
  for (int row = 0; row < 9; ++row) store.Art_Universes[row] = {true, static_cast<std::uint8_t>(row)};
  for (int s = 0; s <= kSubmixes; ++s) {
    store.Submix[s].Name = "Submix " + std::to_string(s);
    store.Submix[s].Colour = std::to_string(s * 1000);
    for (int k = 0; k < kDeskChannels; ++k) {
      store.Submix[s].Chan[k] = static_cast<std::int16_t>(k + 1);
      store.Submix[s].Level[k] = static_cast<std::int16_t>(1 + (s + k) % 255);
    }
  }
  for (int s = 0; s <= kDmxSlots; ++s) store.Patch[s] = static_cast<std::int16_t>(1 + s % 64);
  for (int i = 0; i < kDeskChannels; ++i) {
    store.Fader_Names[i] = {"Channel description " + std::to_string(i), "C" + std::to_string(i),
                            "255", i % 2 == 0, i % 3 == 0};
  }
  for (int b = 0; b < kPlaybackButtons; ++b) {
    store.Button_Functions[b] = {"Button " + std::to_string(b), 1, "65535", kFunctionColour, true,
                                 1, 2, 3, 10, 20, 30, 255, true};
  }
  for (int f = 0; f < kPlaybackFaders; ++f) {
    store.Fader_Functions[f] = {"Fader " + std::to_string(f), 1, "65535", kFunctionColour, 1, 2, 3,
                                10, 20, 30, 255};
  }
  for (int c = 0; c < 32; ++c) {
    ChaseRec& chase = store.Chase_Table[c];
    chase.Name = "Chase " + std::to_string(c);
    chase.Steps = kChaseSteps;
    for (int t = 0; t <= kChaseSteps; ++t) {
      chase.Speed[t] = 0.25 * t;
      chase.Time[t] = 0.125 * t;
      for (int k = 0; k < kChaseChannels; ++k) {
        chase.Data[t][k] = static_cast<std::int16_t>((t * 7 + k) % 256);
        chase.Fade[t][k] = static_cast<std::int16_t>((t + k) % 3);
      }
    }
  }
  store.Screen_Count = kScreens - 1;
  for (int r = 0; r < kScreens; ++r) {
    Screen& screen = store.Screens[r];
    screen.Name = "Cue " + std::to_string(r);
    screen.Colour = "255";
    screen.Delay = 2;
    for (int i = 0; i < kDeskChannels; ++i) screen.Preset[i] = static_cast<std::int16_t>(1 + (r + i) % 255);
    for (int f = 0; f < kPlaybackFaders; ++f) screen.Fad_Sel[f] = static_cast<std::int16_t>(1 + f);
    for (int b = 0; b < kPlaybackButtons; ++b) screen.But_Sel[b] = true;
  }
  for (int p = 0; p < kPlaybackPages; ++p) store.Pages[p] = {"Page", "Text", "255"};
}

namespace {

class Dice {
 public:
  explicit Dice(std::uint32_t seed) : engine_(seed) {}
  int between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine_); }
  std::int16_t num(int low, int high) { return static_cast<std::int16_t>(between(low, high)); }
  bool chance(int percent) { return between(1, 100) <= percent; }
  std::int16_t level() { return static_cast<std::int16_t>(between(0, 255)); }
  // Names use what show files hold: letters, blanks, Windows-1252 accents and
  // signs, but never a '<' that could close an element early.
  std::string text(int longest) {
    static const char* const kPieces[] = {"a", "Z", " ", "7", "-", "&", ">", "\u00e9", "\u20ac",
                                          "\u00df", "\u2013", "\u00c5", "x", "Q", "."};
    std::string out;
    const int length = between(0, longest);
    for (int i = 0; i < length; ++i) out += kPieces[between(0, 14)];
    return out;
  }
  std::string colour() { return chance(30) ? std::string() : std::to_string(between(0, 0xFFFFFF)); }
  double seconds() { return between(0, 1920) / 8.0; }  // 0 .. 240 s, as the sliders

 private:
  std::mt19937 engine_;
};

}  // namespace

void build_random_show(Store& store, std::uint32_t seed) {
  reset_store(store);
  Dice dice(seed);
  store.Project_Name = dice.text(12);
  store.Project_Text = dice.text(40);
  store.Project_Version = dice.num(0, 500);
  store.Adapter = dice.num(0, 5);
  store.BCF_Mode = dice.num(0, 6);
  // Rows load back from the first row on, so enabled rows are kept together.
  const int rows = dice.between(0, 9);
  for (int row = 0; row < rows; ++row) {
    store.Art_Universes[row] = {true, static_cast<std::uint8_t>(dice.between(0, 255))};
  }
  for (int s = 0; s <= kSubmixes; ++s) {
    if (!dice.chance(40)) continue;
    SubmixRec& submix = store.Submix[s];
    submix.Name = dice.text(8);
    submix.Colour = dice.colour();
    int k = 0;
    for (int channel = 1; channel <= kDeskChannels; ++channel) {
      if (!dice.chance(20)) continue;
      submix.Chan[k] = static_cast<std::int16_t>(channel);
      submix.Level[k] = dice.num(1, 255);
      ++k;
    }
  }
  // A file only names patched slots and a load keeps the slots it does not name,
  // so slots a fresh desk patches stay patched here.
  for (int s = 0; s <= kDmxSlots; ++s) {
    const bool patched = s < 63 || dice.chance(50);
    store.Patch[s] = static_cast<std::int16_t>(patched ? dice.between(1, 64) : 0);
  }
  for (int i = 0; i < kDeskChannels; ++i) {
    if (!dice.chance(30)) continue;
    store.Fader_Names[i] = {dice.text(16) + "!", dice.text(4), dice.colour(), dice.chance(50),
                            dice.chance(50)};
  }
  for (int b = 0; b < kPlaybackButtons; ++b) {
    store.Button_Functions[b] = {dice.text(6), dice.num(0, 32), dice.colour(), dice.num(0, 4),
                                 dice.chance(50), dice.num(0, 64), dice.num(0, 64), dice.num(0, 64),
                                 dice.level(), dice.level(), dice.level(), dice.num(1, 255),
                                 dice.chance(50)};
  }
  for (int f = 0; f < kPlaybackFaders; ++f) {
    store.Fader_Functions[f] = {dice.text(6), dice.num(0, 32), dice.colour(), dice.num(0, 4),
                                dice.num(0, 64), dice.num(0, 64), dice.num(0, 64), dice.level(),
                                dice.level(), dice.level(), dice.num(1, 255)};
  }
  for (int c = 0; c < 32; ++c) {
    if (!dice.chance(30)) continue;
    ChaseRec& chase = store.Chase_Table[c];
    chase.Name = dice.text(8);
    chase.Colour = dice.colour();
    chase.Steps = dice.num(2, kChaseSteps);
    chase.Fixture = dice.num(0, kFixtures - 1);
    chase.Loop = dice.num(0, 10);
    for (int k = 0; k < kChaseChannels; ++k) chase.Channels[k] = dice.num(0, 62);
    for (int t = 0; t <= chase.Steps; ++t) {
      chase.Speed[t] = dice.seconds();
      chase.Time[t] = dice.seconds();
      for (int k = 0; k < kChaseChannels; ++k) {
        chase.Data[t][k] = dice.level();
        chase.Fade[t][k] = dice.num(0, 2);
      }
      for (auto& value : chase.Fix[t]) value = dice.num(0, 20);
    }
  }
  store.Screen_Count = dice.num(1, kScreens - 1);
  for (int r = 0; r <= store.Screen_Count; ++r) {
    Screen& screen = store.Screens[r];
    screen.Name = dice.text(10);
    screen.Next = dice.num(0, kScreens - 1);
    screen.Colour = dice.colour();
    screen.Instant = dice.chance(20);
    screen.Auto = dice.chance(20);
    screen.Preset_l = dice.level();
    screen.Delay = dice.num(0, 30);
    screen.Time = dice.num(0, 60);
    for (auto& level : screen.Fad_Sel) level = dice.chance(20) ? dice.level() : 0;
    for (auto& level : screen.Preset) level = dice.chance(30) ? dice.level() : 0;
    for (int b = 0; b < kPlaybackButtons; ++b) screen.But_Sel[b] = dice.chance(10);
  }
  for (int p = 0; p < kPlaybackPages; ++p) {
    if (dice.chance(50)) store.Pages[p] = {dice.text(8), dice.text(20), dice.colour()};
  }
}

std::string file_contents(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

std::string test_data(const std::string& name) { return std::string(LUMARIS_TEST_DATA) + "/" + name; }

}  // namespace lumaris
