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

  void Pannel_Dec_Click();
  void Pannel_Inc_Click();
  void Show_Name_Change(const std::string& text);
  void Channel_Description_Change(const std::string& text);
  void Channel_Description_Validate();  // the operator leaves the box
  void Colour_button_Click();
  void colour_bx_Click() { Colour_button_Click(); }
  // `checked` is the box's state after the click.
  void Main_F_Click(bool checked);
  void Cross_F_Click(bool checked);
  void OK_Click();
  // Slider value, 0 at the top = full.
  void Slider1_Change(int value);

  const std::string& Show_Channel() const { return show_channel_; }
  const std::string& Show_Name() const { return show_name_; }
  const std::string& Channel_Description() const { return description_; }
  bool Main_F() const { return main_f_checked_; }
  bool Cross_F() const { return cross_f_checked_; }
  Paint colour_bx() const { return colour_bx_; }
  const std::string& Show_DMX(int i) const { return show_dmx_[i]; }
  bool Pannel_Dec_enabled() const { return pannel_dec_enabled_; }
  bool Pannel_Inc_enabled() const { return pannel_inc_enabled_; }
  // Follows the channel's level wherever it was set.
  int Slider1() const;

 private:
  void step_channel(int step);

  DeskContext& context_;
  MainDesk& main_desk_;
  std::string show_channel_;
  std::string show_name_;
  std::string description_;
  bool main_f_checked_ = true;
  bool cross_f_checked_ = true;
  Paint colour_bx_;
  std::array<std::string, kShownSlots> show_dmx_{};
  bool pannel_dec_enabled_ = false;
  bool pannel_inc_enabled_ = true;
};

// The first `count` characters of UTF-8 text, and the number of characters in it.
std::string first_chars(const std::string& text, std::size_t count);
std::size_t char_count(const std::string& text);

}  // namespace lumaris
