#pragma once

#include "playback/function_setup.h"

namespace lumaris {

// "Button Setup": a programmable button's function, with Latch and a fixed
// colour for Colour buttons ("Preset Colour ?").
class ButtonSetup final : public FunctionSetup<ButtonFunction> {
 public:
  static constexpr int kLastButton = kPlaybackPages * kButtonsPerPage - 1;  // 79

  ButtonSetup(DeskContext& context, std::function<void()> stored);

  void Latch_Click(bool checked) { latch_ = checked; }
  void Preset_Col_Click(bool checked) { preset_col_ = checked; }
  bool Latch() const { return latch_; }
  bool Preset_Col() const { return preset_col_; }

 private:
  ButtonFunction& record(int element) override;
  void load_extra(const ButtonFunction& r) override;
  void store_extra(ButtonFunction& r) override;

  bool latch_ = false;
  bool preset_col_ = false;
};

}  // namespace lumaris
