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
  // Modal wherever it is opened from (the Cues menu, an instant cue), as the
  // button and fader set-up windows are: it edits the screens the desk plays.
  setWindowModality(Qt::ApplicationModal);
  auto* layout = new QHBoxLayout(this);

  screen_list_ = new QListWidget(this);
  screen_list_->setToolTip(QStringLiteral("List Of Screens select One with Mouse"));
  screen_list_->setMinimumWidth(200);
  layout->addWidget(screen_list_);

  auto* right = new QVBoxLayout;
  auto* settings = new QGridLayout;
  name_box_ = new QLineEdit(this);
  name_box_->setToolTip(QStringLiteral("Screen name"));
  fade_time_box_ = new QLineEdit(this);
  fade_time_box_->setMaximumWidth(64);
  next_scn_ = new QComboBox(this);
  next_scn_->setToolTip(QStringLiteral("Next Screen to go to in run mode"));
  screen_delay_ = new QScrollBar(Qt::Horizontal, this);
  screen_delay_->setRange(0, CueEditor::kDelayMax);
  delay_label_ = new QLabel(this);
  delay_label_->setMinimumWidth(40);
  instant_box_ = new QCheckBox(QStringLiteral("Instant"), this);
  instant_box_->setToolTip(QStringLiteral("Dose selected screen appear on instant Pannel"));
  auto_box_ = new QCheckBox(QStringLiteral("Auto"), this);
  colour_box_ = new ColourBox(this);
  colour_box_->setFixedSize(40, 22);
  colour_box_->setToolTip(QStringLiteral("Colour"));
  settings->addWidget(new QLabel(QStringLiteral("Name"), this), 0, 0);
  settings->addWidget(name_box_, 0, 1, 1, 3);
  settings->addWidget(new QLabel(QStringLiteral("Fade In Time"), this), 1, 0);
  settings->addWidget(fade_time_box_, 1, 1);
  settings->addWidget(new QLabel(QStringLiteral("Next Screen"), this), 2, 0);
  settings->addWidget(next_scn_, 2, 1, 1, 3);
  settings->addWidget(new QLabel(QStringLiteral("Delay"), this), 3, 0);
  settings->addWidget(screen_delay_, 3, 1, 1, 2);
  settings->addWidget(delay_label_, 3, 3);
  settings->addWidget(instant_box_, 4, 1);
  settings->addWidget(auto_box_, 4, 2);
  settings->addWidget(colour_box_, 4, 3);
  settings->setColumnStretch(2, 1);
  right->addLayout(settings);

  auto* contents = new QHBoxLayout;
  content_list_ = new QListWidget(this);
  content_list_->setToolTip(QStringLiteral("Cue Function"));
  contents->addWidget(content_list_, 1);
  auto* level = new QVBoxLayout;
  item_label_ = new QLabel(this);
  item_label_->setAlignment(Qt::AlignCenter);
  item_label_->setMinimumWidth(120);
  level_fader_ = new LevelSlider(this);
  level_box_ = new QLineEdit(this);
  level_box_->setReadOnly(true);
  level_box_->setMaximumWidth(64);
  level->addWidget(item_label_);
  level->addWidget(level_fader_, 1, Qt::AlignHCenter);
  level->addWidget(level_box_, 0, Qt::AlignHCenter);
  contents->addLayout(level);
  right->addLayout(contents, 1);

  auto* row = new QHBoxLayout;
  copy_button_ = command(QStringLiteral("Copy"), QStringLiteral("Copy the selected screen"), this);
  paste_button_ = command(QStringLiteral("Paste"), QStringLiteral("Paste into the selected screen"), this);
  insert_button_ = command(QStringLiteral("Insert"), QStringLiteral("Insert a clear screen here"), this);
  delete_button_ = command(QStringLiteral("Delete"), QStringLiteral("Delete the selected screen"), this);
  update_button_ = command(QStringLiteral("Update"), QStringLiteral("Update the seleceted screen with a new next screen"), this);
  save_and_exit_button_ = command(QStringLiteral("Save and Exit"), {}, this);
  for (QPushButton* b : {copy_button_, paste_button_, insert_button_, delete_button_}) row->addWidget(b);
  row->addStretch(1);
  row->addWidget(update_button_);
  row->addWidget(save_and_exit_button_);
  right->addLayout(row);
  layout->addLayout(right, 1);

  connect(screen_list_, &QListWidget::currentRowChanged, [this](int i) {
    if (i >= 0) handle([i](CueEditor& e) { e.screen_list_clicked(i); });
  });
  connect(content_list_, &QListWidget::currentRowChanged, [this](int i) {
    if (i >= 0) handle([i](CueEditor& e) { e.content_list_clicked(i); });
  });
  connect(name_box_, &QLineEdit::textEdited, [this](const QString& t) {
    handle([&](CueEditor& e) { e.name_box_changed(t.toStdString()); });
  });
  connect(fade_time_box_, &QLineEdit::textEdited, [this](const QString& t) {
    handle([&](CueEditor& e) { e.fade_time_box_changed(t.toStdString()); });
  });
  connect(next_scn_, &QComboBox::currentIndexChanged, [this](int i) { handle([i](CueEditor& e) { e.Next_Scn_Click(i); }); });
  connect(screen_delay_, &QScrollBar::valueChanged, [this](int v) { handle([v](CueEditor& e) { e.Screen_Delay_Change(v); }); });
  connect(instant_box_, &QCheckBox::clicked, [this](bool c) { handle([c](CueEditor& e) { e.instant_box_clicked(c); }); });
  connect(auto_box_, &QCheckBox::clicked, [this](bool c) { handle([c](CueEditor& e) { e.auto_box_clicked(c); }); });
  colour_box_->on_click([this] { handle([](CueEditor& e) { e.colour_box_clicked(); }); });
  level_fader_->on_model_change([this](int v) { handle([v](CueEditor& e) { e.level_fader_changed(v); }); });
  connect(save_and_exit_button_, &QPushButton::clicked, [this] { handle([](CueEditor& e) { e.save_and_exit_clicked(); }); });
  connect(copy_button_, &QPushButton::clicked, [this] { handle([](CueEditor& e) { e.copy_clicked(); }); });
  connect(update_button_, &QPushButton::clicked, [this] { handle([](CueEditor& e) { e.update_clicked(); }); });
  connect(paste_button_, &QPushButton::clicked, [this] { handle([](CueEditor& e) { e.paste_clicked(); }); });
  connect(insert_button_, &QPushButton::clicked, [this] { handle([](CueEditor& e) { e.insert_clicked(); }); });
  connect(delete_button_, &QPushButton::clicked, [this] { handle([](CueEditor& e) { e.delete_clicked(); }); });
  resize(760, 480);
}

Window& CueEditorWindow::model() { return editor(); }
CueEditor& CueEditorWindow::editor() { return app_.console().playback_desk().cue_editor(); }

// The first screen with its first line chosen, so the level slider shows.
void CueEditorWindow::prepare_screenshot() {
  handle([](CueEditor& e) {
    e.Open(1);
    if (!e.content_list().empty()) e.content_list_clicked(0);
  });
}

void CueEditorWindow::sync() {
  const CueEditor& e = editor();
  sync::title(this, e.caption());
  sync_lines(screen_list_, e.screen_list(), e.screen_list_index());
  sync::text(name_box_, e.name_box());
  sync::text(fade_time_box_, e.fade_time_box());
  sync_lines(next_scn_, e.Next_Scn(), e.Next_Scn_index());
  sync::value(screen_delay_, e.Screen_Delay());
  sync::text(delay_label_, std::to_string(e.Screen_Delay()) + " s");
  sync::checked(instant_box_, e.instant_box());
  sync::checked(auto_box_, e.auto_box());
  sync::background(colour_box_, e.colour_box(), "QFrame");
  sync_lines(content_list_, e.content_list(), e.content_list_index());
  sync::text(item_label_, e.item_label());
  level_fader_->set_model_value(e.level_fader());
  sync::enabled(level_fader_, e.level_fader_enabled());
  sync::text(level_box_, e.level_box());
}

}  // namespace lumaris
