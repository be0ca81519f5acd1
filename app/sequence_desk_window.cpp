#include "app/sequence_desk_window.h"

#include <QAction>
#include <algorithm>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "app/desk_app.h"
#include "app/moving_panel_widget.h"
#include "app/widgets/colour_box.h"
#include "app/widgets/log_slider_widget.h"
#include "app/widgets/prog_bar_widget.h"
#include "app/widgets/sync.h"
#include "sequence/chase_runtime.h"

namespace lumaris {

namespace {

QPushButton* button(const QString& caption, const QString& tooltip, QWidget* parent) {
  auto* b = new QPushButton(caption, parent);
  b->setToolTip(tooltip);
  b->setFocusPolicy(Qt::NoFocus);
  return b;
}

QLineEdit* display(QWidget* parent, const QString& tooltip) {
  auto* edit = new QLineEdit(parent);
  edit->setReadOnly(true);
  edit->setAlignment(Qt::AlignCenter);
  edit->setMaximumWidth(40);
  edit->setToolTip(tooltip);
  edit->setFocusPolicy(Qt::NoFocus);
  return edit;
}

}  // namespace

SequenceDeskWindow::SequenceDeskWindow(DeskApp& app)
    : ToolWindow([this] { handle([](SequenceDesk& d) { d.Hide(); }); }), app_(app) {
  auto* layout = new QVBoxLayout(this);
  build_menus(this);
  layout->addWidget(build_top_row());
  auto* middle = new QHBoxLayout;
  middle->addWidget(build_channels(), 1);
  middle->addWidget(build_times());
  moving_panel_ = new MovingPanelWidget(app_, this);
  moving_panel_->setVisible(false);  // hidden the first time the desk is shown
  middle->addWidget(moving_panel_);
  layout->addLayout(middle, 1);
  layout->addWidget(build_bottom_row());
  resize(1280, 560);
}

Window& SequenceDeskWindow::model() { return desk(); }
SequenceDesk& SequenceDeskWindow::desk() { return app_.console().sequence_desk(); }

void SequenceDeskWindow::handle(const std::function<void(SequenceDesk&)>& work) {
  app_.handle([&] { work(desk()); });
}

QWidget* SequenceDeskWindow::build_top_row() {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  chase_sel_ = new QComboBox(row);
  chase_sel_->setToolTip(QStringLiteral("Select Chase"));
  chase_sel_->setMinimumWidth(160);
  chase_name_ = new QLineEdit(row);
  chase_name_->setMaximumWidth(200);
  chase_colour_ = new ColourBox(row);
  chase_colour_->setFixedSize(28, 22);
  steps_ = display(row, QStringLiteral("Number Of steps in Current Chase"));
  auto* add = button(QStringLiteral("+"), QStringLiteral("Increase Number of Steps"), row);
  auto* subtract = button(QStringLiteral("-"), QStringLiteral("Decrease Number of Steps"), row);
  step_display_ = display(row, QStringLiteral("Current Chase Step"));
  auto* minus = button(QStringLiteral("<"), QStringLiteral("Decrease Chase Step"), row);
  chase_plus_ = button(QStringLiteral(">"), QStringLiteral("Increase Chase Step"), row);
  for (QPushButton* b : {add, subtract, minus, chase_plus_}) b->setMaximumWidth(28);
  layout->addWidget(chase_sel_);
  layout->addWidget(new QLabel(QStringLiteral("Sequence Name"), row));
  layout->addWidget(chase_name_);
  layout->addWidget(chase_colour_);
  layout->addSpacing(16);
  layout->addWidget(new QLabel(QStringLiteral("Steps"), row));
  layout->addWidget(subtract);
  layout->addWidget(steps_);
  layout->addWidget(add);
  layout->addSpacing(16);
  layout->addWidget(new QLabel(QStringLiteral("Step"), row));
  layout->addWidget(minus);
  layout->addWidget(step_display_);
  layout->addWidget(chase_plus_);
  layout->addStretch(1);
  connect(chase_sel_, &QComboBox::activated, [this](int i) { handle([i](SequenceDesk& d) { d.Chase_Sel_Click(i); }); });
  connect(chase_name_, &QLineEdit::textEdited, [this](const QString& text) {
    handle([&](SequenceDesk& d) { d.Chase_Name_Change(text.toStdString()); });
  });
  chase_colour_->on_click([this] { handle([](SequenceDesk& d) { d.Chase_Colour_Sel_Click(); }); });
  connect(add, &QPushButton::clicked, [this] { handle([](SequenceDesk& d) { d.Steps_Add_Click(); }); });
  connect(subtract, &QPushButton::clicked, [this] { handle([](SequenceDesk& d) { d.Steps_subtract_Click(); }); });
  connect(minus, &QPushButton::clicked, [this] { handle([](SequenceDesk& d) { d.Chase_Minus_Click(); }); });
  connect(chase_plus_, &QPushButton::clicked, [this] { handle([](SequenceDesk& d) { d.Chase_Plus_Click(); }); });
  return row;
}

QWidget* SequenceDeskWindow::build_times() {
  auto* panel = new QWidget(this);
  auto* grid = new QGridLayout(panel);
  auto add_time = [&](int column, const QString& caption, LogSlider& model, LogSliderWidget*& slider,
                      QLineEdit*& text) {
    slider = new LogSliderWidget(model, panel);
    slider->setToolTip(caption);
    auto* label = new QLabel(caption, panel);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    label->setMaximumWidth(70);
    text = new QLineEdit(panel);
    text->setAlignment(Qt::AlignCenter);
    text->setToolTip(caption);
    text->setMaximumWidth(64);
    grid->addWidget(label, 0, column);
    grid->addWidget(slider, 1, column);
    grid->addWidget(text, 2, column);
  };
  add_time(0, QStringLiteral("Step Duration Time"), desk().speed_slider(), speed_slider_, speed_text_);
  add_time(1, QStringLiteral("Fade In Time"), desk().fade_slider(), fade_slider_, fade_text_);
  speed_slider_->on_position([this](double p) { handle([p](SequenceDesk& d) { d.speed_slider().Set_From_Position(p); }); });
  fade_slider_->on_position([this](double p) { handle([p](SequenceDesk& d) { d.fade_slider().Set_From_Position(p); }); });
  speed_slider_->on_step([this](double f) { handle([f](SequenceDesk& d) { d.speed_slider().Step_By(f); }); });
  fade_slider_->on_step([this](double f) { handle([f](SequenceDesk& d) { d.fade_slider().Step_By(f); }); });
  // Typed seconds go to the slider as a hand would move it; a refused text
  // shows the step's time again once editing ends.
  connect(speed_text_, &QLineEdit::editingFinished, [this] {
    const std::string text = speed_text_->text().toStdString();
    handle([&](SequenceDesk& d) { d.speed_slider().Set_From_Text(text); });
  });
  connect(fade_text_, &QLineEdit::editingFinished, [this] {
    const std::string text = fade_text_->text().toStdString();
    handle([&](SequenceDesk& d) { d.fade_slider().Set_From_Text(text); });
  });

  master_fader_ = new LevelSlider(panel);
  master_fader_->setToolTip(QStringLiteral("Main Level"));
  auto* main_label = new QLabel(QStringLiteral("Main Level"), panel);
  main_label->setAlignment(Qt::AlignCenter);
  grid->addWidget(main_label, 0, 2);
  grid->addWidget(master_fader_, 1, 2, Qt::AlignHCenter);
  master_fader_->on_model_change([this](int v) { handle([v](SequenceDesk& d) { d.master_fader_changed(v); }); });

  go_ = button(QStringLiteral("Go"), QStringLiteral("Go / Stop On selected Chase"), panel);
  go_->setMinimumHeight(40);
  live_mode_ = new QCheckBox(QStringLiteral("Live Mode"), panel);
  live_mode_->setToolTip(QStringLiteral("Show Output Live"));
  // Flat bars drawn straight from the runtime's bars: they move on every level
  // tick, and a styled progress bar costs several times as much to paint.
  auto bar = [&](const ProgBar& model, const QString& tooltip) {
    auto* b = new ProgBarWidget(model, panel);
    b->setFixedHeight(12);
    b->setToolTip(tooltip);
    return b;
  };
  fade_bar_ = bar(desk().runtime().Fade_Bar(), QStringLiteral("Fade in Position"));
  step_bar_ = bar(desk().runtime().Step_Bar(), QStringLiteral("Step Position"));
  grid->addWidget(go_, 3, 0, 1, 3);
  grid->addWidget(live_mode_, 4, 0, 1, 3);
  grid->addWidget(fade_bar_, 5, 0, 1, 3);
  grid->addWidget(step_bar_, 6, 0, 1, 3);
  grid->setRowStretch(1, 1);
  connect(go_, &QPushButton::clicked, [this] { handle([](SequenceDesk& d) { d.Chase_Go_Button_Click(); }); });
  connect(live_mode_, &QCheckBox::clicked, [this](bool on) { handle([on](SequenceDesk& d) { d.Live_Mode_Sel_Click(on); }); });
  return panel;
}

QWidget* SequenceDeskWindow::build_bottom_row() {
  auto* panel = new QWidget(this);
  auto* grid = new QGridLayout(panel);
  auto check = [&](const QString& caption, int row, int column, void (SequenceDesk::*click)(bool)) {
    auto* box = new QCheckBox(caption, panel);
    box->setFocusPolicy(Qt::NoFocus);
    grid->addWidget(box, row, column);
    connect(box, &QCheckBox::clicked, [this, click](bool on) { handle([&](SequenceDesk& d) { (d.*click)(on); }); });
    return box;
  };
  function_all_ = button(QStringLiteral("off"), QStringLiteral("Function of all channels"), panel);
  grid->addWidget(function_all_, 0, 0);
  connect(function_all_, &QPushButton::clicked, [this] { handle([](SequenceDesk& d) { d.Ch_Function_All_Click(); }); });
  global_fade_sw_ = check(QStringLiteral("Function on all steps"), 1, 0, &SequenceDesk::Global_fade_sw_Click);
  auto_increment_ =
      check(QStringLiteral("Auto Increment of Desk Channels"), 2, 0, &SequenceDesk::auto_increment_clicked);
  global_speed_ = check(QStringLiteral("Apply Ssame speed to all steps"), 0, 1, &SequenceDesk::Global_Speed_Click);
  global_fade_ = check(QStringLiteral("Apply same fade to all steps"), 1, 1, &SequenceDesk::Global_fade_Click);
  speed_fade_lock_ =
      check(QStringLiteral("Apply same fade and speed to all steps"), 2, 1, &SequenceDesk::Speed_Fade_Lock_Click);
  loop_box_ = check(QStringLiteral("Loop Mode"), 0, 2, &SequenceDesk::Loop_Box_Click);
  loop_times_ = new QScrollBar(Qt::Horizontal, panel);
  loop_times_->setRange(SequenceDesk::kLoopTimesMin, SequenceDesk::kLoopTimesMax);
  loop_times_->setMinimumWidth(120);
  loop_times_txt_ = display(panel, QStringLiteral("Times"));
  auto* times = new QHBoxLayout;
  times->addWidget(new QLabel(QStringLiteral("Times"), panel));
  times->addWidget(loop_times_);
  times->addWidget(loop_times_txt_);
  grid->addLayout(times, 1, 2);
  connect(loop_times_, &QScrollBar::valueChanged,
          [this](int v) { handle([v](SequenceDesk& d) { d.Loop_Times_Change(v); }); });

  struct Action {
    const char* caption;
    const char* tooltip;
    void (SequenceDesk::*click)();
  };
  const Action actions[] = {
      {"Copy", "Copy Chase Step", &SequenceDesk::Command_Copy_Click},
      {"Paste", "Paste Copied Chase Step", &SequenceDesk::Command_Paste_Click},
      {"Insert", "Insert New Chase Step", &SequenceDesk::Insert_Click},
      {"Remove", "Remove Chase Step", &SequenceDesk::Remove_Step_Click},
      {"Clear", "Clear Fader Settings", &SequenceDesk::clear_faders_clicked},
      {"Shift +", "Shift +", &SequenceDesk::Shift_Pos_Click},
      {"Shift -", "Shift -", &SequenceDesk::Shift_Neg_Click},
  };
  auto* edits = new QHBoxLayout;
  for (const Action& a : actions) {
    auto* b = button(QString::fromLatin1(a.caption), QString::fromLatin1(a.tooltip), panel);
    edits->addWidget(b);
    const auto click = a.click;
    connect(b, &QPushButton::clicked, [this, click] { handle([&](SequenceDesk& d) { (d.*click)(); }); });
  }
  show_moving_ = button(QStringLiteral("Show Moving"), QStringLiteral("Show Changing fixture desk"), panel);
  edits->addWidget(show_moving_);
  connect(show_moving_, &QPushButton::clicked, [this] { handle([](SequenceDesk& d) { d.Show_Moving_Click(); }); });
  grid->addLayout(edits, 3, 0, 1, 3);
  grid->setColumnStretch(3, 1);
  return panel;
}

void SequenceDeskWindow::build_menus(QWidget* owner) {
  auto* bar_widget = new QMenuBar(owner);
  owner->layout()->setMenuBar(bar_widget);
  std::map<std::string, QMenu*> menus;
  for (const MenuEntry& entry : desk().menu_entries()) {
    QMenu*& menu = menus[entry.menu];
    if (menu == nullptr) menu = bar_widget->addMenu(sync::q(entry.menu));
    QAction* action = menu->addAction(sync::q(entry.caption));
    action->setObjectName(sync::q(entry.name));
    action->setEnabled(entry.enabled);
    actions_[entry.name] = action;
    const std::string name = entry.name;
    connect(action, &QAction::triggered, [this, name] { handle([&](SequenceDesk& d) { d.Menu_Click(name); }); });
  }
}

QAction* SequenceDeskWindow::menu_action(const std::string& name) const {
  const auto found = actions_.find(name);
  return found == actions_.end() ? nullptr : found->second;
}

void SequenceDeskWindow::sync() {
  for (int part = 0; part < kSyncParts; ++part) sync_part(part);
}

void SequenceDeskWindow::sync_part(int part) {
  switch (part) {
    case kRunning:
      sync_running();
      break;
    case kPictures:
      sync_pictures();
      break;
    case kSteps:
      sync_steps();
      break;
    default:
      sync_rest();
      break;
  }
}

void SequenceDeskWindow::sync_running() {
  const ChaseRuntime& run = desk().runtime();
  master_fader_->set_model_value(run.master_fader());
  sync::text(go_, run.Chase_Go_Button());
  sync::background(go_, run.Chase_Go_Button_colour(), "QPushButton");
  sync::checked(live_mode_, run.Live_Mode_Sel());
  sync::enabled(live_mode_, run.Live_Mode_Sel_enabled());
  fade_bar_->sync();
  step_bar_->sync();
}

void SequenceDeskWindow::sync_steps() {
  SequenceDesk& d = desk();
  sync::text(steps_, d.Steps());
  sync::text(step_display_, d.Step_Display());
  sync_channel_steps();
  sync::text(function_all_, d.Ch_Function_All());
  speed_slider_->sync();
  fade_slider_->sync();
  sync::text(speed_text_, d.Speed_Text());
  sync::text(fade_text_, d.Fade_Text());
  sync::checked(global_speed_, d.Global_Speed());
  sync::enabled(global_speed_, d.Global_Speed_enabled());
  sync::checked(global_fade_, d.Global_fade());
  sync::enabled(global_fade_, d.Global_fade_enabled());
  sync::text(loop_times_txt_, d.Loop_Times_txt());
}

void SequenceDeskWindow::sync_rest() {
  SequenceDesk& d = desk();
  sync::title(this, d.caption());
  sync::items(chase_sel_, d.Chase_Sel_entries());
  sync::current(chase_sel_, d.Cur_Chase());
  if (!chase_name_->hasFocus()) sync::text(chase_name_, d.Chase_Name());
  sync::background(chase_colour_, d.Chase_Colour_Sel(), "QFrame");
  sync::checked(global_fade_sw_, d.Global_fade_sw());
  sync::checked(auto_increment_, d.auto_increment());
  sync::checked(speed_fade_lock_, d.Speed_Fade_Lock());
  sync::checked(loop_box_, d.Loop_Box());
  sync::value(loop_times_, d.Loop_Times());
  sync::enabled(loop_times_, d.Loop_Times_enabled());
  sync::enabled(loop_times_txt_, d.Loop_Times_enabled());
  for (const MenuEntry& entry : d.menu_entries()) {
    if (QAction* action = menu_action(entry.name)) sync::enabled(action, entry.enabled);
  }
  sync::text(show_moving_, d.Show_Moving());
  sync::enabled(show_moving_, d.Show_Moving_enabled());
  // The window widens by the panel when it shows and narrows again when it hides.
  const bool shown = d.Moving_Shown();
  if (moving_panel_->isVisibleTo(this) != shown) {
    if (shown) narrow_size_ = size();
    moving_panel_->setVisible(shown);
    layout()->activate();  // the new minimum first, or the resize is refused
    if (shown) {
      resize(std::max(width(), narrow_size_.width() + moving_panel_->sizeHint().width()),
             std::max(height(), sizeHint().height()));
    } else {
      resize(narrow_size_);
    }
  }
  if (shown) moving_panel_->sync();
}

std::vector<DeskWindow::ScreenshotVariant> SequenceDeskWindow::screenshot_variants() {
  return {{"_moving", [this] {
             if (!desk().Moving_Shown()) desk().Show_Moving_Click();
           }}};
}

}  // namespace lumaris
