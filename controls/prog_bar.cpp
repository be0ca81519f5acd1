#include "controls/prog_bar.h"

#include <algorithm>

namespace lumaris {

namespace {

// Stores a property and reports whether it really changed, so that widgets
// repaint only for real changes (the output tick sets bars on every frame).
template <typename T>
bool assign(T& field, T value) {
  if (field == value) return false;
  field = value;
  return true;
}

}  // namespace

void ProgBar::set_BackColor(std::uint32_t colour) {
  if (assign(back_colour_, colour)) changed();
}

void ProgBar::set_BarColor(std::uint32_t colour) {
  if (assign(bar_colour_, colour)) changed();
}

void ProgBar::set_Vertical(bool vertical) {
  if (assign(vertical_, vertical)) changed();
}

void ProgBar::set_BorderStyle(int style) {
  if (assign(border_style_, style)) changed();
}

void ProgBar::set_Max(int max) {
  if (assign(max_, max)) changed();
  set_Value(value_);
}

void ProgBar::set_Min(int min) {
  if (assign(min_, min)) changed();
  set_Value(value_);
}

void ProgBar::set_Value(int value) {
  if (value > max_) value = max_;
  if (assign(value_, std::max(value, min_))) changed();
}

double ProgBar::filled_fraction() const {
  const int range = max_ - min_;
  const int filled = value_ - min_;
  if (range <= 0 || filled < 1) return 0.0;
  return std::min(1.0, static_cast<double>(filled) / range);
}

void ProgBar::save(PropertyBag& bag) const {
  bag["BackColor"] = static_cast<long>(back_colour_);
  bag["BarColor"] = static_cast<long>(bar_colour_);
  bag["Vertical"] = vertical_ ? -1 : 0;
  bag["Max"] = max_;
  bag["Min"] = min_;
  bag["Value"] = value_;
  bag["BorderStyle"] = border_style_;
}

void ProgBar::load(const PropertyBag& bag) {
  auto get = [&bag](const char* name, long fallback) {
    const auto found = bag.find(name);
    return found == bag.end() ? fallback : found->second;
  };
  back_colour_ = static_cast<std::uint32_t>(get("BackColor", kSystemButtonFace));
  bar_colour_ = static_cast<std::uint32_t>(get("BarColor", kSystemHighlight));
  vertical_ = get("Vertical", 0) != 0;
  max_ = static_cast<int>(get("Max", 100));
  min_ = static_cast<int>(get("Min", 0));
  value_ = 50;
  set_Value(static_cast<int>(get("Value", 50)));
  border_style_ = static_cast<int>(get("BorderStyle", 1));
  changed();
}

}  // namespace lumaris
