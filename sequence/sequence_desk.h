#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "controls/log_slider.h"
#include "base/colour.h"
#include "core/main_desk.h"
#include "core/window.h"
#include "sequence/chase_edit.h"

namespace lumaris {

class DeskContext;
class ChaseRuntime;
class MovingPanel;

// The controls of one chase channel i (0..23) on the sequence desk. Channels
// 0..17 have a fader with full/zero buttons; 18..23 are set by the moving desk.
struct ChaseChannelControls {
  int fader = 255;            // 0 at the top: level = 255 - value
  bool level_enabled = true;  // the fader and its two buttons
  Rgb indicator = kWhite;
  std::string indicator_tooltip;
  std::string channel_box;  // desk channel of the chase channel, as typed
  bool channel_box_enabled = true;
  std::string channel_box_tooltip;
  std::string Ch_Function = "S";
  Paint Ch_Function_colour = kYellow;
};

// The colour of a chase channel's indicator at a level: white at 0, red at full.
Rgb level_colour(int level);

// The sequence desk: programming the 33 chases of Chase_Table (sequence_desk.cpp,
// its chase channels in sequence_desk_channels.cpp, its steps, times and menus in
// sequence_desk_steps.cpp) and running the selected one (ChaseRuntime).
class SequenceDesk : public Window {
 public:
  static constexpr int kLoopTimesMin = 1;
  static constexpr int kLoopTimesMax = 100;

  SequenceDesk(DeskContext& context, MainDesk& main_desk);
  ~SequenceDesk() override;

  bool available() const { return true; }
  // The desk is loaded on first use and kept.
  void Show() override;
  void Form_Load();

  void Refresh_Desk();
  void Show_Step();

  // Chase selection and properties
  void Chase_Sel_Click(int index);
  void Chase_Name_Change(const std::string& text);
  void Chase_Colour_Sel_Click();

  // Steps
  void Steps_Add_Click();
  void Steps_subtract_Click();
  void Chase_Plus_Click();
  void Chase_Minus_Click();

  // Channels
  void fader_changed(int i, int value);
  void full_clicked(int i);
  void zero_clicked(int i);
  void clear_faders_clicked();
  void channel_box_changed(int i, const std::string& text);
  void Ch_Function_Click(int i);
  void Ch_Function_All_Click();
  void Global_fade_sw_Click(bool checked) { global_fade_sw_ = checked; }
  void auto_increment_clicked(bool checked) { auto_increment_ = checked; }

  // Times and loops
  LogSlider& speed_slider() { return speed_slider_; }
  LogSlider& fade_slider() { return fade_slider_; }
  void Set_Speed(double seconds);
  void Set_Fade(double seconds);
  void Global_Speed_Click(bool checked) { global_speed_ = checked; }
  void Global_fade_Click(bool checked) { global_fade_ = checked; }
  void Speed_Fade_Lock_Click(bool checked);
  void Loop_Box_Click(bool checked);
  void Loop_Times_Change(int value);

  // Step clipboard and rearranging; ignored while a chase runs.
  void Command_Copy_Click();
  void Command_Paste_Click();
  void Insert_Click();
  void Remove_Step_Click();
  void Shift_Pos_Click();
  void Shift_Neg_Click();

  // Menus by control name.
  std::vector<MenuEntry> menu_entries() const;
  void Menu_Click(const std::string& name);

  // The moving desk panel, set once by whoever builds it; null: none.
  void set_moving_panel(MovingPanel* panel) { moving_ = panel; }
  MovingPanel* moving_panel() const { return moving_; }
  bool Moving_Shown() const;
  void Show_Moving_Click();
  std::string Show_Moving() const;
  bool Show_Moving_enabled() const { return moving_ != nullptr; }
  // Shows chase channel i's level of the current step in its indicator.
  void Show_Indicator(int i);
  // While Live_Output is on, Chase_Out shows chase channel i of the current step.
  void write_live(int i);
  bool running() const;

  // Running: Go/Stop, the sequence desk's master and live mode.
  void Chase_Go_Button_Click();
  void master_fader_changed(int value);
  void Live_Mode_Sel_Click(bool checked);
  ChaseRuntime& runtime() { return *runtime_; }
  const ChaseRuntime& runtime() const { return *runtime_; }

  // State of the desk.
  int Cur_Chase() const { return cur_chase_; }
  int Cur_Step() const { return cur_step_; }
  int Prev_Step() const { return prev_step_; }
  int Function_All() const { return function_all_; }
  const StepClipboard& clipboard() const { return clipboard_; }
  ChaseRec& chase();
  const ChaseRec& chase() const;

  // State of the controls.
  std::vector<std::string> Chase_Sel_entries() const;
  const std::string& Chase_Name() const;
  Paint Chase_Colour_Sel() const;
  std::string Steps() const;
  std::string Step_Display() const;
  const std::array<ChaseChannelControls, kChaseChannels>& channels() const { return channels_; }
  const std::string& Ch_Function_All() const { return ch_function_all_; }
  bool Global_fade_sw() const { return global_fade_sw_; }
  bool auto_increment() const { return auto_increment_; }
  const std::string& Speed_Text() const { return speed_text_; }
  const std::string& Fade_Text() const { return fade_text_; }
  bool Global_Speed() const { return global_speed_; }
  bool Global_Speed_enabled() const { return global_speed_enabled_; }
  bool Global_fade() const { return global_fade_; }
  bool Global_fade_enabled() const { return global_fade_enabled_; }
  bool Speed_Fade_Lock() const { return speed_fade_lock_; }
  bool Loop_Box() const { return loop_box_; }
  int Loop_Times() const { return loop_times_; }
  bool Loop_Times_enabled() const { return !loop_box_; }
  const std::string& Loop_Times_txt() const { return loop_times_txt_; }

 private:
  friend class ChaseRuntime;

  Store& store();
  void set_level(int i, int slider_value);
  void show_function(int i);
  void show_loop_controls();
  void show_channel_box(int i);
  std::string channel_tooltip(int i);
  void show_speed(double seconds);
  void show_fade(double seconds);
  void change_step(int step);
  void redraw_moving();

  DeskContext& context_;
  MainDesk& main_desk_;
  std::unique_ptr<ChaseRuntime> runtime_;
  MovingPanel* moving_ = nullptr;
  bool loaded_ = false;
  int cur_chase_ = 0;
  int cur_step_ = 1;
  int prev_step_ = 1;
  int function_all_ = 0;
  StepClipboard clipboard_;

  std::array<ChaseChannelControls, kChaseChannels> channels_{};
  std::string ch_function_all_ = "off";
  bool global_fade_sw_ = false;
  bool auto_increment_ = false;
  LogSlider speed_slider_;
  LogSlider fade_slider_;
  std::string speed_text_;
  std::string fade_text_;
  bool global_speed_ = false;
  bool global_speed_enabled_ = true;
  bool global_fade_ = false;
  bool global_fade_enabled_ = true;
  bool speed_fade_lock_ = false;
  bool loop_box_ = true;
  int loop_times_ = kLoopTimesMin;
  std::string loop_times_txt_ = "1";
};

}  // namespace lumaris
