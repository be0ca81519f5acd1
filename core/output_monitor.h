#pragma once

#include <array>
#include <string>

#include "controls/prog_bar.h"
#include "core/window.h"

namespace lumaris {

class DeskContext;

// The output monitor: 144 bars of the frame being sent, four overlapping pages.
class OutputMonitor : public Window {
 public:
  static constexpr int kBars = 144;
  static constexpr int kLastPage = 3;

  explicit OutputMonitor(DeskContext& context);

  void Show() override;  // opening starts on page 0
  void previous_page_clicked();
  void next_page_clicked();

  // Called by the output tick for every shown slot.
  void set_bar(int bar, int level);

  int page() const { return page_; }
  const ProgBar& bar(int i) const { return bars_[i]; }
  bool bar_visible(int i) const;
  std::string bar_tooltip(int i) const;
  std::string range_label() const;
  bool previous_page_enabled() const { return page_ > 0; }
  bool next_page_enabled() const { return page_ < kLastPage; }
  // The slot a bar stands for on the current page (may lie beyond the frame).
  int bar_slot(int i) const;

 private:
  void show_page(int page);

  DeskContext& context_;
  std::array<ProgBar, kBars> bars_{};
  int page_ = 0;
};

}  // namespace lumaris
