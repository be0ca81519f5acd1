#include "playback/playback_panel.h"

#include <algorithm>

#include "core/colour_dialog.h"
#include "core/desk_context.h"
#include "core/surface_feedback.h"
#include "platform/dialogs.h"
#include "playback/playback_chases.h"
#include "playback/playback_output.h"

namespace lumaris {

namespace {

constexpr const char* kDeskCleared = " Desk Cleared ";
constexpr const char* kSubmixesCleared = " Submixes Cleared ";
constexpr const char* kStepTiming = " Step Timing";
constexpr const char* kMovedMark = " *";
constexpr int kSequenceStopLevel = 3;  // a Sequence fader below this stops its chase
constexpr int kSequenceRestartLevel = 5;

std::string number_caption(const char* word, int number) { return std::string(word) + std::to_string(number); }

}  // namespace

PlaybackPanel::PlaybackPanel(DeskContext& context, PlaybackChases& chases, Desk desk)
    : context_(context), chases_(chases), desk_(std::move(desk)) {}

int PlaybackPanel::button_number(int i) const { return context_.store().Playback_Page * kButtonsPerPage + i; }
int PlaybackPanel::fader_number(int i) const { return context_.store().Playback_Page * kFadersPerPlaybackPage + i; }

bool PlaybackPanel::surface_in_playback() const { return context_.store().BCF_Mode == kSurfacePlaybackMode; }

void PlaybackPanel::Compute_Live_Output() { lumaris::Compute_Live_Output(context_.store()); }

void PlaybackPanel::Button_Press(int i, MouseButton mouse) {
  if (i < 0 || i >= kButtonsPerPage) return;
  const int b = button_number(i);
  if (b >= kPlaybackButtons) return;
  if (mouse == MouseButton::Right) {
    if (desk_.open_button_setup) desk_.open_button_setup(b);
    return;
  }
  press(i, b);
  Compute_Live_Output();
  if (surface_in_playback()) {
    context_.surface().BCF_Button_Update(PlaybackElement(b), context_.store().Playback_Button_State[b]);
  }
}

void PlaybackPanel::press(int i, int b) {
  Store& store = context_.store();
  ButtonFunction& button = store.Button_Functions[b];
  bool& state = store.Playback_Button_State[b];
  Rgb& lamp = buttons_[i].lamp;
  switch (button.Function) {
    case kFunctionSubmix:
    case kFunctionPreset:
      state = button.Latch ? !state : true;
      lamp = state ? kRed : kLampOff;
      break;
    case kFunctionSequence:
      if (!button.Latch || !state) {
        lamp = kRed;
        button.Preset = false;
        chases_.set_Seq_Speed(button.Value, 100);
        chases_.set_Seq_Level(button.Value, button.Level);
        chases_.Start_Sequence(button.Value);
        if (button.Latch) state = true;
      } else {
        chases_.Stop_Sequence(button.Value);
        lamp = kLampOff;
        state = false;
      }
      break;
    case kFunctionColour:
      if (!state) {
        // A colour not fixed in the set-up is asked for at every press; a
        // cancelled dialog leaves the button off.
        if (!button.Preset) {
          const std::optional<Rgb> colour =
              context_.dialogs().choose_colour(kColourTitle, Rgb{static_cast<std::uint8_t>(button.Data1),
                                                                 static_cast<std::uint8_t>(button.Data2),
                                                                 static_cast<std::uint8_t>(button.Data3)});
          if (!colour) break;
          button.Data1 = colour->r;
          button.Data2 = colour->g;
          button.Data3 = colour->b;
          button.Colour = colour_to_text(*colour);
          buttons_[i].caption_colour = *colour;
        }
        state = true;
        lamp = kRed;
      } else {
        state = false;
        lamp = kLampOff;
      }
      break;
    case kFunctionCue:
      if (desk_.cue) desk_.cue(button.Value);
      buttons_[i].lamp = kRed;
      break;
    default:
      break;
  }
}

void PlaybackPanel::Button_Release(int i, MouseButton mouse) {
  if (i < 0 || i >= kButtonsPerPage || mouse != MouseButton::Left) return;
  const int b = button_number(i);
  if (b >= kPlaybackButtons) return;
  release(i, b);
  Compute_Live_Output();
}

void PlaybackPanel::release(int i, int b) {
  Store& store = context_.store();
  const ButtonFunction& button = store.Button_Functions[b];
  if (button.Latch) return;
  bool& state = store.Playback_Button_State[b];
  switch (button.Function) {
    case kFunctionSubmix:
    case kFunctionPreset:
    case kFunctionColour:
      state = false;
      break;
    case kFunctionSequence:
      state = false;
      chases_.Stop_Sequence(button.Value);
      chases_.set_Seq_Level(button.Value, 0);
      break;
    case kFunctionCue:
      break;
    default:
      return;
  }
  buttons_[i].lamp = kLampOff;
  if (surface_in_playback()) context_.surface().BCF_Button_Update(PlaybackElement(b), state);
}

void PlaybackPanel::Fader_Move(int i, int value) {
  if (i < 0 || i >= kFadersPerPlaybackPage) return;
  const int f = fader_number(i);
  if (f >= kPlaybackFaders) return;
  Store& store = context_.store();
  value = std::clamp(value, 0, 255);
  const int level = 255 - value;
  faders_[i].fader = value;
  store.Playback_Fader_Level[f] = static_cast<std::int16_t>(level);
  const FaderFunction& fader = store.Fader_Functions[f];
  if (fader.Function == kFunctionSequence) {
    const int q = fader.Value;
    if (level < kSequenceStopLevel) {
      chases_.Stop_Sequence(q);
      chases_.set_Seq_Level(q, 0);
    } else if (fader.Data1 == 0) {
      if (chases_.Seq_Level(q) < kSequenceRestartLevel) chases_.set_Seq_Speed(q, 100);
      chases_.set_Seq_Level(q, level);
      chases_.Start_Sequence(q);
    } else {
      if (chases_.Seq_Level(q) < kSequenceRestartLevel) chases_.set_Seq_Level(q, fader.Level);
      chases_.set_Seq_Speed(q, level);
      faders_[i].step_time_note = faders_[i].caption.substr(0, 4) + kMovedMark;
      chases_.Start_Sequence(q);
    }
  }
  Compute_Live_Output();
  if (surface_in_playback()) context_.surface().BCF_Fader_Update(PlaybackElement(f), level);
}

void PlaybackPanel::Fader_Setup_Click(int i) {
  if (i < 0 || i >= kFadersPerPlaybackPage) return;
  const int f = fader_number(i);
  if (f < kPlaybackFaders && desk_.open_fader_setup) desk_.open_fader_setup(f);
}

PlaybackPanel::Caption PlaybackPanel::caption(int function, int value, const std::string& name,
                                              const std::string& colour) const {
  const Store& store = context_.store();
  switch (function) {
    case kFunctionSubmix:
      if (value < 0 || value > kSubmixes) break;
      return {store.Submix[value].Name.empty() ? number_caption("Submix ", value + 1) : store.Submix[value].Name,
              colour_from_text(store.Submix[value].Colour)};
    case kFunctionSequence: {
      if (value < 0 || value >= kChases) break;
      const ChaseRec& chase = store.Chase_Table[value];
      return {chase.Name.empty() ? number_caption("Seq ", value + 1) : chase.Name, colour_from_text(chase.Colour)};
    }
    case kFunctionCue: {
      if (value < 0 || value >= kScreens) break;
      const Screen& screen = store.Screens[value];
      return {screen.Name.empty() ? number_caption("Cue ", value) : screen.Name, colour_from_text(screen.Colour)};
    }
    default:
      break;
  }
  return {name, colour_from_text(colour)};
}

void PlaybackPanel::Refresh_Playback_Panel() {
  const Store& store = context_.store();
  for (int i = 0; i < kButtonsPerPage; ++i) {
    const int b = button_number(i);
    PlaybackButtonControls& controls = buttons_[i];
    if (b >= kPlaybackButtons) continue;
    const ButtonFunction& button = store.Button_Functions[b];
    Caption c = caption(button.Function, button.Value, button.Name, button.Colour);
    controls.caption = std::move(c.text);
    controls.caption_colour = c.colour;
    controls.function_caption = function_short_name(button.Function);
    controls.lamp = store.Playback_Button_State[b] ? kRed : kLampOff;
  }
  for (int i = 0; i < kFadersPerPlaybackPage; ++i) {
    const int f = fader_number(i);
    PlaybackFaderControls& controls = faders_[i];
    if (f >= kPlaybackFaders) continue;
    const FaderFunction& fader = store.Fader_Functions[f];
    const int function = fader.Function == kFunctionCue ? static_cast<int>(kFunctionOff) : fader.Function;
    Caption c = caption(function, fader.Value, fader.Name, fader.Colour);
    controls.fader = 255 - store.Playback_Fader_Level[f];
    controls.function_caption = function_short_name(function);
    controls.step_time_note = function == kFunctionSequence && fader.Data1 != 0 ? c.text + kStepTiming : std::string();
    controls.caption = std::move(c.text);
    controls.caption_colour = c.colour;
  }
}

void PlaybackPanel::reset_surface() {
  if (!surface_in_playback()) return;
  for (int i = 0; i < kSurfaceElements; ++i) {
    context_.surface().BCF_Fader_Update(PlaybackElement(i), 0);
    context_.surface().BCF_Button_Update(PlaybackElement(i), false);
  }
}

void PlaybackPanel::Clear_All() {
  Store& store = context_.store();
  store.Playback_Fader_Level.fill(0);
  store.Playback_Button_State.fill(false);
  chases_.Stop_All();
  chases_.clear_levels();
  store.Playback_Seq_Out.fill(0);
  std::fill(store.Desk_Level.begin(), store.Desk_Level.begin() + kDeskChannels, 0);
  if (desk_.refresh_main_desk) desk_.refresh_main_desk();
  Refresh_Playback_Panel();
  Compute_Live_Output();
  context_.status().show_playback(kDeskCleared);
  reset_surface();
}

void PlaybackPanel::Submix_Clear() {
  Store& store = context_.store();
  store.Playback_Fader_Level.fill(0);
  for (const FaderFunction& fader : store.Fader_Functions) {
    if (fader.Function == kFunctionSequence) chases_.Stop_Sequence(fader.Value);
  }
  Refresh_Playback_Panel();
  Compute_Live_Output();
  context_.status().show_playback(kSubmixesCleared);
  reset_surface();
}

}  // namespace lumaris
