#include "app/output_monitor_window.h"

#include <QGridLayout>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QToolTip>
#include <QVBoxLayout>

#include "app/desk_app.h"
#include "app/widgets/page_row.h"
#include "app/widgets/prog_bar_widget.h"
#include "app/widgets/sync.h"

namespace lumaris {

namespace {
constexpr int kBarsPerRow = 48;  // three rows of 48
static_assert(3 * kBarsPerRow == OutputMonitor::kBars);
}

OutputMonitorWindow::OutputMonitorWindow(DeskApp& app)
    : ToolWindow([&app] { app.handle([&] { app.console().output_monitor().Hide(); }); }),
      app_(app) {
  auto* layout = new QVBoxLayout(this);
  const PageRow page_row = add_page_row(this, layout);
  previous_page_ = page_row.previous;
  range_label_ = page_row.range;
  next_page_ = page_row.next;

  auto* grid = new QGridLayout;
  grid->setSpacing(2);
  for (std::size_t row = 0; row < row_labels_.size(); ++row) {
    row_labels_[row] = new QLabel(this);
    row_labels_[row]->setFixedWidth(30);
    row_labels_[row]->setAlignment(Qt::AlignRight | Qt::AlignBottom);
    grid->addWidget(row_labels_[row], static_cast<int>(row), 0);
  }
  for (int i = 0; i < OutputMonitor::kBars; ++i) {
    bars_[i] = new ProgBarWidget(monitor().bar(i), this);
    bars_[i]->setFixedSize(14, 96);
    // Hidden bars keep their place so the grid does not shift on the last page.
    QSizePolicy policy = bars_[i]->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    bars_[i]->setSizePolicy(policy);
    grid->addWidget(bars_[i], i / kBarsPerRow, i % kBarsPerRow + 1);
  }
  layout->addLayout(grid);
  layout->addStretch(1);

  connect(previous_page_, &QPushButton::clicked, [this] { app_.handle([&] { monitor().previous_page_clicked(); }); });
  connect(next_page_, &QPushButton::clicked, [this] { app_.handle([&] { monitor().next_page_clicked(); }); });
}

Window& OutputMonitorWindow::model() { return monitor(); }
OutputMonitor& OutputMonitorWindow::monitor() { return app_.console().output_monitor(); }

// A bar's tooltip is made when the mouse rests on it: 144 texts built on every
// re-sync would cost more than the rest of the window.
bool OutputMonitorWindow::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    for (int i = 0; i < OutputMonitor::kBars; ++i) {
      if (bars_[i]->isVisible() && bars_[i]->geometry().contains(help->pos())) {
        QToolTip::showText(help->globalPos(), sync::q(monitor().bar_tooltip(i)), bars_[i]);
        return true;
      }
    }
  }
  return ToolWindow::event(event);
}

void OutputMonitorWindow::sync() {
  const OutputMonitor& m = monitor();
  sync::title(this, m.caption());
  sync::text(range_label_, m.range_label());
  sync::enabled(previous_page_, m.previous_page_enabled());
  sync::enabled(next_page_, m.next_page_enabled());
  for (std::size_t row = 0; row < row_labels_.size(); ++row) {
    const int first = static_cast<int>(row) * kBarsPerRow;
    sync::text(row_labels_[row],
               m.bar_visible(first) ? std::to_string(m.bar_slot(first) + 1) : std::string());
  }
  for (int i = 0; i < OutputMonitor::kBars; ++i) {
    sync::visible(bars_[i], m.bar_visible(i));
    bars_[i]->sync();
  }
}

}  // namespace lumaris
