#include "app/patch_editor_window.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/desk_app.h"
#include "app/widgets/sync.h"

namespace lumaris {

namespace {
constexpr int kRows = 16;  // 128 entries in 8 columns
}

PatchEditorWindow::PatchEditorWindow(DeskApp& app)
    : ToolWindow([&app] { app.handle([&] { app.console().patch_editor().Close_Click(); }); }),
      app_(app) {
  auto* layout = new QVBoxLayout(this);
  auto* top = new QHBoxLayout;
  pannel_dec_ = new QPushButton(QStringLiteral("<<"), this);
  pannel_inc_ = new QPushButton(QStringLiteral(">>"), this);
  label4_ = new QLabel(this);
  label4_->setAlignment(Qt::AlignCenter);
  top->addWidget(pannel_dec_);
  top->addWidget(label4_, 1);
  top->addWidget(pannel_inc_);
  layout->addLayout(top);

  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(4);
  grid->setVerticalSpacing(2);
  for (int i = 0; i < PatchEditor::kEntries; ++i) {
    label1_[i] = new QLabel(this);
    text1_[i] = new QLineEdit(this);
    text1_[i]->setFixedWidth(36);
    text1_[i]->setAlignment(Qt::AlignCenter);
    text1_[i]->installEventFilter(this);
    const int column = (i / kRows) * 2;
    grid->addWidget(label1_[i], i % kRows, column, Qt::AlignRight);
    grid->addWidget(text1_[i], i % kRows, column + 1);
    connect(text1_[i], &QLineEdit::textEdited, [this, i](const QString& text) {
      app_.handle([&] { editor().Text1_Change(i, text.toStdString()); });
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

  connect(pannel_dec_, &QPushButton::clicked, [this] { app_.handle([&] { editor().Pannel_Dec_Click(); }); });
  connect(pannel_inc_, &QPushButton::clicked, [this] { app_.handle([&] { editor().Pannel_Inc_Click(); }); });
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
    if (watched == text1_[i]) {
      app_.handle([&] { editor().Text1_Open(i); });
      return true;
    }
  }
  return false;
}

void PatchEditorWindow::sync() {
  const PatchEditor& e = editor();
  sync::title(this, e.caption());
  sync::text(label4_, e.Label4());
  sync::enabled(pannel_dec_, e.Pannel_Dec_enabled());
  sync::enabled(pannel_inc_, e.Pannel_Inc_enabled());
  for (int i = 0; i < PatchEditor::kEntries; ++i) {
    sync::text(label1_[i], e.Label1(i));
    sync::text(text1_[i], e.Text1(i));
    sync::tooltip(text1_[i], e.Text1_tooltip(i));
  }
}

}  // namespace lumaris
