#include "app/cue_editor_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <vector>

#include "app/desk_app.h"
#include "app/widgets/colour_box.h"
#include "app/widgets/sync.h"
#include "playback/cue_editor.h"
#include "playback/playback_desk.h"

namespace lumaris {

namespace {

QPushButton* command(const QString& caption, const QString& tooltip, QWidget* parent) {
  auto* b = new QPushButton(caption, parent);
  b->setToolTip(tooltip);
  b->setFocusPolicy(Qt::NoFocus);
  return b;
}

// Rewrites the list's lines only where they differ, so the selection and the
// scroll position survive a re-sync.
void sync_lines(QListWidget* list, const std::vector<std::string>& lines, int selected) {
  const QSignalBlocker block(list);
  while (list->count() > static_cast<int>(lines.size())) delete list->takeItem(list->count() - 1);
  for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
    const QString line = sync::q(lines[i]);
    if (i < list->count()) {
      if (list->item(i)->text() != line) list->item(i)->setText(line);
    } else {
      list->addItem(line);
    }
  }
  if (list->currentRow() != selected) list->setCurrentRow(selected);
}

void sync_lines(QComboBox* box, const std::vector<std::string>& lines, int selected) {
  const QSignalBlocker block(box);
  while (box->count() > static_cast<int>(lines.size())) box->removeItem(box->count() - 1);
  for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
    const QString line = sync::q(lines[i]);
    if (i < box->count()) {
      if (box->itemText(i) != line) box->setItemText(i, line);
    } else {
      box->addItem(line);
    }
  }
  if (box->currentIndex() != selected) box->setCurrentIndex(selected);
}

}  // namespace

template <typename Work>
void CueEditorWindow::handle(Work work) {
  app_.handle([&] { work(editor()); });
}

CueEditorWindow::CueEditorWindow(DeskApp& app)
    : ToolWindow([this] { handle([](CueEditor& e) { e.Hide(); }); }), app_(app) {
  auto* layout = new QHBoxLayout(this);

  list1_ = new QListWidget(this);
  list1_->setToolTip(QStringLiteral("List Of Screens select One with Mouse"));
  list1_->setMinimumWidth(200);
  layout->addWidget(list1_);

  auto* right = new QVBoxLayout;
  auto* settings = new QGridLayout;
  text1_ = new QLineEdit(this);
  text1_->setToolTip(QStringLiteral("Screen name"));
  text2_ = new QLineEdit(this);
  text2_->setMaximumWidth(64);
  next_scn_ = new QComboBox(this);
  next_scn_->setToolTip(QStringLiteral("Next Screen to go to in run mode"));
  screen_delay_ = new QScrollBar(Qt::Horizontal, this);
  screen_delay_->setRange(0, CueEditor::kDelayMax);
  delay_label_ = new QLabel(this);
  delay_label_->setMinimumWidth(40);
  check1_ = new QCheckBox(QStringLiteral("Instant"), this);
  check1_->setToolTip(QStringLiteral("Dose selected screen appear on instant Pannel"));
  check2_ = new QCheckBox(QStringLiteral("Auto"), this);
  picture1_ = new ColourBox(this);
  picture1_->setFixedSize(40, 22);
  picture1_->setToolTip(QStringLiteral("Colour"));
  settings->addWidget(new QLabel(QStringLiteral("Name"), this), 0, 0);
  settings->addWidget(text1_, 0, 1, 1, 3);
  settings->addWidget(new QLabel(QStringLiteral("Fade In Time"), this), 1, 0);
  settings->addWidget(text2_, 1, 1);
  settings->addWidget(new QLabel(QStringLiteral("Next Screen"), this), 2, 0);
  settings->addWidget(next_scn_, 2, 1, 1, 3);
  settings->addWidget(new QLabel(QStringLiteral("Delay"), this), 3, 0);
  settings->addWidget(screen_delay_, 3, 1, 1, 2);
  settings->addWidget(delay_label_, 3, 3);
  settings->addWidget(check1_, 4, 1);
  settings->addWidget(check2_, 4, 2);
  settings->addWidget(picture1_, 4, 3);
  settings->setColumnStretch(2, 1);
  right->addLayout(settings);

  auto* contents = new QHBoxLayout;
  list2_ = new QListWidget(this);
  list2_->setToolTip(QStringLiteral("Cue Function"));
  contents->addWidget(list2_, 1);
  auto* level = new QVBoxLayout;
  text3_ = new QLabel(this);
  text3_->setAlignment(Qt::AlignCenter);
  text3_->setMinimumWidth(120);
  slider1_ = new LevelSlider(this);
  text5_ = new QLineEdit(this);
  text5_->setReadOnly(true);
  text5_->setMaximumWidth(64);
  level->addWidget(text3_);
  level->addWidget(slider1_, 1, Qt::AlignHCenter);
  level->addWidget(text5_, 0, Qt::AlignHCenter);
  contents->addLayout(level);
  right->addLayout(contents, 1);

  auto* row = new QHBoxLayout;
  command2_ = command(QStringLiteral("Copy"), QStringLiteral("Copy the selected screen"), this);
  command4_ = command(QStringLiteral("Paste"), QStringLiteral("Paste into the selected screen"), this);
  command5_ = command(QStringLiteral("Insert"), QStringLiteral("Insert a clear screen here"), this);
  command6_ = command(QStringLiteral("Delete"), QStringLiteral("Delete the selected screen"), this);
  command3_ = command(QStringLiteral("Update"), QStringLiteral("Update the seleceted screen with a new next screen"), this);
  command1_ = command(QStringLiteral("Save and Exit"), {}, this);
  for (QPushButton* b : {command2_, command4_, command5_, command6_}) row->addWidget(b);
  row->addStretch(1);
  row->addWidget(command3_);
  row->addWidget(command1_);
  right->addLayout(row);
  layout->addLayout(right, 1);

  connect(list1_, &QListWidget::currentRowChanged, [this](int i) {
    if (i >= 0) handle([i](CueEditor& e) { e.List1_Click(i); });
  });
  connect(list2_, &QListWidget::currentRowChanged, [this](int i) {
    if (i >= 0) handle([i](CueEditor& e) { e.List2_Click(i); });
  });
  connect(text1_, &QLineEdit::textEdited, [this](const QString& t) {
    handle([&](CueEditor& e) { e.Text1_Change(t.toStdString()); });
  });
  connect(text2_, &QLineEdit::textEdited, [this](const QString& t) {
    handle([&](CueEditor& e) { e.Text2_Change(t.toStdString()); });
  });
  connect(next_scn_, &QComboBox::currentIndexChanged, [this](int i) { handle([i](CueEditor& e) { e.Next_Scn_Click(i); }); });
  connect(screen_delay_, &QScrollBar::valueChanged, [this](int v) { handle([v](CueEditor& e) { e.Screen_Delay_Change(v); }); });
  connect(check1_, &QCheckBox::clicked, [this](bool c) { handle([c](CueEditor& e) { e.Check1_Click(c); }); });
  connect(check2_, &QCheckBox::clicked, [this](bool c) { handle([c](CueEditor& e) { e.Check2_Click(c); }); });
  picture1_->on_click([this] { handle([](CueEditor& e) { e.Picture1_Click(); }); });
  slider1_->on_model_change([this](int v) { handle([v](CueEditor& e) { e.Slider1_Change(v); }); });
  connect(command1_, &QPushButton::clicked, [this] { handle([](CueEditor& e) { e.Command1_Click(); }); });
  connect(command2_, &QPushButton::clicked, [this] { handle([](CueEditor& e) { e.Command2_Click(); }); });
  connect(command3_, &QPushButton::clicked, [this] { handle([](CueEditor& e) { e.Command3_Click(); }); });
  connect(command4_, &QPushButton::clicked, [this] { handle([](CueEditor& e) { e.Command4_Click(); }); });
  connect(command5_, &QPushButton::clicked, [this] { handle([](CueEditor& e) { e.Command5_Click(); }); });
  connect(command6_, &QPushButton::clicked, [this] { handle([](CueEditor& e) { e.Command6_Click(); }); });
  resize(760, 480);
}

Window& CueEditorWindow::model() { return editor(); }
CueEditor& CueEditorWindow::editor() { return app_.console().playback_desk().cue_editor(); }

// The first screen with its first line chosen, so the level slider shows.
void CueEditorWindow::prepare_screenshot() {
  handle([](CueEditor& e) {
    e.Open(1);
    if (!e.List2().empty()) e.List2_Click(0);
  });
}

void CueEditorWindow::sync() {
  const CueEditor& e = editor();
  sync::title(this, e.caption());
  sync_lines(list1_, e.List1(), e.List1_index());
  sync::text(text1_, e.Text1());
  sync::text(text2_, e.Text2());
  sync_lines(next_scn_, e.Next_Scn(), e.Next_Scn_index());
  sync::value(screen_delay_, e.Screen_Delay());
  sync::text(delay_label_, std::to_string(e.Screen_Delay()) + " s");
  sync::checked(check1_, e.Check1());
  sync::checked(check2_, e.Check2());
  sync::background(picture1_, e.Picture1(), "QFrame");
  sync_lines(list2_, e.List2(), e.List2_index());
  sync::text(text3_, e.Text3());
  slider1_->set_model_value(e.Slider1());
  sync::enabled(slider1_, e.Slider1_enabled());
  sync::text(text5_, e.Text5());
}

}  // namespace lumaris
