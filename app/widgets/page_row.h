#pragma once

#include <QBoxLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace lumaris {

// The "<<  slots a..b  >>" row above the 128-slot grids of the patch editor and
// the output monitor.
struct PageRow {
  QPushButton* previous = nullptr;
  QLabel* range = nullptr;
  QPushButton* next = nullptr;
};

inline PageRow add_page_row(QWidget* parent, QBoxLayout* layout) {
  PageRow row;
  row.previous = new QPushButton(QStringLiteral("<<"), parent);
  row.next = new QPushButton(QStringLiteral(">>"), parent);
  row.range = new QLabel(parent);
  row.range->setAlignment(Qt::AlignCenter);
  auto* top = new QHBoxLayout;
  top->addWidget(row.previous);
  top->addWidget(row.range, 1);
  top->addWidget(row.next);
  layout->addLayout(top);
  return row;
}

}  // namespace lumaris
