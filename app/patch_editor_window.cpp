#include "app/patch_editor_window.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/desk_app.h"
#include "app/widgets/page_row.h"
#include "app/widgets/sync.h"

namespace lumaris {

namespace {
constexpr int kRows = 16;  // 128 entries in 8 columns
}

PatchEditorWindow::PatchEditorWindow(DeskApp& app)
    : ToolWindow([&app] { app.handle([&] { app.console().patch_editor().Close_Click(); }); }),
      app_(app) {
  auto* layout = new QVBoxLayout(this);
  const PageRow page_row = add_page_row(this, layout);
  previous_page_ = page_row.previous;
  range_label_ = page_row.range;
  next_page_ = page_row.next;

  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(4);
  grid->setVerticalSpacing(2);
  for (int i = 0; i < PatchEditor::kEntries; ++i) {
    slot_labels_[i] = new QLabel(this);
    channel_boxes_[i] = new QLineEdit(this);
    channel_boxes_[i]->setFixedWidth(36);
    channel_boxes_[i]->setAlignment(Qt::AlignCenter);
    channel_boxes_[i]->installEventFilter(this);
    const int column = (i / kRows) * 2;
    grid->addWidget(slot_labels_[i], i % kRows, column, Qt::AlignRight);
    grid->addWidget(channel_boxes_[i], i % kRows, column + 1);
    connect(channel_boxes_[i], &QLineEdit::textEdited, [this, i](const QString& text) {
      app_.handle([&] { editor().channel_box_changed(i, text.toStdString()); });
    });
  }
  layout->addLayout(grid);

  auto* bottom = new QHBoxLayout;
  update_ = new QPushButton(QStringLiteral("Update"), this);
  clear_ = new QPushButton(QStringLiteral("Clear"), this);
  auto* close = new QPushButton(QStringLiteral("Close"), this);
  bottom->addStretch(1);
  for (QPushButton* button : {update_, clear_, close}) bottom->addWidget(button);
  layout->addLayout(bottom);

  connect(previous_page_, &QPushButton::clicked, [this] { app_.handle([&] { editor().previous_page_clicked(); }); });
  connect(next_page_, &QPushButton::clicked, [this] { app_.handle([&] { editor().next_page_clicked(); }); });
  connect(update_, &QPushButton::clicked, [this] { app_.handle([&] { editor().Update_Click(); }); });
  connect(clear_, &QPushButton::clicked, [this] { app_.handle([&] { editor().Clear_Click(); }); });
  connect(close, &QPushButton::clicked, [this] { app_.handle([&] { editor().Close_Click(); }); });
}

Window& PatchEditorWindow::model() { return editor(); }
PatchEditor& PatchEditorWindow::editor() { return app_.console().patch_editor(); }

void PatchEditorWindow::prepare_screenshot() {
  editor().Form_Load();
  editor().Show();
}

bool PatchEditorWindow::eventFilter(QObject* watched, QEvent* event) {
  // The right button opens the channel, not the box's edit menu.
  if (event->type() == QEvent::ContextMenu) return true;
  const bool double_click = event->type() == QEvent::MouseButtonDblClick;
  const bool right_press = event->type() == QEvent::MouseButtonPress &&
                           static_cast<QMouseEvent*>(event)->button() == Qt::RightButton;
  if (!double_click && !right_press) return false;
  for (int i = 0; i < PatchEditor::kEntries; ++i) {
    if (watched == channel_boxes_[i]) {
      app_.handle([&] { editor().open_channel(i); });
      return true;
    }
  }
  return false;
}

void PatchEditorWindow::sync() {
  const PatchEditor& e = editor();
  sync::title(this, e.caption());
  sync::text(range_label_, e.range_label());
  sync::enabled(previous_page_, e.previous_page_enabled());
  sync::enabled(next_page_, e.next_page_enabled());
  for (int i = 0; i < PatchEditor::kEntries; ++i) {
    sync::text(slot_labels_[i], e.slot_label(i));
    sync::text(channel_boxes_[i], e.channel_box(i));
    sync::tooltip(channel_boxes_[i], e.channel_box_tooltip(i));
  }
}

}  // namespace lumaris
