#include "controls/log_slider.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace lumaris {

std::string significant_text(double x, int digits) {
  if (x == 0.0) return "0";
  const double magnitude = std::fabs(x);
  char text[64];
  if (magnitude >= std::pow(10.0, digits) || magnitude < std::pow(10.0, -digits)) {
    std::snprintf(text, sizeof text, "%.*E", digits, x);
    return text;
  }
  const int decimals = digits - 1 - static_cast<int>(std::floor(std::log10(magnitude)));
  const double unit = std::pow(10.0, decimals);
  const double rounded = std::nearbyint(x * unit) / unit;
  if (rounded == 0.0) return "0";
  std::snprintf(text, sizeof text, "%.*f", std::max(decimals, 0), rounded);
  std::string result = text;
  if (result.find('.') != std::string::npos) {
    result.erase(result.find_last_not_of('0') + 1);
    if (result.back() == '.') result.pop_back();
  }
  return result;
}

LogSlider::LogSlider() {
  lbl_min_ = significant_text(min_, kLabelDigits);
  lbl_max_ = significant_text(max_, kLabelDigits);
  thumb_top_ = top_ + height_ - thumb_height_ / 2;
}

bool LogSlider::maps_logarithmically() const {
  return log_axis_ && min_ > 0 && max_ > 0 && max_ != min_;
}

double LogSlider::fraction_of(double v) const {
  double f = 0.0;
  if (maps_logarithmically()) {
    if (v > 0) f = (std::log10(v) - std::log10(min_)) / (std::log10(max_) - std::log10(min_));
  } else if (max_ != min_) {
    f = (v - min_) / (max_ - min_);
  }
  return std::clamp(f, 0.0, 1.0);
}

double LogSlider::position_of(double v) const {
  const double bottom = top_ + height_;
  if (maps_logarithmically()) {
    if (v <= 0) return bottom;
    const double span = std::log10(max_) - std::log10(min_);
    return bottom - height_ * (std::log10(v) - std::log10(min_)) / span;
  }
  if (max_ == min_) return bottom;
  return bottom - height_ * (v - min_) / (max_ - min_);
}

double LogSlider::value_at(double f) const {
  // The ends are exact, whatever the logarithms round to.
  if (f <= 0) return min_;
  if (f >= 1) return max_;
  if (maps_logarithmically()) return std::pow(10.0, std::log10(min_) + (std::log10(max_) - std::log10(min_)) * f);
  return min_ + (max_ - min_) * f;
}

void LogSlider::place_thumb(double p) {
  thumb_top_ = std::clamp(p, top_, top_ + height_) - thumb_height_ / 2;
  if (val_change_) val_change_(Value());
}

void LogSlider::reposition() { place_thumb(position_of(value_)); }

void LogSlider::range_changed() {
  lbl_min_ = significant_text(MinValue(), kLabelDigits);
  lbl_max_ = significant_text(MaxValue(), kLabelDigits);
  reposition();
}

void LogSlider::set_Value(double value) {
  value_ = value * scale_;
  reposition();
}

void LogSlider::set_MinValue(double value) {
  min_ = value * scale_;
  range_changed();
}

void LogSlider::set_MaxValue(double value) {
  max_ = value * scale_;
  range_changed();
}

void LogSlider::set_logAxis(bool log_axis) {
  log_axis_ = log_axis;
  reposition();
}

void LogSlider::set_ScaleFactor(double factor) {
  if (factor == 0.0 || !std::isfinite(factor)) return;  // would lose every stored number
  value_ = value_ / scale_ * factor;
  min_ = min_ / scale_ * factor;
  max_ = max_ / scale_ * factor;
  scale_ = factor;
}

void LogSlider::Set_From_Position(double p) {
  const double bottom = top_ + height_;
  p = std::clamp(p, top_, bottom);
  place_thumb(p);
  value_ = value_at(height_ > 0 ? (bottom - p) / height_ : 0.0);
  if (cursor_move_) cursor_move_(Value());
}

void LogSlider::take_from_operator(double internal_value) {
  value_ = internal_value;
  reposition();
  if (cursor_move_) cursor_move_(Value());
}

void LogSlider::Step_By(double fraction) {
  // From the thumb's place: a value off the axis steps from the end it sits at.
  take_from_operator(value_at(std::clamp(fraction_of(value_) + fraction, 0.0, 1.0)));
}

bool LogSlider::Set_From_Text(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return false;
  text = text.substr(first, text.find_last_not_of(" \t") - first + 1);
  std::string number(text);
  std::replace(number.begin(), number.end(), ',', '.');  // a decimal comma, as many operators type it
  double seconds = 0.0;
  const char* end = number.data() + number.size();
  const auto [stop, error] = std::from_chars(number.data(), end, seconds);
  if (error != std::errc() || stop != end || !std::isfinite(seconds)) return false;
  take_from_operator(std::clamp(seconds * scale_, std::min(min_, max_), std::max(min_, max_)));
  return true;
}

void LogSlider::set_axis(double top, double height) {
  top_ = top;
  height_ = std::max(height, 0.0);
  reposition();
}

void LogSlider::set_thumb_height(double height) {
  thumb_height_ = std::max(height, 0.0);
  reposition();
}

std::vector<LogSlider::Tick> LogSlider::ticks() const {
  std::vector<Tick> result;
  if (min_ <= 0 || max_ <= 0 || max_ == min_) return result;
  const double bottom = top_ + height_;
  const double low = std::log10(min_);
  const double span = std::log10(max_) - low;
  // Decades from the smaller end to the larger, whichever end is at the bottom.
  const int first = static_cast<int>(std::floor(std::min(low, low + span) + 1e-9));
  const int last = static_cast<int>(std::floor(std::max(low, low + span) + 1e-9));
  for (int d = first; d <= last; ++d) {
    for (int k = 1; k <= 10; ++k) {
      if (k == 10 && d < last) continue;  // the next decade's first tick
      const double position = bottom - height_ * (std::log10(k * std::pow(10.0, d)) - low) / span;
      if (position < top_ - 1e-6 || position > bottom + 1e-6) continue;
      result.push_back({position, k == 1 || k == 10});
    }
  }
  return result;
}

}  // namespace lumaris
