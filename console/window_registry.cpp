#include "console/window_registry.h"

#include <utility>

namespace lumaris {

void WindowRegistry::add(const std::string& name, Entry entry) {
  slots_[name] = Slot{std::move(entry), false};
}

bool WindowRegistry::can_open(const std::string& name) const { return slots_.count(name) != 0; }

bool WindowRegistry::loaded(const std::string& name) const {
  const auto it = slots_.find(name);
  return it != slots_.end() && it->second.loaded;
}

void WindowRegistry::open(const std::string& name) {
  const auto it = slots_.find(name);
  if (it == slots_.end()) return;
  Slot& slot = it->second;
  if (!slot.loaded) {
    slot.loaded = true;
    if (slot.entry.load) slot.entry.load();
  } else if (slot.entry.refresh) {
    slot.entry.refresh();
  }
  slot.entry.window->Show();
}

}  // namespace lumaris
