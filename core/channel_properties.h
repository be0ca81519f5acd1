#pragma once

#include <array>
#include <string>

#include "base/colour.h"
#include "core/window.h"

namespace lumaris {

class DeskContext;
class MainDesk;

// Channel properties: description, short name, colour and follow flags of
// Edit_Channel, the DMX slots it feeds, and a fader for its level.
class ChannelProperties : public Window {
 public:
  static constexpr int kShownSlots = 6;
  static constexpr std::size_t kNameChars = 4;

  ChannelProperties(DeskContext& context, MainDesk& main_desk);
  bool available() const { return true; }

  // Redraws every control for Edit_Channel (on opening and after paging).
  void Refresh();

  void previous_channel_clicked();
  void next_channel_clicked();
  void Show_Name_Change(const std::string& text);
  void Channel_Description_Change(const std::string& text);
  void Channel_Description_Validate();  // the operator leaves the box
  void Colour_button_Click();
  void colour_box_clicked() { Colour_button_Click(); }
  // `checked` is the box's state after the click.
  void Main_F_Click(bool checked);
  void Cross_F_Click(bool checked);
  void OK_Click();
  // Slider value, 0 at the top = full.
  void level_fader_changed(int value);

  const std::string& Show_Channel() const { return show_channel_; }
  const std::string& Show_Name() const { return show_name_; }
  const std::string& Channel_Description() const { return description_; }
  bool Main_F() const { return main_f_checked_; }
  bool Cross_F() const { return cross_f_checked_; }
  Paint colour_box() const { return colour_box_; }
  const std::string& Show_DMX(int i) const { return show_dmx_[i]; }
  bool previous_channel_enabled() const { return previous_channel_enabled_; }
  bool next_channel_enabled() const { return next_channel_enabled_; }
  // Follows the channel's level wherever it was set.
  int level_fader() const;

 private:
  void step_channel(int step);

  DeskContext& context_;
  MainDesk& main_desk_;
  std::string show_channel_;
  std::string show_name_;
  std::string description_;
  bool main_f_checked_ = true;
  bool cross_f_checked_ = true;
  Paint colour_box_;
  std::array<std::string, kShownSlots> show_dmx_{};
  bool previous_channel_enabled_ = false;
  bool next_channel_enabled_ = true;
};

// The first `count` characters of UTF-8 text, and the number of characters in it.
std::string first_chars(const std::string& text, std::size_t count);
std::size_t char_count(const std::string& text);

}  // namespace lumaris
