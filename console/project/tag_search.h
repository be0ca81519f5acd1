#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumaris {

// Show files are read by literal tag search, not by an XML parser: an element is
// the first "<t>" at or after a position and the "</t>" that follows it.

// Where an element sits in a text (0-based offsets).
struct TagSpan {
  std::size_t content_begin = 0;
  std::size_t content_end = 0;
  std::size_t after = 0;  // just past "</t>"
};
std::optional<TagSpan> find_tag(std::string_view text, std::size_t from, std::string_view tag);

// The value of a number in the file: numeric text rounded to an integer (halves
// to even), anything else 0. Values beyond 64 bits saturate.
std::int64_t tag_number_value(std::string_view content);
// Whether the text is a number in the file's sense.
bool tag_is_numeric(std::string_view content);

// The items of a ":"- or ","-separated list, each item as text; an empty list
// still has one (empty) item.
std::vector<std::string_view> split_items(std::string_view list, char separator);

}  // namespace lumaris
