#include "core/output_monitor.h"

#include <algorithm>

#include "core/desk_context.h"

namespace lumaris {

namespace {
constexpr int kSlotsPerPage = 143;  // adjacent pages share one slot
}

OutputMonitor::OutputMonitor(DeskContext& context) : Window("Output Monitor"), context_(context) {
  for (ProgBar& bar : bars_) {
    bar.set_Vertical(true);
    bar.set_Max(255);
    bar.set_Value(0);
  }
}

void OutputMonitor::show_page(int page) {
  page_ = std::clamp(page, 0, kLastPage);
  Store& store = context_.store();
  store.Realout_First = static_cast<std::int16_t>(page_ * kSlotsPerPage);
  store.Realout_Last = static_cast<std::int16_t>(page_ * kSlotsPerPage + kSlotsPerPage);
  for (int i = 0; i < kBars; ++i) {
    const int slot = bar_slot(i);
    bars_[i].set_Value(slot < kDmxSlots ? store.DMX_Out[slot] : 0);
  }
}

void OutputMonitor::Show() {
  // Opening starts on page 0; showing it again while open keeps the operator's page.
  if (!visible()) show_page(0);
  Window::Show();
}

void OutputMonitor::previous_page_clicked() { show_page(page_ - 1); }
void OutputMonitor::next_page_clicked() { show_page(page_ + 1); }

void OutputMonitor::set_bar(int bar, int level) {
  if (bar < 0 || bar >= kBars || bars_[bar].Value() == level) return;
  bars_[bar].set_Value(level);
}

int OutputMonitor::bar_slot(int i) const { return page_ * kSlotsPerPage + i; }

bool OutputMonitor::bar_visible(int i) const { return bar_slot(i) < kDmxSlots; }

std::string OutputMonitor::bar_tooltip(int i) const {
  const Store& store = context_.store();
  const int slot = bar_slot(i);
  if (slot >= kDmxSlots) return {};
  return " Output " + std::to_string(slot + 1) + " From Desk Channel " +
         std::to_string(store.Patch[slot]);
}

// Names DMX channels (slot + 1) like the bars' tooltips, and stops at the end
// of the frame on the last page, where the hidden bars stand for nothing.
std::string OutputMonitor::range_label() const {
  const int first = bar_slot(0);
  const int last = std::min(bar_slot(kBars - 1), kDmxSlots - 1);
  return " Real DMX Output  Ch" + std::to_string(first + 1) + "   -  Ch" +
         std::to_string(last + 1);
}

}  // namespace lumaris
