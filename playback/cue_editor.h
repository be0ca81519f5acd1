#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/colour.h"
#include "core/window.h"

namespace lumaris {

class DeskContext;
class ScreenTable;

// The cue editor `namedit` ("Edit Cues"): the list of screens, the selected
// screen's name, fade time, next screen, delay, flags and colour, and the list
// of what it holds, whose channel and fader levels Slider1 edits in place.
class CueEditor : public Window {
 public:
  static constexpr int kDelayMax = 600;

  // One line of List2 and what it stands for.
  struct Item {
    enum Kind { Channel, Button, Fader } kind;
    int index;  // desk channel index, button or fader number
  };

  // `changed` runs after every edit of the table (the playback desk's screen panel re-reads).
  CueEditor(DeskContext& context, ScreenTable& table, std::function<void()> changed);

  // Shows the window; with a screen number it preselects that screen.
  void Open(int screen = 0);

  void List1_Click(int index);
  void List2_Click(int index);
  void Slider1_Change(int value);
  void Text1_Change(const std::string& text) { text1_ = text; }
  void Text2_Change(const std::string& text) { text2_ = text; }
  void Next_Scn_Click(int index) { next_index_ = index; }
  void Screen_Delay_Change(int value);
  void Check1_Click(bool checked);  // Instant
  void Check2_Click(bool checked);  // Auto
  void Picture1_Click();
  void Command3_Click();  // Update
  void Command2_Click();  // copy
  void Command4_Click();  // paste
  void Command5_Click();  // insert
  void Command6_Click();  // delete
  void Command1_Click() { Hide(); }  // Save and Exit

  int selected_screen() const { return selected_; }
  const std::vector<std::string>& List1() const { return list1_; }
  int List1_index() const { return selected_ - 1; }
  const std::vector<std::string>& Next_Scn() const { return list1_; }
  int Next_Scn_index() const { return next_index_; }
  const std::string& Text1() const { return text1_; }
  const std::string& Text2() const { return text2_; }
  int Screen_Delay() const { return delay_; }
  bool Check1() const { return check1_; }
  bool Check2() const { return check2_; }
  Paint Picture1() const { return picture1_; }
  const std::vector<std::string>& List2() const { return list2_; }
  const std::vector<Item>& List2_items() const { return items_; }
  int List2_index() const { return item_; }
  const std::string& Text3() const { return text3_; }
  int Slider1() const { return slider1_; }
  bool Slider1_enabled() const;
  const std::string& Text5() const { return text5_; }

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
  std::vector<std::string> list1_;
  int next_index_ = -1;
  std::string text1_;
  std::string text2_;
  int delay_ = 0;
  bool check1_ = false;
  bool check2_ = false;
  Paint picture1_;
  std::vector<std::string> list2_;
  std::vector<Item> items_;
  int item_ = -1;
  std::string text3_;
  int slider1_ = 255;
  std::string text5_;
};

}  // namespace lumaris
