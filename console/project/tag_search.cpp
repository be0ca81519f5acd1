#include "console/project/tag_search.h"

#include <cmath>

#include "base/number_text.h"

namespace lumaris {

std::optional<TagSpan> find_tag(std::string_view text, std::size_t from, std::string_view tag) {
  if (from > text.size()) return std::nullopt;
  std::string opening;
  opening.reserve(tag.size() + 3);
  opening.append("<").append(tag).append(">");
  const std::size_t open_at = text.find(opening, from);
  if (open_at == std::string_view::npos) return std::nullopt;
  std::string closing;
  closing.reserve(tag.size() + 3);
  closing.append("</").append(tag).append(">");
  const std::size_t begin = open_at + opening.size();
  const std::size_t close_at = text.find(closing, begin);
  if (close_at == std::string_view::npos) return std::nullopt;
  return TagSpan{begin, close_at, close_at + closing.size()};
}

bool tag_is_numeric(std::string_view content) { return is_numeric(content); }

std::int64_t tag_number_value(std::string_view content) {
  const std::optional<double> value = parse_number(content);
  if (!value) return 0;
  const double rounded = std::nearbyint(*value);
  // 2^63 and beyond do not fit; saturate rather than overflow.
  if (rounded >= 9.2233720368547758e18) return INT64_MAX;
  if (rounded <= -9.2233720368547758e18) return INT64_MIN;
  return static_cast<std::int64_t>(rounded);
}

std::vector<std::string_view> split_items(std::string_view list, char separator) {
  std::vector<std::string_view> items;
  std::size_t begin = 0;
  for (;;) {
    const std::size_t at = list.find(separator, begin);
    if (at == std::string_view::npos) {
      items.push_back(list.substr(begin));
      return items;
    }
    items.push_back(list.substr(begin, at - begin));
    begin = at + 1;
  }
}

}  // namespace lumaris
