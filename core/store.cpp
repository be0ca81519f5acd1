#include "core/store.h"

namespace lumaris {

void reset_fader_names(Store& store) {
  for (int i = 0; i < kDeskChannels; ++i) {
    FaderName& name = store.Fader_Names[i];
    name.Desc = std::to_string(i + 1);
    name.Name = std::to_string(i + 1);
    name.Colour = "16776960";
    name.Main_F = false;
    name.Cross_F = false;
  }
  store.Fader_Names[kDeskChannels] = FaderName{};
}

void reset_submixes(Store& store) { store.Submix.fill(SubmixRec{}); }

void reset_patch(Store& store, int patched_slots) {
  for (int s = 0; s <= kDmxSlots; ++s) {
    store.Patch[s] = static_cast<std::int16_t>(s < patched_slots ? s + 1 : 0);
  }
}

// A fresh playback desk is usable at once: page 1's sixteen buttons flash
// submixes 1..16 at full and its twelve faders play submixes 1..12; every other
// button and fader is Off until the operator sets it up.
void reset_playback_functions(Store& store) {
  store.Button_Functions.fill(ButtonFunction{});
  store.Fader_Functions.fill(FaderFunction{});
  for (int b = 0; b < kButtonsPerPage; ++b) {
    ButtonFunction& button = store.Button_Functions[b];
    button.Function = kFunctionSubmix;
    button.Value = static_cast<std::int16_t>(b);
    button.Level = 255;
  }
  for (int f = 0; f < kFadersPerPlaybackPage; ++f) {
    FaderFunction& fader = store.Fader_Functions[f];
    fader.Function = kFunctionSubmix;
    fader.Value = static_cast<std::int16_t>(f);
    fader.Level = 255;
  }
  store.Playback_Button_State.fill(false);
  store.Playback_Fader_Level.fill(0);
}

void clear_screen(Screen& screen, int number) {
  screen.Preset.fill(0);
  screen.But_Sel.fill(false);
  screen.Fad_Sel.fill(0);
  screen.Preset_l = 255;
  screen.Time = 20;
  screen.Auto = false;
  screen.Next = static_cast<std::int16_t>(number + 1);
  screen.Name.clear();
  screen.Instant = false;
}

// Every screen starts cleared: full Preset level, 20 s fade, chained to the next number.
void reset_screens(Store& store) {
  for (int r = 0; r < kScreens; ++r) {
    store.Screens[r] = Screen{};
    clear_screen(store.Screens[r], r);
  }
  store.Screen_Count = 1;
  store.Pages.fill(Page{});
  store.Playback_Page = 0;
}

// A fresh chase has one step; every step lasts 1 s and shows its levels for the
// whole second (fade time 1 s), with all 24 channels stepping; chase channel i is
// routed to desk channel i + 1.
void reset_chases(Store& store) {
  for (ChaseRec& chase : store.Chase_Table) {
    chase = ChaseRec{};
    for (int t = 0; t <= kChaseSteps; ++t) {
      chase.Speed[t] = 1.0;
      chase.Time[t] = 1.0;
      for (int k = 0; k < kChaseChannels; ++k) chase.Fade[t][k] = kChaseStep;
    }
    for (int k = 0; k < kChaseChannels; ++k) chase.Channels[k] = static_cast<std::int16_t>(k);
  }
}

void reset_fixtures(Store& store) { store.Fixtures = FixtureTable{}; }

void reset_store(Store& store) {
  store.Desk_Level.fill(0);
  store.Fader_Page = 0;
  store.Edit_Channel = 0;
  reset_fader_names(store);
  reset_submixes(store);
  reset_patch(store, 63);
  store.DMX_Out.fill(0);
  store.Realout_First = 0;
  store.Realout_Last = 143;

  store.Project_Name.clear();
  store.Project_Date.clear();
  store.Project_Version = 0;
  store.Project_Text.clear();
  store.Project_File.clear();
  store.Project_Title = "untitled";
  store.Project_Changed = false;
  store.Adapter = 0;
  store.Port_Address = 888;

  store.Chase_Out.fill(0);
  store.Playback_Live_Out.fill(0);
  store.Playback_Run_Out.fill(0);
  store.Playback_Seq_Out.fill(0);

  reset_screens(store);
  reset_playback_functions(store);

  store.Run_Mode = false;
  store.Autotake_Running = false;
  store.Take_Manual = false;
  store.Crossfade_Level = 0;
  store.Run_Screen = 0;

  reset_chases(store);
  reset_fixtures(store);
  store.Art_Universes.fill(ArtUniverse{});
  store.BCF_Mode = 0;
}

}  // namespace lumaris
