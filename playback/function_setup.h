#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "base/colour.h"
#include "core/store.h"
#include "core/window.h"

namespace lumaris {

class DeskContext;

// What "Button Setup" and "Fader Setup" share: the element shown, its function
// list, the value with Plus and Minus, three channel boxes, the level slider and
// the colour controls. The window edits a copy; OK (or moving to the previous or
// next element) stores it into the function table.
//
// Submix and chase numbers are shown counted from 1 like everywhere on the desk
// ("Submix 3" is Value 2); a Cue's screen number is shown as it is.
template <typename Record>
class FunctionSetup : public Window {
 public:
  static constexpr int kChannelMax = 64;

  // Which controls the chosen function shows.
  struct Layout {
    bool value = false;     // Number, Plus, Minus
    bool level = false;     // the level fader
    bool channels = false;  // Channel(0..2)
    bool colour = false;    // the colour channels, components and swatch
  };

  void Open(int element);
  void Fun_set_Click(int function);
  void F_Name_Change(const std::string& text) { name_ = text; }
  void Plus_Click();
  void Minus_Click();
  void Channel_Change(int k, const std::string& text);
  void Colour_Channel_Change(int k, const std::string& text);  // Red_, Green_, Blue_Channel
  void Component_Change(int k, int value);                      // Red_, Green_, Blue_Box
  void level_fader_changed(int value) { level_fader_ = std::clamp(value, 0, 255); }
  void Colour_box_Click();
  void previous_clicked();
  void next_clicked();
  void OK_Click();
  void Cancel_Click() { Hide(); }

  int element() const { return element_; }
  // The element as the desk's own texts count it: the first button is 1.
  std::string Fader_Num() const { return std::to_string(element_ + 1); }
  // The level the Level fader stands at, as the main desk's level boxes show one.
  std::string level_readout() const { return std::to_string(255 - level_fader_); }
  const std::string& F_Name() const { return name_; }
  int Fun_set() const { return function_; }
  std::vector<std::string> Fun_set_entries() const;
  std::string Number() const;
  const std::string& Channel(int k) const { return channels_[k]; }
  const std::string& Colour_Channel(int k) const { return colour_channels_[k]; }
  int Component(int k) const { return components_[k]; }
  std::string Component_Label(int k) const { return std::to_string(components_[k]); }  // R_, G_, B_Label
  int level_fader() const { return level_fader_; }
  Paint Colour_box() const { return colour_box_; }
  Layout layout() const;
  bool previous_enabled() const { return element_ > 0; }
  bool next_enabled() const { return element_ < last_element_; }

 protected:
  FunctionSetup(DeskContext& context, std::string caption, int last_element, int functions,
                std::function<void()> stored);
  virtual Record& record(int element) = 0;
  virtual void load_extra(const Record&) {}
  virtual void store_extra(Record&) {}
  void store();

  DeskContext& context_;

 private:
  void load();
  bool channel_ok(const std::string& text);

  int last_element_;
  int functions_;
  std::function<void()> stored_;
  int element_ = 0;
  std::string name_;
  int function_ = kFunctionOff;
  int value_ = 0;
  std::array<std::string, 3> channels_{};
  std::array<std::string, 3> colour_channels_{};
  std::array<int, 3> components_{};
  int level_fader_ = 255;
  Paint colour_box_;
};

extern template class FunctionSetup<ButtonFunction>;
extern template class FunctionSetup<FaderFunction>;

}  // namespace lumaris
