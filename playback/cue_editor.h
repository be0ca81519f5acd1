#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/colour.h"
#include "core/window.h"

namespace lumaris {

class DeskContext;
class ScreenTable;

// The cue editor ("Edit Cues"): the list of screens, the selected
// screen's name, fade time, next screen, delay, flags and colour, and the list
// of what it holds, whose channel and fader levels the level fader edits in place.
class CueEditor : public Window {
 public:
  static constexpr int kDelayMax = 600;

  // One line of the content list and what it stands for.
  struct Item {
    enum Kind { Channel, Button, Fader } kind;
    int index;  // desk channel index, button or fader number
  };

  // `changed` runs after every edit of the table (the playback desk's screen panel re-reads).
  CueEditor(DeskContext& context, ScreenTable& table, std::function<void()> changed);

  // Shows the window; with a screen number it preselects that screen.
  void Open(int screen = 0);

  void screen_list_clicked(int index);
  void content_list_clicked(int index);
  void level_fader_changed(int value);
  void name_box_changed(const std::string& text) { name_box_ = text; }
  void fade_time_box_changed(const std::string& text) { fade_time_box_ = text; }
  void Next_Scn_Click(int index) { next_index_ = index; }
  void Screen_Delay_Change(int value);
  void instant_box_clicked(bool checked);
  void auto_box_clicked(bool checked);
  void colour_box_clicked();
  void update_clicked();
  void copy_clicked();
  void paste_clicked();
  void insert_clicked();
  void delete_clicked();
  void save_and_exit_clicked() { Hide(); }

  int selected_screen() const { return selected_; }
  const std::vector<std::string>& screen_list() const { return screen_list_; }
  int screen_list_index() const { return selected_ - 1; }
  const std::vector<std::string>& Next_Scn() const { return screen_list_; }
  int Next_Scn_index() const { return next_index_; }
  const std::string& name_box() const { return name_box_; }
  const std::string& fade_time_box() const { return fade_time_box_; }
  int Screen_Delay() const { return delay_; }
  bool instant_box() const { return instant_box_; }
  bool auto_box() const { return auto_box_; }
  Paint colour_box() const { return colour_box_; }
  const std::vector<std::string>& content_list() const { return content_list_; }
  const std::vector<Item>& content_list_items() const { return items_; }
  int content_list_index() const { return item_; }
  const std::string& item_label() const { return item_label_; }
  int level_fader() const { return level_fader_; }
  bool level_fader_enabled() const;
  const std::string& level_box() const { return level_box_; }

 private:
  void refresh_lists();
  void select(int screen);
  void fill_contents();
  std::string item_line(const Item& item) const;
  void show_item();
  void table_changed();
  bool has_selection() const;

  DeskContext& context_;
  ScreenTable& table_;
  std::function<void()> changed_;
  int selected_ = 0;
  std::vector<std::string> screen_list_;
  int next_index_ = -1;
  std::string name_box_;
  std::string fade_time_box_;
  int delay_ = 0;
  bool instant_box_ = false;
  bool auto_box_ = false;
  Paint colour_box_;
  std::vector<std::string> content_list_;
  std::vector<Item> items_;
  int item_ = -1;
  std::string item_label_;
  int level_fader_ = 255;
  std::string level_box_;
};

}  // namespace lumaris
