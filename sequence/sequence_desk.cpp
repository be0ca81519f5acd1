#include "sequence/sequence_desk.h"

#include <algorithm>
#include <cmath>

#include "core/desk_context.h"
#include "base/number_text.h"
#include "base/rounding.h"
#include "platform/dialogs.h"
#include "sequence/chase_runtime.h"
#include "sequence/moving_panel.h"

namespace lumaris {

namespace {

constexpr const char* kCaption = "Sequence Desk";
constexpr const char* kRenamedCaption = "Sequence Desk ";
constexpr const char* kUnnamed = " -None- ";
constexpr const char* kColourTitle = " Choose a Colour";
constexpr const char* kChannelErrorTitle = " Channel Error";
constexpr const char* kChannelErrorText = " Channel Values must be between 1 - 63";
constexpr const char* kChannelReset = "63";
constexpr const char* kIndicatorTooltip = " Indicator";
constexpr int kHighestDeskChannel = 63;

Rgb level_colour(int level) {
  const auto fade = static_cast<std::uint8_t>(255 - std::clamp(level, 0, 255));
  return Rgb{255, fade, fade};
}

std::string number_text(double value) {
  if (value == std::floor(value) && std::fabs(value) < 1e9) {
    return std::to_string(static_cast<long>(value));
  }
  return significant_text(value, 6);
}

}  // namespace

SequenceDesk::SequenceDesk(DeskContext& context, MainDesk& main_desk)
    : Window(kCaption),
      context_(context),
      main_desk_(main_desk),
      runtime_(std::make_unique<ChaseRuntime>(context, *this)) {
  // Times come from the operator's hand on the sliders; the program placing a
  // thumb (step display, resize) never writes a time.
  log_slider3_.on_UserCursorMove([this](double v) { Set_Speed(v); });
  log_slider4_.on_UserCursorMove([this](double v) { Set_Fade(v); });
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

// The desk channel's description, its number and a blank.
std::string SequenceDesk::channel_tooltip(int i) {
  const int desk_channel = chase().Channels[i];
  const std::string desc =
      desk_channel >= 0 && desk_channel < kDeskChannels ? store().Fader_Names[desk_channel].Desc : "";
  return desc + str_number(desk_channel + 1) + " ";
}

void SequenceDesk::show_channel_box(int i) {
  channels_[i].Text1 = std::to_string(chase().Channels[i] + 1);
  channels_[i].Text1_tooltip = channel_tooltip(i);
}

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
    channels_[i].Picture1_tooltip = kIndicatorTooltip + str_number(i + 1);
  }
  if (moving_ != nullptr) moving_->chase_selected();
  Show_Step();
}

void SequenceDesk::show_function(int i) {
  ChaseChannelControls& ch = channels_[i];
  switch (chase().Fade[cur_step_][i]) {
    case kChaseOff:
      ch.Ch_Function = "off";
      ch.Ch_Function_colour.reset();
      break;
    case kChaseFade:
      ch.Ch_Function = "F";
      ch.Ch_Function_colour = kGreen;
      break;
    default:
      ch.Ch_Function = "S";
      ch.Ch_Function_colour = kYellow;
      break;
  }
}

void SequenceDesk::show_speed(double seconds) {
  log_slider3_.set_Value(seconds);
  speed_text_ = significant_text(seconds, LogSlider::kLabelDigits);
}

void SequenceDesk::show_fade(double seconds) {
  log_slider4_.set_Value(seconds);
  fade_text_ = significant_text(seconds, LogSlider::kLabelDigits);
}

void SequenceDesk::Show_Step() {
  const ChaseRec& c = chase();
  for (int i = 0; i < kChaseChannels; ++i) {
    ChaseChannelControls& ch = channels_[i];
    const int level = c.Data[cur_step_][i];
    const bool on = c.Fade[cur_step_][i] != kChaseOff;
    if (i < kLevelChannels) ch.Slider1 = 255 - level;
    ch.level_enabled = on;
    ch.Text1_enabled = on;
    ch.Picture1 = on ? level_colour(level) : kWhite;
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

void SequenceDesk::write_live(int i) {
  const int d = chase().Channels[i];
  if (!runtime_->Live_Output() || d < 0 || d >= kDeskChannels) return;
  store().Chase_Out[d] = round_half_even(runtime_->scaled(chase().Data[cur_step_][i]));
}

void SequenceDesk::Show_Indicator(int i) {
  if (i < 0 || i >= kChaseChannels) return;
  const bool on = chase().Fade[cur_step_][i] != kChaseOff;
  channels_[i].Picture1 = on ? level_colour(chase().Data[cur_step_][i]) : kWhite;
}

void SequenceDesk::set_level(int i, int slider_value) {
  if (running()) return;  // the faders do not edit a running chase
  const int level = 255 - std::clamp(slider_value, 0, 255);
  channels_[i].Slider1 = 255 - level;
  channels_[i].Picture1 = level_colour(level);
  chase().Data[cur_step_][i] = static_cast<std::int16_t>(level);
  write_live(i);
}

void SequenceDesk::Slider1_Change(int i, int value) {
  if (i >= 0 && i < kLevelChannels) set_level(i, value);
}

void SequenceDesk::Command1_Click(int i) { Slider1_Change(i, 0); }
void SequenceDesk::Command2_Click(int i) { Slider1_Change(i, 255); }

void SequenceDesk::Command3_Click() {
  for (int i = 0; i < kLevelChannels; ++i) {
    set_level(i, 255);
    channels_[i].Slider1 = 255;
    channels_[i].Picture1 = kWhite;
  }
  if (Moving_Shown() && !running()) {
    for (int i = kLevelChannels; i < kChaseChannels; ++i) {
      chase().Data[cur_step_][i] = 0;
      Show_Indicator(i);
      write_live(i);
    }
    redraw_moving();
  }
}

void SequenceDesk::Text1_Change(int i, const std::string& text) {
  if (i < 0 || i >= kChaseChannels) return;
  channels_[i].Text1 = text;
  const std::optional<double> v = parse_number(text);
  if (!v) {
    if (!text.empty()) {
      context_.dialogs().message({kChannelErrorTitle, kChannelErrorText, MessageIcon::Exclamation});
    }
    return;
  }
  if (*v < 1 || *v > kHighestDeskChannel) {
    context_.dialogs().message({kChannelErrorTitle, kChannelErrorText, MessageIcon::Exclamation});
    Text1_Change(i, kChannelReset);
    return;
  }
  if (runtime_->Live_Output()) {
    const int old = chase().Channels[i];
    if (old >= 0 && old < kDeskChannels) store().Chase_Out[old] = 0;
  }
  chase().Channels[i] = static_cast<std::int16_t>(round_half_even(*v - 1));
  if (check1_ && i < kChaseChannels - 1 && *v + 1 <= kHighestDeskChannel) {
    Text1_Change(i + 1, number_text(*v + 1));
  }
  channels_[i].Text1_tooltip = channel_tooltip(i);
  store().Project_Changed = true;
}

void SequenceDesk::Ch_Function_Click(int i) {
  if (i < 0 || i >= kChaseChannels) return;
  const std::int16_t f = next_function(chase().Fade[cur_step_][i]);
  set_function(chase(), cur_step_, i, f, global_fade_sw_);
  show_function(i);
  const bool on = f != kChaseOff;
  channels_[i].Text1_enabled = on;
  if (i < kLevelChannels) channels_[i].level_enabled = on;
  if (i >= kLevelChannels) {
    Show_Indicator(i);
    redraw_moving();
  }
}

void SequenceDesk::Ch_Function_All_Click() {
  function_all_ = (function_all_ + 1) % 3;
  const auto f = static_cast<std::int16_t>(function_all_);
  // The moving desk's channels 18..23 follow only while that panel is shown.
  const int last = Moving_Shown() ? kChaseChannels : kLevelChannels;
  for (int i = 0; i < last; ++i) {
    set_function(chase(), cur_step_, i, f, global_fade_sw_);
    show_function(i);
    channels_[i].Text1_enabled = channels_[i].level_enabled = f != kChaseOff;
    if (i >= kLevelChannels) Show_Indicator(i);
  }
  if (Moving_Shown()) redraw_moving();
  static constexpr const char* kCaptions[] = {"off", "F", "S"};
  ch_function_all_ = kCaptions[function_all_];
}

}  // namespace lumaris
