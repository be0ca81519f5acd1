#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace lumaris {

// Sizes of the desk. Arrays keep their declared upper bound, so an array "0..64"
// has 65 entries and indices read exactly as the desk documents them.
inline constexpr int kDeskChannels = 64;     // desk channel n is index n - 1
inline constexpr int kFadersPerPage = 32;    // main desk strips, two pages
inline constexpr int kSubmixes = 32;         // 0..31, shown as 1..32
inline constexpr int kDmxSlots = 512;        // slot s is DMX channel s + 1
inline constexpr int kScreens = 200;
inline constexpr int kPlaybackPages = 5;
inline constexpr int kPlaybackButtons = 81;  // 0..80
inline constexpr int kPlaybackFaders = 61;   // 0..60
inline constexpr int kButtonsPerPage = 16;
inline constexpr int kFadersPerPlaybackPage = 12;
inline constexpr int kChases = 33;           // 0..32
inline constexpr int kChaseSteps = 32;       // steps 1..32 (index 0 exists)
inline constexpr int kChaseChannels = 24;    // 0..23 (index 24 exists)
inline constexpr int kFixtures = 21;
inline constexpr int kFixtureFunctions = 6;
inline constexpr int kFixtureButtonFunctions = 4;
inline constexpr int kFixtureButtons = 21;
inline constexpr int kArtRows = 17;          // 0..16; rows 0..7 have controls

// Playback button and fader functions.
enum PlaybackFunction : std::int16_t {
  kFunctionSubmix = 0,
  kFunctionPreset = 1,
  kFunctionSequence = 2,
  kFunctionColour = 3,
  kFunctionOff = 4,
  kFunctionCue = 5,
};

// Chase channel functions within a step.
enum ChaseFunction : std::int16_t { kChaseOff = 0, kChaseFade = 1, kChaseStep = 2 };

struct FaderName {
  std::string Desc;
  std::string Name;
  std::string Colour;
  bool Main_F = false;   // exempt from the Main master
  bool Cross_F = false;  // exempt from the run-mode crossfade

  bool operator==(const FaderName&) const = default;
};

// A submix: compacted (Chan, Level) pairs from k = 0 up, ascending channels, no gaps.
struct SubmixRec {
  std::array<std::int16_t, 65> Level{};
  std::array<std::int16_t, 65> Chan{};
  std::string Name;
  std::string Colour;

  bool operator==(const SubmixRec&) const = default;
};

struct Screen {
  std::array<std::int16_t, kDeskChannels> Preset{};
  std::array<bool, kPlaybackButtons> But_Sel{};
  std::array<std::int16_t, kPlaybackFaders> Fad_Sel{};
  std::int16_t Preset_l = 255;
  std::int16_t Time = 20;
  bool Auto = false;
  std::int16_t Delay = 0;
  std::int16_t Next = 0;
  std::string Name;
  bool Instant = false;
  std::string Colour;

  bool operator==(const Screen&) const = default;
};

struct Page {
  std::string Name;
  std::string Text;
  std::string Colour;

  bool operator==(const Page&) const = default;
};

struct ButtonFunction {
  std::string Name;
  std::int16_t Value = 0;
  std::string Colour;
  std::int16_t Function = kFunctionOff;
  bool Latch = false;
  std::int16_t Channel1 = 0, Channel2 = 0, Channel3 = 0;
  std::int16_t Data1 = 0, Data2 = 0, Data3 = 0;
  std::int16_t Level = 0;
  bool Preset = false;

  bool operator==(const ButtonFunction&) const = default;
};

struct FaderFunction {
  std::string Name;
  std::int16_t Value = 0;
  std::string Colour;
  std::int16_t Function = kFunctionOff;
  std::int16_t Channel1 = 0, Channel2 = 0, Channel3 = 0;
  std::int16_t Data1 = 0, Data2 = 0, Data3 = 0;  // Sequence fader: Data1 0 = Level, else Step Time
  std::int16_t Level = 0;

  bool operator==(const FaderFunction&) const = default;
};

struct ChaseRec {
  using StepTable = std::array<std::array<std::int16_t, kChaseChannels + 1>, kChaseSteps + 1>;
  std::string Name;
  StepTable Data{};
  StepTable Fade{};
  std::array<double, kChaseSteps + 1> Speed{};  // step duration, seconds
  std::array<double, kChaseSteps + 1> Time{};   // fade time, seconds
  std::array<std::int16_t, kChaseChannels + 1> Channels{};  // desk channel - 1
  std::int16_t Steps = 1;
  std::int16_t Loop = 0;  // 0 = endless, n = repeat count
  std::string Colour;
  std::int16_t Fixture = 0;
  std::array<std::array<std::int16_t, 6>, kChaseSteps + 1> Fix{};

  bool operator==(const ChaseRec&) const = default;
};

struct FixtureTable {
  template <typename T>
  using PerButton =
      std::array<std::array<std::array<T, kFixtureButtons>, kFixtureButtonFunctions>, kFixtures>;
  std::array<std::string, kFixtures> Fixture_Name{};
  std::array<std::array<std::string, kFixtureFunctions>, kFixtures> Fixture_Function{};
  PerButton<std::string> Fixture_Button{};
  PerButton<std::int16_t> Fixture_Min{};
  PerButton<std::int16_t> Fixture_Max{};
  PerButton<std::string> Fixture_Colour{};

  bool operator==(const FixtureTable&) const = default;
};

struct ArtUniverse {
  bool Enable = false;
  std::uint8_t Universe = 0;

  bool operator==(const ArtUniverse&) const = default;
};

// The one shared store every desk reads and writes. One instance per console.
struct Store {
  // Main desk
  std::array<std::int16_t, kDeskChannels + 1> Desk_Level{};
  std::int16_t Fader_Page = 0;
  std::int16_t Edit_Channel = 0;
  std::array<FaderName, kDeskChannels + 1> Fader_Names{};
  std::array<SubmixRec, kSubmixes + 1> Submix{};
  std::array<std::int16_t, kDmxSlots + 1> Patch{};
  std::array<std::uint8_t, kDmxSlots + 1> DMX_Out{};
  std::int16_t Realout_First = 0;
  std::int16_t Realout_Last = 143;

  // Project header
  std::string Project_Name;
  std::string Project_Date;
  std::int16_t Project_Version = 0;
  std::string Project_Text;
  std::string Project_File;
  std::string Project_Title = "untitled";
  bool Project_Changed = false;
  std::int16_t Adapter = 0;
  std::int16_t Port_Address = 888;

  // Per-channel outputs of the other desks, read by the output cycle.
  std::array<std::int32_t, kDeskChannels> Chase_Out{};
  std::array<std::int16_t, kDeskChannels> Playback_Live_Out{};
  std::array<std::int16_t, kDeskChannels> Playback_Run_Out{};
  std::array<std::int16_t, kDeskChannels> Playback_Seq_Out{};

  // Playback desk
  std::array<Screen, kScreens> Screens{};
  std::int16_t Screen_Count = 1;
  std::array<Page, kPlaybackPages + 1> Pages{};
  std::int16_t Playback_Page = 0;
  std::array<ButtonFunction, kPlaybackButtons> Button_Functions{};
  std::array<FaderFunction, kPlaybackFaders> Fader_Functions{};
  std::array<bool, kPlaybackButtons> Playback_Button_State{};
  std::array<std::int16_t, kPlaybackFaders> Playback_Fader_Level{};

  // Run mode
  bool Run_Mode = false;
  bool Autotake_Running = false;
  bool Take_Manual = false;
  std::int16_t Crossfade_Level = 0;
  std::int16_t Run_Screen = 0;

  // Sequence desk and fixtures
  std::array<ChaseRec, kChases> Chase_Table{};
  FixtureTable Fixtures{};

  // Outputs configured with the show
  std::array<ArtUniverse, kArtRows> Art_Universes{};
  std::int16_t BCF_Mode = 0;

  bool operator==(const Store&) const = default;
};

// Start-up values of the whole store.
void reset_store(Store& store);

// Start-up values of parts of the store, as Reset Desk needs them.
void reset_fader_names(Store& store);
void reset_submixes(Store& store);
void reset_patch(Store& store, int patched_slots);
void reset_playback_functions(Store& store);
void reset_screens(Store& store);
void reset_chases(Store& store);
void reset_fixtures(Store& store);
void clear_screen(Screen& screen, int number);

}  // namespace lumaris
