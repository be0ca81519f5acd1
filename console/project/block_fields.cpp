#include "console/project/block_fields.h"

#include <cmath>

#include "base/number_text.h"
#include "controls/log_slider.h"

namespace lumaris::show_reading {

namespace {

std::string_view between(std::string_view text, const TagSpan& span) {
  return text.substr(span.content_begin, span.content_end - span.content_begin);
}

}  // namespace

void each_element(std::string_view text, std::string_view tag,
                  const std::function<void(std::string_view content)>& element,
                  const std::function<void(std::size_t at, bool at_end)>& unclosed) {
  const std::string opening = "<" + std::string(tag) + ">";
  const std::string closing = "</" + std::string(tag) + ">";
  // Elements that run into one another all end at the same closing tag: it is
  // searched once for all of them, so that a file of a million unclosed tags
  // is read in one pass and not in a million.
  std::size_t close_at = 0;
  bool close_known = false;
  std::size_t from = 0;
  for (;;) {
    const std::size_t at = text.find(opening, from);
    if (at == std::string_view::npos) return;
    const std::size_t begin = at + opening.size();
    if (!close_known || close_at < begin) {
      close_at = text.find(closing, begin);
      close_known = true;
    }
    if (close_at == std::string_view::npos) {
      unclosed(at, true);
      return;
    }
    const std::string_view content = text.substr(begin, close_at - begin);
    const std::size_t nested = content.find(opening);
    if (nested != std::string_view::npos) {
      unclosed(at, false);
      from = begin + nested;
      continue;
    }
    element(content);
    from = close_at + closing.size();
  }
}

std::pair<std::int64_t, std::int64_t> pair_of(std::string_view content) {
  const std::size_t colon = content.find(':');
  if (colon == std::string_view::npos) return {0, 0};
  return {tag_number_value(content.substr(0, colon)), tag_number_value(content.substr(colon + 1))};
}

std::optional<std::string_view> BlockFields::content(std::string_view tag) const {
  const std::optional<TagSpan> span = find_tag(text_, 0, tag);
  if (!span) return std::nullopt;
  return between(text_, *span);
}

double BlockFields::seconds(std::string_view tag) {
  const double value = parse_number(content(tag).value_or(std::string_view{})).value_or(0.0);
  if (value == 0.0) return 0.0;
  if (value < LogSlider::kDefaultMin) return noted(value, LogSlider::kDefaultMin, tag);
  if (value > LogSlider::kDefaultMax) return noted(value, LogSlider::kDefaultMax, tag);
  return value;
}

int BlockFields::index(std::string_view tag, int last) {
  const std::optional<std::string_view> value = content(tag);
  if (!value) {
    fail(std::string(tag) + " is missing");
    return 0;
  }
  if (!tag_is_numeric(*value)) {
    fail(std::string(tag) + " is not a number");
    return 0;
  }
  return in_range(tag_number_value(*value), 0, last, tag);
}

int BlockFields::in_range(std::int64_t value, int low, int high, std::string_view what) {
  if (value < low || value > high) {
    fail(std::string(what) + " " + std::to_string(value) + " is out of range");
    return low;
  }
  return static_cast<int>(value);
}

std::int16_t BlockFields::clamped(std::int64_t value, int low, int high, std::string_view what) {
  if (value < low) return static_cast<std::int16_t>(noted(static_cast<double>(value), low, what));
  if (value > high) return static_cast<std::int16_t>(noted(static_cast<double>(value), high, what));
  return static_cast<std::int16_t>(value);
}

std::int16_t BlockFields::choice(std::int64_t value, int last, int fallback, std::string_view what) {
  if (value >= 0 && value <= last) return static_cast<std::int16_t>(value);
  return static_cast<std::int16_t>(noted(static_cast<double>(value), fallback, what));
}

void BlockFields::each(std::string_view tag,
                       const std::function<void(std::string_view)>& each_content) {
  each_element(text_, tag, each_content, [this, tag](std::size_t, bool) {
    fail("a <" + std::string(tag) + "> has no closing tag");
  });
}

std::string BlockFields::number_text(double value) {
  if (std::fabs(value) < 1e15 && value == std::trunc(value)) {
    return std::to_string(static_cast<std::int64_t>(value));
  }
  return significant_text(value, 6);
}

}  // namespace lumaris::show_reading
