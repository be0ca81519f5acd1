#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace lumaris {

// Colours as the controls keep them: 0x00BBGGRR, or a system colour with the high bit set.
inline constexpr std::uint32_t kSystemButtonFace = 0x8000000F;
inline constexpr std::uint32_t kSystemHighlight = 0x8000000D;

// The settings a container stores for a control, by property name.
using PropertyBag = std::map<std::string, long>;

// A bar graph: a rectangle filled from one end in proportion to Value.
class ProgBar {
 public:
  std::uint32_t BackColor() const { return back_colour_; }
  std::uint32_t BarColor() const { return bar_colour_; }
  bool Vertical() const { return vertical_; }
  int Max() const { return max_; }
  int Min() const { return min_; }
  int Value() const { return value_; }
  int BorderStyle() const { return border_style_; }

  void set_BackColor(std::uint32_t colour);
  void set_BarColor(std::uint32_t colour);
  void set_Vertical(bool vertical);
  void set_BorderStyle(int style);
  void set_Max(int max);
  void set_Min(int min);
  // Any number is taken; it is kept within Min..Max.
  void set_Value(int value);

  // Part of the length that is filled, 0..1. An empty or negative range
  // (Min >= Max) shows only the empty colour.
  double filled_fraction() const;

  // Counts the changes that alter what the bar shows; setting a property to the
  // value it already has is not a change. A widget repaints when this moves.
  unsigned revision() const { return revision_; }

  void save(PropertyBag& bag) const;
  void load(const PropertyBag& bag);

 private:
  void changed() { ++revision_; }

  std::uint32_t back_colour_ = kSystemButtonFace;
  std::uint32_t bar_colour_ = kSystemHighlight;
  bool vertical_ = false;
  int max_ = 100;
  int min_ = 0;
  int value_ = 50;
  int border_style_ = 1;
  unsigned revision_ = 0;
};

}  // namespace lumaris
