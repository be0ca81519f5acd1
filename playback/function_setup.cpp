#include "playback/function_setup.h"

#include <algorithm>

#include "base/number_text.h"
#include "core/colour_dialog.h"
#include "core/desk_context.h"
#include "platform/dialogs.h"
#include "playback/playback_output.h"

namespace lumaris {

namespace {

constexpr const char* kChannelErrorTitle = " Channel Error";
constexpr const char* kChannelRange = " Values must be between 0 and 64";
constexpr int kLastNumbered = 31;  // Submix and Sequence: Value 0..31
constexpr int kLastCue = 198;

bool numbered(int function) { return function == kFunctionSubmix || function == kFunctionSequence; }

}  // namespace

template <typename Record>
FunctionSetup<Record>::FunctionSetup(DeskContext& context, std::string caption, int last_element, int functions,
                                     std::function<void()> stored)
    : Window(std::move(caption)),
      context_(context),
      last_element_(last_element),
      functions_(functions),
      stored_(std::move(stored)) {}

template <typename Record>
std::vector<std::string> FunctionSetup<Record>::Fun_set_entries() const {
  std::vector<std::string> entries;
  for (int f = 0; f < functions_; ++f) entries.push_back(function_name(f));
  return entries;
}

template <typename Record>
void FunctionSetup<Record>::Open(int element) {
  element_ = std::clamp(element, 0, last_element_);
  load();
  Show();
}

template <typename Record>
void FunctionSetup<Record>::load() {
  const Record& r = record(element_);
  name_ = r.Name;
  function_ = r.Function >= 0 && r.Function < functions_ ? r.Function : static_cast<int>(kFunctionOff);
  value_ = r.Value;
  channels_ = {std::to_string(r.Channel1), std::to_string(r.Channel2), std::to_string(r.Channel3)};
  colour_channels_ = channels_;
  components_ = {std::clamp<int>(r.Data1, 0, 255), std::clamp<int>(r.Data2, 0, 255), std::clamp<int>(r.Data3, 0, 255)};
  level_fader_ = 255 - std::clamp<int>(r.Level, 0, 255);
  colour_box_ = function_ == kFunctionColour ? Paint(Rgb{static_cast<std::uint8_t>(components_[0]),
                                                         static_cast<std::uint8_t>(components_[1]),
                                                         static_cast<std::uint8_t>(components_[2])})
                                             : colour_from_text(r.Colour);
  load_extra(r);
}

template <typename Record>
typename FunctionSetup<Record>::Layout FunctionSetup<Record>::layout() const {
  switch (function_) {
    case kFunctionSubmix:
    case kFunctionSequence:
      return {true, true, false, false};
    case kFunctionPreset:
      return {false, true, true, false};
    case kFunctionColour:
      return {false, false, false, true};
    case kFunctionCue:
      return {true, false, false, false};
    default:
      return {};
  }
}

template <typename Record>
void FunctionSetup<Record>::Fun_set_Click(int function) {
  if (function >= 0 && function < functions_) function_ = function;
}

template <typename Record>
std::string FunctionSetup<Record>::Number() const {
  return std::to_string(numbered(function_) ? value_ + 1 : value_);
}

template <typename Record>
void FunctionSetup<Record>::Plus_Click() {
  if ((numbered(function_) && value_ < kLastNumbered) || (function_ == kFunctionCue && value_ < kLastCue)) ++value_;
}

template <typename Record>
void FunctionSetup<Record>::Minus_Click() {
  if (value_ > 0) --value_;
}

template <typename Record>
bool FunctionSetup<Record>::channel_ok(const std::string& text) {
  const std::optional<double> number = parse_number(text);
  if (!number || (*number >= 0 && *number <= kChannelMax)) return true;
  context_.dialogs().message({kChannelErrorTitle, kChannelRange, MessageIcon::Exclamation});
  return false;
}

// A text that is not (yet) a number is kept as typed and counts as channel 0.
template <typename Record>
void FunctionSetup<Record>::Channel_Change(int k, const std::string& text) {
  if (k < 0 || k > 2) return;
  channels_[k] = channel_ok(text) ? text : "0";
}

template <typename Record>
void FunctionSetup<Record>::Colour_Channel_Change(int k, const std::string& text) {
  if (k < 0 || k > 2) return;
  colour_channels_[k] = channel_ok(text) ? text : "0";
}

template <typename Record>
void FunctionSetup<Record>::Component_Change(int k, int value) {
  if (k < 0 || k > 2) return;
  components_[k] = std::clamp(value, 0, 255);
  colour_box_ = Rgb{static_cast<std::uint8_t>(components_[0]), static_cast<std::uint8_t>(components_[1]),
                    static_cast<std::uint8_t>(components_[2])};
}

template <typename Record>
void FunctionSetup<Record>::Colour_box_Click() {
  const std::optional<Rgb> colour = context_.dialogs().choose_colour(kColourTitle, colour_box_);
  if (!colour) return;
  components_ = {colour->r, colour->g, colour->b};
  colour_box_ = *colour;
}

template <typename Record>
void FunctionSetup<Record>::store() {
  Record& r = record(element_);
  auto channel = [](const std::string& text) {
    return static_cast<std::int16_t>(std::clamp(text_to_int(text), 0, kChannelMax));
  };
  const auto level = static_cast<std::int16_t>(255 - level_fader_);
  r.Function = static_cast<std::int16_t>(function_);
  switch (function_) {
    case kFunctionSubmix:
    case kFunctionSequence:
    case kFunctionCue:
      r.Value = static_cast<std::int16_t>(value_);
      r.Level = level;
      break;
    case kFunctionPreset:
    case kFunctionColour: {
      // A preset's three channels, or a colour's red, green and blue channels.
      const auto& boxes = function_ == kFunctionPreset ? channels_ : colour_channels_;
      r.Channel1 = channel(boxes[0]);
      r.Channel2 = channel(boxes[1]);
      r.Channel3 = channel(boxes[2]);
      r.Level = level;
      r.Name = name_;
      r.Colour = colour_box_ ? colour_to_text(*colour_box_) : std::string();
      if (function_ == kFunctionColour) r.Value = static_cast<std::int16_t>(value_);
      break;
    }
    default:
      break;
  }
  store_extra(r);
  context_.store().Project_Changed = true;
}

template <typename Record>
void FunctionSetup<Record>::previous_clicked() {
  store();
  if (element_ > 0) --element_;
  load();
  if (stored_) stored_();
}

template <typename Record>
void FunctionSetup<Record>::next_clicked() {
  store();
  if (element_ < last_element_) ++element_;
  load();
  if (stored_) stored_();
}

template <typename Record>
void FunctionSetup<Record>::OK_Click() {
  store();
  Hide();
  if (stored_) stored_();
}

template class FunctionSetup<ButtonFunction>;
template class FunctionSetup<FaderFunction>;

}  // namespace lumaris
