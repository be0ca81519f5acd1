#pragma once

#include <functional>
#include <string>
#include <vector>

namespace lumaris {

// The two status lines of the console: the main desk's and the playback desk's.
// Most messages go to both, the main desk's copy often with a trailing blank.
class StatusLines {
 public:
  void show_main(const std::string& text);
  void show_playback(const std::string& text);
  void show_both(const std::string& text) { show(text, text); }
  void show(const std::string& main_text, const std::string& playback_text);

  const std::string& main() const { return main_; }
  const std::string& playback() const { return playback_; }

  // Called with the new text each time the main desk's status line changes.
  void on_main_change(std::function<void(const std::string&)> listener);

 private:
  std::string main_;
  std::string playback_;
  std::vector<std::function<void(const std::string&)>> listeners_;
};

}  // namespace lumaris
