#include "playback/fader_setup.h"

#include "core/desk_context.h"

namespace lumaris {

FaderSetup::FaderSetup(DeskContext& context, std::function<void()> stored)
    : FunctionSetup(context, "Fader Setup", kLastFader, kFunctionOff + 1, std::move(stored)) {}

FaderFunction& FaderSetup::record(int element) { return context_.store().Fader_Functions[element]; }

void FaderSetup::load_extra(const FaderFunction& r) {
  sequence_fun_ = r.Function == kFunctionSequence && r.Data1 != 0 ? 1 : 0;
}

void FaderSetup::store_extra(FaderFunction& r) {
  if (r.Function == kFunctionSequence) r.Data1 = static_cast<std::int16_t>(sequence_fun_);
  if (r.Function == kFunctionColour) {
    r.Data1 = static_cast<std::int16_t>(Component(0));
    r.Data2 = static_cast<std::int16_t>(Component(1));
    r.Data3 = static_cast<std::int16_t>(Component(2));
  }
}

}  // namespace lumaris
