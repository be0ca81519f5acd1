#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "console/project/tag_search.h"

namespace lumaris::show_reading {

// Every `tag` element of a text in turn. An element whose closing tag is missing
// runs into the next one of its kind; it is reported with the offset of its
// opening tag and reading goes on from that next one. An opening tag with no
// closing tag after it ends the search.
void each_element(std::string_view text, std::string_view tag,
                  const std::function<void(std::string_view content)>& element,
                  const std::function<void(std::size_t at, bool at_end)>& unclosed);

// The two numbers of a "a:b" item; 0, 0 without a colon.
std::pair<std::int64_t, std::int64_t> pair_of(std::string_view content);

// The fields of one block. Single fields are searched from the block's start.
// The first problem found makes the caller skip the whole block; values that
// are only out of range are brought into range and noted.
class BlockFields {
 public:
  explicit BlockFields(std::string_view text) : text_(text) {}

  std::optional<std::string_view> content(std::string_view tag) const;

  std::string text(std::string_view tag) const {
    return std::string(content(tag).value_or(std::string_view{}));
  }

  std::int64_t raw_number(std::string_view tag) const {
    return tag_number_value(content(tag).value_or(std::string_view{}));
  }

  std::int16_t number(std::string_view tag) { return checked(raw_number(tag), tag); }

  // Any number but 0 is true: the desk's own true is -1, the writer's 1.
  bool flag(std::string_view tag) const { return raw_number(tag) != 0; }

  // A step time. 0 is the time of a step never set; any other time is kept to
  // the travel of the time sliders.
  double seconds(std::string_view tag);

  // The block's index: present, numeric and within 0..last.
  int index(std::string_view tag, int last);

  int in_range(std::int64_t value, int low, int high, std::string_view what);

  std::int16_t checked(std::int64_t value, std::string_view what) {
    return static_cast<std::int16_t>(in_range(value, INT16_MIN, INT16_MAX, what));
  }

  // A value brought into low..high, noted when it had to move.
  std::int16_t clamped(std::int64_t value, int low, int high, std::string_view what);

  // A choice from a list: a number that names no entry becomes `fallback`.
  std::int16_t choice(std::int64_t value, int last, int fallback, std::string_view what);

  // Calls `each_content` with the content of every `tag` element in turn; an
  // element without its closing tag is a problem of the block.
  void each(std::string_view tag, const std::function<void(std::string_view)>& each_content);

  // A ":"-separated list into `values`, which must hold every item; each item
  // is brought into low..high.
  template <typename Array>
  void list(std::string_view tag, Array& values, int low, int high) {
    const std::string_view content = this->content(tag).value_or(std::string_view{});
    const std::vector<std::string_view> items = split_items(content, ':');
    if (items.size() > values.size()) {
      fail(std::string(tag) + " has " + std::to_string(items.size()) + " items, more than " +
           std::to_string(values.size()));
      return;
    }
    for (std::size_t k = 0; k < items.size(); ++k) {
      values[k] = clamped(tag_number_value(items[k]), low, high, tag);
    }
  }

  void fail(std::string why) {
    if (problem_.empty()) problem_ = std::move(why);
  }
  bool ok() const { return problem_.empty(); }
  const std::string& problem() const { return problem_; }
  std::vector<std::string>& notes() { return notes_; }
  std::string_view whole() const { return text_; }

 private:
  template <typename T>
  T noted(double read, T kept, std::string_view what) {
    notes_.push_back(std::string(what) + " " + number_text(read) + " set to " + number_text(kept));
    return kept;
  }
  static std::string number_text(double value);

  std::string_view text_;
  std::string problem_;
  std::vector<std::string> notes_;
};

}  // namespace lumaris::show_reading
