#include "playback/run_mode.h"

#include <algorithm>

#include "core/desk_context.h"
#include "platform/dialogs.h"
#include "playback/playback_chases.h"
#include "playback/playback_output.h"

// Run mode's switch and what the operator sees of it: entering and leaving,
// the choice of the next screen, the A/B sides and the crossfader's position.
// The takes themselves live in run_mode_take.cpp.

namespace lumaris {

namespace {

constexpr const char* kSelected = " Run Mode Selected";
constexpr const char* kStoppedPlayback = " Run Mode Stopped";
constexpr const char* kStoppedMain = " Run Mode Stoped";
constexpr const char* kExitTitle = " Run Mode";
constexpr const char* kExitQuestion = "Do You wish to Exit Run Mode ";
constexpr const char* kRunCaption = "Run";
constexpr const char* kStopCaption = "STOP";
constexpr int kDelayInterval = 1000;

std::string seconds_text(int seconds) { return std::to_string(seconds) + " s"; }

}  // namespace

RunMode::RunMode(DeskContext& context, PlaybackChases& chases, Desk desk)
    : context_(context), chases_(chases), desk_(std::move(desk)) {
  take_timer_ = context.scheduler().create_timer(true);
  take_timer_->set_enabled(false);
  take_timer_->on_tick([this] { take_tick(); });
  delay_timer_ = context.scheduler().create_timer(true);
  delay_timer_->set_enabled(false);
  delay_timer_->set_interval(kDelayInterval);
  delay_timer_->on_tick([this] { Delay_Timer_Tick(); });
}

RunMode::~RunMode() = default;

bool RunMode::take_in_progress() const {
  const Store& store = context_.store();
  return store.Autotake_Running || store.Take_Manual;
}

void RunMode::status(const std::string& text) { context_.status().show_both(text); }

void RunMode::notify() {
  if (changed_) changed_();
}

void RunMode::show_side(Side& side, int screen) {
  side.name = context_.store().Screens[std::clamp(screen, 0, kScreens - 1)].Name;
  side.number = std::to_string(screen);
}

// The outgoing screen on the side the crossfader leaves.
void RunMode::show_sides(int outgoing, int incoming) {
  show_side(next_on_a_ ? side_a_ : side_b_, outgoing);
  show_side(next_on_a_ ? side_b_ : side_a_, incoming);
}

void RunMode::paint_sides(Paint a, Paint b) {
  side_a_.colour = a;
  side_b_.colour = b;
}

void RunMode::show_crossfade() {
  const int x = context_.store().Crossfade_Level;
  crossfader_ = next_on_a_ ? 255 - x : x;
}

void RunMode::Run_Switch_Click() {
  if (context_.store().Run_Mode) {
    leave();
  } else {
    enter();
  }
  notify();
}

void RunMode::enter() {
  Store& store = context_.store();
  store.Run_Screen = 1;
  prev_screen_ = 1;
  chases_.clear_levels();
  crossfader_ = 255;
  last_crossfade_ = 255;
  next_on_a_ = false;
  next_screen_ = 2;
  show_side(side_a_, 1);
  show_side(side_b_, 2);
  fade_time_text_ = seconds_text(store.Screens[1].Time);
  switch_caption_ = kStopCaption;
  switch_colour_ = kRed;
  store.Run_Mode = true;
  if (desk_.run_mode_changed) desk_.run_mode_changed(true);
  // Said before screen 1 is taken: its completion, an Auto screen's delay count
  // or its take follow, in the order they happen.
  status(kSelected);
  // Screen 1's chases come up with it, as the incoming screen's would.
  chases_.Start_Take_Sequences(store.Screens[store.Run_Screen], PlaybackChases::Entry::Take);
  Complete_Take();
  Compute_Run_Output();
}

void RunMode::leave() {
  const MessageBoxSpec ask{kExitTitle, kExitQuestion, MessageIcon::Question, MessageButtons::OkCancel,
                           MessageResult::Cancel};
  if (context_.dialogs().message(ask) == MessageResult::Ok) {
    stop();
  } else {
    Compute_Run_Output();
  }
}

void RunMode::stop() {
  Store& store = context_.store();
  if (!store.Run_Mode) return;
  store.Run_Mode = false;
  store.Autotake_Running = false;
  store.Take_Manual = false;
  take_timer_->set_enabled(false);
  delay_timer_->set_enabled(false);
  // The desk keeps the live look: chases the unfinished take brought in go.
  for (int q = 0; q < kChases; ++q) {
    chases_.set_Seq_Level_In(q, 0);
    if (chases_.Seq_Level(q) < 1) chases_.Stop_Sequence(q);
  }
  side_a_ = Side{};
  side_b_ = Side{};
  switch_caption_ = kRunCaption;
  switch_colour_.reset();
  if (desk_.run_mode_changed) desk_.run_mode_changed(false);
  autotake_caption_ = kAutoTakeCaption;
  autotake_colour_.reset();
  context_.status().show(kStoppedMain, kStoppedPlayback);
  Compute_Run_Output();
}

void RunMode::Run_screen_sel_Change(int value) {
  if (value <= 0 || value >= kLastNext) return;
  const Store& store = context_.store();
  next_screen_ = value;
  if (desk_.show_screen) desk_.show_screen(value);
  fade_time_text_ = seconds_text(store.Screens[value].Time);
  if (!take_in_progress()) show_side(next_on_a_ ? side_a_ : side_b_, value);
  notify();
}

void RunMode::Compute_Run_Output() {
  Store& store = context_.store();
  const Screen& screen = store.Screens[std::clamp<int>(store.Run_Screen, 0, kScreens - 1)];
  compute_playback_output(store, screen.But_Sel, screen.Fad_Sel, store.Playback_Run_Out);
}

}  // namespace lumaris
