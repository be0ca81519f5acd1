#include "core/status_lines.h"

namespace lumaris {

void StatusLines::show_main(const std::string& text) {
  main_ = text;
  for (const auto& listener : listeners_) listener(text);
}

void StatusLines::show_playback(const std::string& text) { playback_ = text; }

void StatusLines::show(const std::string& main_text, const std::string& playback_text) {
  show_main(main_text);
  show_playback(playback_text);
}

void StatusLines::on_main_change(std::function<void(const std::string&)> listener) {
  listeners_.push_back(std::move(listener));
}

}  // namespace lumaris
