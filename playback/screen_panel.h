#pragma once

#include <functional>
#include <string>

#include "base/colour.h"
#include "controls/log_slider.h"
#include "playback/screen_table.h"

namespace lumaris {

class DeskContext;
class PlaybackChases;

// The screen panel of the playback desk: the selector, number, name, fade time,
// Auto next, Instant and colour of the current screen, and Record and Recall.
class ScreenPanel {
 public:
  // What a recall needs of the rest of the desk.
  struct Desk {
    std::function<void()> refresh_main_desk;  // the main desk redraws its faders
    std::function<void()> refresh_playback;   // the panel redraws and the live output is recomputed
    std::function<int()> preset_value;        // the Preset master's slider (0 at the top)
    std::function<void(int)> set_preset_value;
  };

  ScreenPanel(DeskContext& context, ScreenTable& table, PlaybackChases& chases, Desk desk);

  void Form_Load();

  void Screen_Prog_Click();  // Record
  void Screen_Recall_Click() { Recall_Screen(current_); }
  void Recall_Screen(int n);
  // A Cue button outside run mode: the screen becomes the current one and is recalled.
  void Cue_Recall(int n);
  void Show_Screen();
  void Screen_Num_sel_Change(int value);

  // Direct edits of the current screen.
  void screen_txt_Change(const std::string& text);
  void Screen_Fade_Time_Change(double seconds);
  // Typed seconds in the Fade In Time box; a screen keeps whole seconds, and the
  // slider then shows what was kept. Not a number: nothing changes.
  void Screen_intxt_Change(const std::string& text);
  void Auto_next_Click(bool checked);
  void Screen_instant_box_Click(bool checked);
  void Cue_Colour_Click();

  // Run mode disables recording, recall and the selector.
  void set_run_mode(bool run_mode) { run_mode_ = run_mode; }
  // Run mode moves the selector to a screen without recalling it.
  void follow_screen(int n) {
    if (!ScreenTable::valid(n)) return;
    current_ = n;
    Show_Screen();
  }

  int Current_Screen() const { return current_; }
  int Screen_Num_sel() const { return current_; }
  std::string Screen_num() const { return std::to_string(current_); }
  const std::string& screen_txt() const { return screen_txt_; }
  LogSlider& Screen_Fade_Time() { return fade_time_; }
  const LogSlider& Screen_Fade_Time() const { return fade_time_; }
  const std::string& screen_intxt() const { return screen_intxt_; }
  bool Auto_next() const { return auto_next_; }
  bool Screen_instant_box() const { return instant_; }
  Paint Cue_Colour() const { return cue_colour_; }
  bool Screen_Prog_enabled() const { return !run_mode_; }
  bool Screen_Recall_enabled() const { return !run_mode_; }
  bool Screen_Num_sel_enabled() const { return !run_mode_; }

 private:
  Screen& screen();
  void changed();
  void show_fade_time(int seconds);

  DeskContext& context_;
  ScreenTable& table_;
  PlaybackChases& chases_;
  Desk desk_;
  int current_ = 1;
  std::string screen_txt_;
  LogSlider fade_time_;
  std::string screen_intxt_;
  bool auto_next_ = false;
  bool instant_ = false;
  Paint cue_colour_;
  bool run_mode_ = false;
};

}  // namespace lumaris
