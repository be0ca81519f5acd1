#pragma once

#include <functional>
#include <map>
#include <string>

#include "core/window.h"
#include "core/window_opener.h"

namespace lumaris {

// Every window a desk can open, by name, under one rule: a window is loaded on
// first use and then kept. The first open runs its load; a later open only
// refreshes what the window shows from the store (a show may have been loaded
// meanwhile) and never repeats the load's work on the outside world (adapter
// selection, device search, port pulses, starting Art-Net).
class WindowRegistry final : public WindowOpener {
 public:
  struct Entry {
    Window* window = nullptr;
    std::function<void()> load;     // once, before the first show; may be empty
    std::function<void()> refresh;  // before every later show; may be empty
  };

  void add(const std::string& name, Entry entry);
  bool can_open(const std::string& name) const override;
  void open(const std::string& name) override;
  bool loaded(const std::string& name) const;

 private:
  struct Slot {
    Entry entry;
    bool loaded = false;
  };
  std::map<std::string, Slot> slots_;
};

}  // namespace lumaris
