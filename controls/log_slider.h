#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lumaris {

// A vertical slider for times over a wide range: tenths of a second and minutes
// on one short travel. The value model and the geometry of its axis; the widget
// in app/widgets only draws it and feeds it pointer positions.
//
// Positions are in the widget's own vertical coordinates (down is larger). The
// axis runs from its top T (MaxValue) to its bottom T + H (MinValue).
//
// A logarithmic axis needs positive ends: with MinValue or MaxValue at 0 or below
// (or both equal) the control maps linearly instead. A range whose minimum lies
// above its maximum maps logarithmically like any other: the bottom is still
// MinValue. A value of 0 or below on a logarithmic axis sits at the bottom end,
// and Value still reads what was set.
class LogSlider {
 public:
  static constexpr int kLabelDigits = 3;  // significant digits of the min and max labels
  static constexpr double kDefaultMin = 0.1;    // seconds
  static constexpr double kDefaultMax = 240.0;  // four minutes

  struct Tick {
    double position;
    bool decade;  // a power of ten: drawn over the full width
  };

  LogSlider();

  double Value() const { return value_ / scale_; }
  double MinValue() const { return min_ / scale_; }
  double MaxValue() const { return max_ / scale_; }
  bool logAxis() const { return log_axis_; }
  double ScaleFactor() const { return scale_; }

  // Each repositions the thumb and raises ValChange; the range setters also redo
  // the labels and the ticks.
  void set_Value(double value);
  void set_MinValue(double value);
  void set_MaxValue(double value);
  void set_logAxis(bool log_axis);
  // Keeps the user-unit values: the stored numbers are converted to the new factor.
  void set_ScaleFactor(double factor);

  // Raised every time the thumb is placed, with the value held at that moment.
  void on_ValChange(std::function<void(double)> handler) { val_change_ = std::move(handler); }
  // Raised after a press or drag has computed a new value.
  void on_UserCursorMove(std::function<void(double)> handler) { cursor_move_ = std::move(handler); }

  // Pointer press or drag at vertical position p; positions off the axis are clamped.
  void Set_From_Position(double p);

  // The keys and the wheel move the value in even steps along the axis: a
  // fraction of the whole travel (positive is towards MaxValue), clamped to the
  // ends. An arrow key or a wheel notch is 1/40 of the travel (about a fifth
  // more or less on the default 0.1 s to 4 min scale), a page 1/8.
  static constexpr double kArrowStep = 1.0 / 40;
  static constexpr double kPageStep = 1.0 / 8;
  void Step_By(double fraction);

  // Typed seconds ("2.5", "2,5", " 12 "): a number is clamped to the range and
  // taken like a hand on the slider. Anything else is refused (false) and the
  // value stays.
  bool Set_From_Text(std::string_view text);

  // Geometry, set by the widget on resize; re-places the thumb from the value.
  void set_axis(double top, double height);
  void set_thumb_height(double height);
  double axis_top() const { return top_; }
  double axis_height() const { return height_; }
  double thumb_top() const { return thumb_top_; }
  double thumb_height() const { return thumb_height_; }

  const std::string& lblMin() const { return lbl_min_; }
  const std::string& lblMax() const { return lbl_max_; }
  // The tick scale: every k x 10^d between the decades of min and max, placed
  // by the logarithmic mapping whatever logAxis says.
  std::vector<Tick> ticks() const;

 private:
  bool maps_logarithmically() const;
  double position_of(double internal_value) const;
  double fraction_of(double internal_value) const;  // 0 at MinValue, 1 at MaxValue
  double value_at(double fraction) const;
  void take_from_operator(double internal_value);
  void place_thumb(double p);
  void reposition();
  void range_changed();

  double value_ = 0.0;  // internal units: user units x ScaleFactor
  double min_ = kDefaultMin;
  double max_ = kDefaultMax;
  bool log_axis_ = true;
  double scale_ = 1.0;
  double top_ = 0.0;
  double height_ = 1000.0;
  double thumb_height_ = 0.0;
  double thumb_top_ = 0.0;
  std::string lbl_min_;
  std::string lbl_max_;
  std::function<void(double)> val_change_;
  std::function<void(double)> cursor_move_;
};

// A number with n significant digits as the slider labels show it: "0" for 0,
// "0.000E+00" style outside 10^-n <= |x| < 10^n, otherwise rounded to
// n - 1 - floor(log10 |x|) decimals without trailing zeros.
std::string significant_text(double x, int digits);

}  // namespace lumaris
