#pragma once

#include <string>
#include <vector>

#include "playback/function_setup.h"

namespace lumaris {

// "Fader Setup": a programmable fader's function. A Sequence fader controls its
// chase's level ("Level") or its step speed ("Step Time"), kept in Data1; a
// Colour fader always mixes the three components it is given here.
class FaderSetup final : public FunctionSetup<FaderFunction> {
 public:
  static constexpr int kLastFader = kPlaybackPages * kFadersPerPlaybackPage - 1;  // 59

  FaderSetup(DeskContext& context, std::function<void()> stored);

  void Sequence_Fun_Click(int index) { sequence_fun_ = index == 0 ? 0 : 1; }
  int Sequence_Fun() const { return sequence_fun_; }
  static std::vector<std::string> Sequence_Fun_entries() { return {"Level", "Step Time"}; }

 private:
  FaderFunction& record(int element) override;
  void load_extra(const FaderFunction& r) override;
  void store_extra(FaderFunction& r) override;

  int sequence_fun_ = 0;
};

}  // namespace lumaris
