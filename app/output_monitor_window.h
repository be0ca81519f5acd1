#pragma once

#include <array>

#include "app/desk_window.h"
#include "app/widgets/tool_window.h"
#include "core/output_monitor.h"

class QLabel;
class QPushButton;

namespace lumaris {

class DeskApp;
class ProgBarWidget;

// The output monitor: 144 bars of the frame being sent.
class OutputMonitorWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit OutputMonitorWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "output-monitor"; }
  void sync() override;

  ProgBarWidget* bar(int i) const { return bars_[i]; }
  QLabel* range_label() const { return range_label_; }
  QPushButton* next_page() const { return next_page_; }

 protected:
  bool event(QEvent* event) override;

 private:
  OutputMonitor& monitor();

  DeskApp& app_;
  std::array<ProgBarWidget*, OutputMonitor::kBars> bars_{};
  std::array<QLabel*, 3> row_labels_{};  // DMX channel of each row's first bar
  QLabel* range_label_ = nullptr;
  QPushButton* previous_page_ = nullptr;
  QPushButton* next_page_ = nullptr;
};

}  // namespace lumaris
