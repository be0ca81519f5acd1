#include "sequence/sequence_desk.h"

#include <algorithm>

#include "core/colour_dialog.h"
#include "core/desk_context.h"
#include "base/number_text.h"
#include "platform/dialogs.h"
#include "sequence/chase_runtime.h"
#include "sequence/moving_panel.h"

namespace lumaris {

namespace {

constexpr const char* kCaption = "Sequence Desk";
constexpr const char* kRenamedCaption = "Sequence Desk ";
constexpr const char* kUnnamed = " -None- ";
constexpr const char* kIndicatorTooltip = " Indicator";

}  // namespace

SequenceDesk::SequenceDesk(DeskContext& context, MainDesk& main_desk)
    : Window(kCaption),
      context_(context),
      main_desk_(main_desk),
      runtime_(std::make_unique<ChaseRuntime>(context, *this)) {
  // Times come from the operator's hand on the sliders; the program placing a
  // thumb (step display, resize) never writes a time.
  speed_slider_.on_UserCursorMove([this](double v) { Set_Speed(v); });
  fade_slider_.on_UserCursorMove([this](double v) { Set_Fade(v); });
}

SequenceDesk::~SequenceDesk() = default;

Store& SequenceDesk::store() { return context_.store(); }
ChaseRec& SequenceDesk::chase() { return context_.store().Chase_Table[cur_chase_]; }
const ChaseRec& SequenceDesk::chase() const { return context_.store().Chase_Table[cur_chase_]; }
bool SequenceDesk::running() const { return runtime_->Chase_Running(); }

bool SequenceDesk::Moving_Shown() const { return moving_ != nullptr && moving_->Moving_Shown(); }
void SequenceDesk::Show_Moving_Click() {
  if (moving_ != nullptr) moving_->Show_Moving_Click();
}
std::string SequenceDesk::Show_Moving() const { return Moving_Shown() ? "Hide Moving" : "Show Moving"; }
void SequenceDesk::redraw_moving() {
  if (moving_ != nullptr) moving_->step_shown();
}

void SequenceDesk::Show() {
  if (!loaded_) Form_Load();
  Window::Show();
}

void SequenceDesk::Form_Load() {
  loaded_ = true;
  Refresh_Desk();
}

std::vector<std::string> SequenceDesk::Chase_Sel_entries() const {
  std::vector<std::string> entries;
  for (const ChaseRec& c : context_.store().Chase_Table) {
    entries.push_back(c.Name.empty() ? kUnnamed : c.Name);
  }
  return entries;
}

const std::string& SequenceDesk::Chase_Name() const { return chase().Name; }
Paint SequenceDesk::Chase_Colour_Sel() const { return colour_from_text(chase().Colour); }
std::string SequenceDesk::Steps() const { return std::to_string(chase().Steps); }
std::string SequenceDesk::Step_Display() const { return std::to_string(cur_step_); }

void SequenceDesk::show_loop_controls() {
  const int loop = chase().Loop;
  loop_box_ = loop == 0;
  if (loop > 0) loop_times_ = std::clamp(loop, kLoopTimesMin, kLoopTimesMax);
  loop_times_txt_ = std::to_string(loop_times_);
}

void SequenceDesk::Refresh_Desk() {
  cur_chase_ = std::clamp(cur_chase_, 0, kChases - 1);
  cur_step_ = std::clamp(cur_step_, 1, chase_steps(chase()));
  prev_step_ = std::clamp(prev_step_, 0, kChaseSteps);
  set_caption(kCaption + chase().Name);
  show_loop_controls();
  for (int i = 0; i < kChaseChannels; ++i) {
    show_channel_box(i);
    channels_[i].indicator_tooltip = kIndicatorTooltip + str_number(i + 1);
  }
  if (moving_ != nullptr) moving_->chase_selected();
  Show_Step();
}

void SequenceDesk::show_speed(double seconds) {
  speed_slider_.set_Value(seconds);
  speed_text_ = significant_text(seconds, LogSlider::kLabelDigits);
}

void SequenceDesk::show_fade(double seconds) {
  fade_slider_.set_Value(seconds);
  fade_text_ = significant_text(seconds, LogSlider::kLabelDigits);
}

void SequenceDesk::Show_Step() {
  const ChaseRec& c = chase();
  for (int i = 0; i < kChaseChannels; ++i) {
    ChaseChannelControls& ch = channels_[i];
    const int level = c.Data[cur_step_][i];
    const bool on = c.Fade[cur_step_][i] != kChaseOff;
    if (i < kLevelChannels) ch.fader = 255 - level;
    ch.level_enabled = on;
    ch.channel_box_enabled = on;
    ch.indicator = on ? level_colour(level) : kWhite;
    show_function(i);
  }
  show_speed(c.Speed[cur_step_]);
  show_fade(c.Time[cur_step_]);
  redraw_moving();
}

void SequenceDesk::Chase_Sel_Click(int index) {
  if (index < 0 || index >= kChases) return;
  cur_chase_ = index;
  cur_step_ = 1;
  if (moving_ != nullptr) moving_->chase_selected();
  Show_Step();
  for (int i = 0; i < kChaseChannels; ++i) show_channel_box(i);
  show_loop_controls();
}

void SequenceDesk::Chase_Name_Change(const std::string& text) {
  if (text == chase().Name) return;
  chase().Name = text;
  set_caption(kRenamedCaption + text);
}

void SequenceDesk::Chase_Colour_Sel_Click() {
  const std::optional<Rgb> colour = context_.dialogs().choose_colour(kColourTitle, Chase_Colour_Sel());
  if (colour) chase().Colour = colour_to_text(*colour);
}

void SequenceDesk::Steps_Add_Click() {
  if (!add_step(chase())) return;
  // With the function switch on, the new step takes the function last chosen for all.
  if (global_fade_sw_) {
    for (int i = 0; i < kChaseChannels; ++i) {
      chase().Fade[chase().Steps][i] = static_cast<std::int16_t>(function_all_);
    }
  }
}

void SequenceDesk::Steps_subtract_Click() {
  if (!subtract_step(chase())) return;
  if (cur_step_ > chase().Steps) {
    cur_step_ = chase().Steps;
    if (!running()) Show_Step();
  }
}

void SequenceDesk::change_step(int step) {
  prev_step_ = cur_step_;
  cur_step_ = step;
  runtime_->step_changed();
  if (!running()) Show_Step();
}

void SequenceDesk::Chase_Plus_Click() {
  change_step(cur_step_ >= chase_steps(chase()) ? 1 : cur_step_ + 1);
}

void SequenceDesk::Chase_Minus_Click() {
  change_step(cur_step_ <= 1 ? chase_steps(chase()) : cur_step_ - 1);
}

}  // namespace lumaris
