#include "controls/prog_bar.h"

#include <algorithm>

namespace lumaris {

void ProgBar::set_BackColor(std::uint32_t colour) {
  back_colour_ = colour;
  changed();
}

void ProgBar::set_BarColor(std::uint32_t colour) {
  bar_colour_ = colour;
  changed();
}

void ProgBar::set_Vertical(bool vertical) {
  vertical_ = vertical;
  changed();
}

void ProgBar::set_BorderStyle(int style) {
  border_style_ = style;
  changed();
}

void ProgBar::set_Max(int max) {
  max_ = max;
  set_Value(value_);
}

void ProgBar::set_Min(int min) {
  min_ = min;
  set_Value(value_);
}

void ProgBar::set_Value(int value) {
  if (value > max_) value = max_;
  value_ = std::max(value, min_);
  changed();
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
