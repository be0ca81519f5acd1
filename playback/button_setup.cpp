#include "playback/button_setup.h"

#include "core/desk_context.h"

namespace lumaris {

ButtonSetup::ButtonSetup(DeskContext& context, std::function<void()> stored)
    : FunctionSetup(context, "Button Setup", kLastButton, kFunctionCue + 1, std::move(stored)) {}

ButtonFunction& ButtonSetup::record(int element) { return context_.store().Button_Functions[element]; }

void ButtonSetup::load_extra(const ButtonFunction& r) {
  latch_ = r.Latch;
  preset_col_ = r.Preset;
}

void ButtonSetup::store_extra(ButtonFunction& r) {
  if (r.Function == kFunctionColour) {
    r.Preset = preset_col_;
    if (preset_col_) {
      r.Data1 = static_cast<std::int16_t>(Component(0));
      r.Data2 = static_cast<std::int16_t>(Component(1));
      r.Data3 = static_cast<std::int16_t>(Component(2));
    }
  }
  r.Latch = latch_;
}

}  // namespace lumaris
