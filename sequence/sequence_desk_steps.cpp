// The sequence desk's step times, loop settings, step clipboard, menus and the
// controls that hand over to the chase runtime.
#include <algorithm>

#include "core/desk_context.h"
#include "core/main_desk.h"
#include "core/show_files.h"
#include "sequence/chase_runtime.h"
#include "sequence/sequence_desk.h"
#include "sequence/moving_panel.h"

namespace lumaris {

void SequenceDesk::Set_Speed(double seconds) {
  ChaseRec& c = chase();
  c.Speed[cur_step_] = seconds;
  speed_text_ = significant_text(seconds, LogSlider::kLabelDigits);
  if (global_speed_) {
    for (int s = 0; s <= chase_steps(c); ++s) {
      c.Speed[s] = seconds;
      if (speed_fade_lock_) c.Time[s] = seconds;
    }
  }
  if (speed_fade_lock_) {
    c.Time[cur_step_] = seconds;
    show_fade(seconds);
  }
}

void SequenceDesk::Set_Fade(double seconds) {
  ChaseRec& c = chase();
  c.Time[cur_step_] = seconds;
  fade_text_ = significant_text(seconds, LogSlider::kLabelDigits);
  // A running chase checks and disables the box so that the slider acts on every
  // step: disabled by the run is not disabled by the lock.
  if (global_fade_ && (global_fade_enabled_ || running())) {
    for (int s = 0; s <= chase_steps(c); ++s) c.Time[s] = seconds;
  }
}

void SequenceDesk::Speed_Fade_Lock_Click(bool checked) {
  speed_fade_lock_ = checked;
  if (checked) {
    global_fade_enabled_ = false;
    // The fade slider shows the step duration, and so does the step's fade time.
    show_fade(speed_slider_.Value());
    Set_Fade(speed_slider_.Value());
  } else {
    global_fade_enabled_ = true;
  }
}

void SequenceDesk::Loop_Box_Click(bool checked) {
  loop_box_ = checked;
  if (checked) {
    chase().Loop = 0;
  } else if (chase().Loop == 0) {
    Loop_Times_Change(kLoopTimesMin);
  }
}

void SequenceDesk::Loop_Times_Change(int value) {
  loop_times_ = std::clamp(value, kLoopTimesMin, kLoopTimesMax);
  loop_times_txt_ = std::to_string(loop_times_);
  chase().Loop = static_cast<std::int16_t>(loop_times_);
}

void SequenceDesk::Command_Copy_Click() {
  if (!running()) copy_step(chase(), cur_step_, clipboard_);
}

void SequenceDesk::Command_Paste_Click() {
  if (running()) return;
  paste_step(chase(), cur_step_, clipboard_);
  Show_Step();
}

void SequenceDesk::Insert_Click() {
  if (running() || !insert_step(chase(), cur_step_)) return;
  store().Project_Changed = true;
}

void SequenceDesk::Remove_Step_Click() {
  if (running() || !remove_step(chase(), cur_step_)) return;
  store().Project_Changed = true;
  cur_step_ = std::min(cur_step_, chase_steps(chase()));
  Show_Step();
}

void SequenceDesk::Shift_Pos_Click() {
  if (running()) return;
  shift_up(chase(), cur_step_);
  store().Project_Changed = true;
  Show_Step();
}

void SequenceDesk::Shift_Neg_Click() {
  if (running()) return;
  shift_down(chase(), cur_step_);
  store().Project_Changed = true;
  Show_Step();
}

std::vector<MenuEntry> SequenceDesk::menu_entries() const {
  const bool show_file = context_.show_files().available();
  std::vector<MenuEntry> entries{
      {"&File", "load-sequence", "&Load Sequence", show_file},
      {"&File", "save-sequence", "Save Sequence", show_file},
      {"&Edit", "copy-step", "Copy Step", true},
      {"&Edit", "paste-step", "Paste Step", true},
      {"&Edit", "insert-step", "Insert Step", true},
      {"&Edit", "remove-step", "Remove Step", true},
      {"&Edit", "clear-step", "Clear Step", true},
      {"&Moving", "show-moving-desk", "Show Moving", moving_ != nullptr},
  };
  if (moving_ != nullptr) {
    for (MenuEntry& entry : moving_->menu_entries()) entries.push_back(std::move(entry));
  }
  return entries;
}

void SequenceDesk::Menu_Click(const std::string& name) {
  for (const MenuEntry& entry : menu_entries()) {
    if (entry.name == name && !entry.enabled) return;
  }
  if (name == "load-sequence") {
    context_.show_files().Load();
    main_desk_.Refresh_Desk_Panel();
    Refresh_Desk();
  } else if (name == "save-sequence") {
    context_.show_files().Save_Sequence();
  } else if (name == "copy-step") {
    Command_Copy_Click();
  } else if (name == "paste-step") {
    Command_Paste_Click();
  } else if (name == "insert-step") {
    Insert_Click();
  } else if (name == "remove-step") {
    Remove_Step_Click();
  } else if (name == "clear-step") {
    clear_faders_clicked();
  } else if (name == "show-moving-desk") {
    Show_Moving_Click();
  } else if (moving_ != nullptr) {
    moving_->Menu_Click(name);
  }
}

void SequenceDesk::Chase_Go_Button_Click() { runtime_->Go_Stop(); }
void SequenceDesk::master_fader_changed(int value) { runtime_->set_master_fader(std::clamp(value, 0, 255)); }
void SequenceDesk::Live_Mode_Sel_Click(bool checked) { runtime_->Set_Live_Mode(checked); }

}  // namespace lumaris
