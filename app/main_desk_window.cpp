#include "app/main_desk_window.h"

#include <QAction>
#include <algorithm>
#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QTimer>
#include <QVBoxLayout>

#include "app/desk_app.h"
#include "app/key_codes.h"
#include "app/widgets/colour_box.h"
#include "app/widgets/sync.h"

namespace lumaris {

namespace {

LevelSlider* level_slider(QWidget* parent) {
  auto* slider = new LevelSlider(parent);
  slider->setMinimumHeight(180);
  return slider;
}

QLineEdit* box(QWidget* parent, bool read_only = true) {
  auto* edit = new QLineEdit(parent);
  edit->setReadOnly(read_only);
  edit->setAlignment(Qt::AlignCenter);
  edit->setMaximumWidth(44);
  edit->setFocusPolicy(Qt::ClickFocus);
  return edit;
}

QPushButton* small_button(const QString& text, QWidget* parent) {
  auto* button = new QPushButton(text, parent);
  button->setMaximumWidth(44);
  button->setFocusPolicy(Qt::NoFocus);
  return button;
}

}  // namespace

MainDeskWindow::MainDeskWindow(DeskApp& app) : app_(app) {
  auto* central = new QWidget(this);
  auto* layout = new QVBoxLayout(central);
  auto* top = new QHBoxLayout;
  // The channel strips scroll sideways on a narrow screen; the masters and
  // CLEAR stay in reach beside them.
  QWidget* strips = build_strips();
  auto* strip_scroll = new QScrollArea(central);
  strip_scroll->setObjectName(QStringLiteral("channel-strips"));
  strip_scroll->setFrameShape(QFrame::NoFrame);
  strip_scroll->setFocusPolicy(Qt::NoFocus);  // the desk's keys stay with the desk
  strip_scroll->setWidgetResizable(true);
  strip_scroll->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  strip_scroll->setWidget(strips);
  strip_scroll->viewport()->setAutoFillBackground(false);
  strips->setAutoFillBackground(false);
  strip_scroll->setMinimumHeight(strips->minimumSizeHint().height() +
                                 strip_scroll->horizontalScrollBar()->sizeHint().height());
  top->addWidget(strip_scroll, 1);
  top->addWidget(build_masters());
  layout->addLayout(top, 1);
  layout->addWidget(build_submix_row());
  layout->addWidget(build_bottom_row());
  setCentralWidget(central);
  build_menus();
  // Wide enough for every strip where the screen allows (see ScreenFit).
  const QMargins margins = layout->contentsMargins();
  const int unscrolled = top->sizeHint().width() - strip_scroll->sizeHint().width() + strips->sizeHint().width() +
                         margins.left() + margins.right();
  resize(std::max({1500, unscrolled, central->sizeHint().width()}), 560);
}

Window& MainDeskWindow::model() { return desk(); }
MainDesk& MainDeskWindow::desk() { return app_.console().main_desk(); }

QWidget* MainDeskWindow::build_strips() {
  auto* panel = new QWidget(this);
  auto* grid = new QGridLayout(panel);
  grid->setHorizontalSpacing(2);
  grid->setVerticalSpacing(2);
  for (int i = 0; i < MainDesk::kStrips; ++i) {
    Strip& strip = strips_[i];
    strip.name = box(panel);
    strip.level = box(panel);
    strip.max = small_button(QStringLiteral("Max"), panel);
    strip.slider = level_slider(panel);
    strip.min = small_button(QStringLiteral("Min"), panel);
    grid->addWidget(strip.name, 0, i);
    grid->addWidget(strip.level, 1, i);
    grid->addWidget(strip.max, 2, i);
    grid->addWidget(strip.slider, 3, i, Qt::AlignHCenter);
    grid->addWidget(strip.min, 4, i);
    strip.name->installEventFilter(this);
    strip.level->installEventFilter(this);
    strip.slider->installEventFilter(this);
    strip.slider->on_model_change(
        [this, i](int value) { app_.handle([&] { desk().channel_fader_changed(i, value); }); });
    connect(strip.max, &QPushButton::clicked,
            [this, i] { app_.handle([&] { desk().max_clicked(i); }); });
    connect(strip.min, &QPushButton::clicked,
            [this, i] { app_.handle([&] { desk().min_clicked(i); }); });
  }
  return panel;
}

QWidget* MainDeskWindow::build_masters() {
  auto* panel = new QWidget(this);
  auto* grid = new QGridLayout(panel);
  auto add_master = [&](int column, const QString& caption, LevelSlider*& slider) {
    slider = level_slider(panel);
    slider->setToolTip(caption);
    auto* label = new QLabel(caption, panel);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    label->setMaximumWidth(64);
    grid->addWidget(label, 0, column);
    grid->addWidget(slider, 1, column, Qt::AlignHCenter);
  };
  add_master(0, QStringLiteral("Channels Main"), channels_);
  add_master(1, QStringLiteral("Sub Main"), submix_master_);
  add_master(2, QStringLiteral("Main Level"), main_);
  channels_->on_model_change([this](int v) { app_.handle([&] { desk().channels_Change(v); }); });
  submix_master_->on_model_change(
      [this](int v) { app_.handle([&] { desk().Submix_Master_Change(v); }); });
  main_->on_model_change([this](int v) { app_.handle([&] { desk().Main_Change(v); }); });
  clear_all_ = new QPushButton(QStringLiteral("CLEAR"), panel);
  clear_all_->setFocusPolicy(Qt::NoFocus);
  grid->addWidget(clear_all_, 2, 0, 1, 3);
  connect(clear_all_, &QPushButton::clicked, [this] { app_.handle([&] { desk().Clearall_Click(); }); });
  return panel;
}

QWidget* MainDeskWindow::build_submix_row() {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  auto* minus = small_button(QStringLiteral("<"), row);
  minus->setToolTip(QStringLiteral("Dec Sub Selected"));
  submix_number_ = box(row);
  submix_number_->setToolTip(QStringLiteral("Sub Num"));
  auto* plus = small_button(QStringLiteral(">"), row);
  plus->setToolTip(QStringLiteral("Inc Sub Selected"));
  submix_plus_ = plus;
  submix_text_ = new QLineEdit(row);
  submix_text_->setToolTip(QStringLiteral("Sub Text"));
  submix_text_->setMaximumWidth(220);
  sub_colour_ = new ColourBox(row);
  sub_colour_->setToolTip(QStringLiteral("Choose Colour"));
  sub_colour_->setFixedSize(28, 22);
  auto* program = new QPushButton(QStringLiteral("Program"), row);
  program->setToolTip(QStringLiteral("Save Selected Sub"));
  submix_prog_ = program;
  auto* recall = new QPushButton(QStringLiteral("Recal"), row);
  recall->setToolTip(QStringLiteral("Recal Selected Sub"));
  for (QPushButton* button : {program, recall}) button->setFocusPolicy(Qt::NoFocus);
  layout->addWidget(new QLabel(QStringLiteral("Submix"), row));
  layout->addWidget(minus);
  layout->addWidget(submix_number_);
  layout->addWidget(plus);
  layout->addWidget(submix_text_);
  layout->addWidget(sub_colour_);
  layout->addWidget(program);
  layout->addWidget(recall);
  layout->addStretch(1);
  connect(minus, &QPushButton::clicked, [this] { app_.handle([&] { desk().Submix_Minus_Click(); }); });
  connect(plus, &QPushButton::clicked, [this] { app_.handle([&] { desk().Submix_Plus_Click(); }); });
  connect(program, &QPushButton::clicked, [this] { app_.handle([&] { desk().Submix_Prog_Click(); }); });
  connect(recall, &QPushButton::clicked, [this] { app_.handle([&] { desk().Submix_Recal_Click(); }); });
  connect(submix_text_, &QLineEdit::textEdited, [this](const QString& text) {
    app_.handle([&] { desk().Submix_Text_Change(text.toStdString()); });
  });
  sub_colour_->on_click([this] { app_.handle([&] { desk().Sub_colour_Click(); }); });
  return row;
}

QWidget* MainDeskWindow::build_bottom_row() {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  dec_channels_ = new QPushButton(QStringLiteral("<< Channels 1-32"), row);
  inc_channel_ = new QPushButton(QStringLiteral("Channels 33-64 >>"), row);
  sequence_button_ = new QPushButton(QStringLiteral("Sequence Desk"), row);
  playback_button_ = new QPushButton(QStringLiteral("Playback Desk"), row);
  auto* monitor_button = new QPushButton(QStringLiteral("Output Monitor"), row);
  for (QPushButton* button :
       {dec_channels_, inc_channel_, sequence_button_, playback_button_, monitor_button}) {
    button->setFocusPolicy(Qt::NoFocus);
  }
  dmx_lamp_ = new ColourBox(row);
  art_net_lamp_ = new ColourBox(row);
  art_label_ = new QLabel(QStringLiteral("Art-Net"), row);
  art_destination_ = new QLabel(row);
  art_destination_->setObjectName(QStringLiteral("Art_Destination"));
  art_destination_->hide();
  status_ = new QLineEdit(row);
  status_->setReadOnly(true);
  status_->setFocusPolicy(Qt::NoFocus);
  layout->addWidget(dec_channels_);
  layout->addWidget(inc_channel_);
  layout->addWidget(sequence_button_);
  layout->addWidget(playback_button_);
  layout->addWidget(monitor_button);
  layout->addWidget(new QLabel(QStringLiteral("DMX"), row));
  layout->addWidget(dmx_lamp_);
  layout->addWidget(art_label_);
  layout->addWidget(art_net_lamp_);
  layout->addWidget(art_destination_);
  layout->addWidget(status_, 1);
  connect(dec_channels_, &QPushButton::clicked, [this] { app_.handle([&] { desk().Dec_Channels_Click(); }); });
  connect(inc_channel_, &QPushButton::clicked, [this] { app_.handle([&] { desk().Inc_Channel_Click(); }); });
  connect(sequence_button_, &QPushButton::clicked, [this] { app_.handle([&] { desk().sequence_desk_clicked(); }); });
  connect(playback_button_, &QPushButton::clicked, [this] { app_.handle([&] { desk().playback_desk_clicked(); }); });
  connect(monitor_button, &QPushButton::clicked, [this] { app_.handle([&] { desk().output_monitor_clicked(); }); });
  return row;
}

void MainDeskWindow::build_menus() {
  std::map<std::string, QMenu*> menus;
  for (const MenuEntry& entry : desk().menu_entries()) {
    QMenu*& menu = menus[entry.menu];
    if (menu == nullptr) menu = menuBar()->addMenu(sync::q(entry.menu));
    if (entry.name == "reset-desk") menu->addSeparator();
    QAction* action = menu->addAction(sync::q(entry.caption));
    action->setObjectName(sync::q(entry.name));
    actions_[entry.name] = action;
    const std::string name = entry.name;
    connect(action, &QAction::triggered, [this, name] {
      app_.handle([&] { desk().Menu_Click(name); });
      after_menu(name);
    });
    if (const QKeySequence keys = show_file_keys(name); !keys.isEmpty()) action->setShortcut(keys);
    if (name == "load") build_recent_menu(menu);
  }
}

// Filled each time it opens, from this computer's list.
void MainDeskWindow::build_recent_menu(QMenu* file_menu) {
  QMenu* recent = file_menu->addMenu(QStringLiteral("Recent s&hows"));
  recent->setObjectName(QStringLiteral("recent-shows"));
  connect(recent, &QMenu::aboutToShow, [this, recent] {
    recent->clear();
    for (const std::string& path : desk().recent_shows()) {
      QAction* show = recent->addAction(sync::q(path));
      connect(show, &QAction::triggered,
              [this, path] { app_.handle([&] { desk().open_recent_show(path); }); });
    }
    if (recent->isEmpty()) recent->addAction(QStringLiteral("No recent shows"))->setEnabled(false);
  });
}

QAction* MainDeskWindow::menu_action(const std::string& name) const {
  const auto found = actions_.find(name);
  return found == actions_.end() ? nullptr : found->second;
}

void MainDeskWindow::after_menu(const std::string&) {
  if (desk().exit_requested()) QCoreApplication::exit(0);
}

void MainDeskWindow::closeEvent(QCloseEvent* event) {
  bool end = desk().exit_requested();
  if (end) {
    event->accept();
    return;
  }
  app_.handle([&] { end = desk().Form_Unload(); });
  if (end) {
    event->accept();
    QCoreApplication::exit(0);
  } else {
    event->ignore();
  }
}

bool MainDeskWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) {
    // A click on a level box selects its text, so typing replaces the level.
    for (const Strip& strip : strips_) {
      if (watched == strip.level) QTimer::singleShot(0, strip.level, &QLineEdit::selectAll);
    }
    return false;
  }
  const bool double_click = event->type() == QEvent::MouseButtonDblClick;
  const bool right_press = event->type() == QEvent::MouseButtonPress &&
                           static_cast<QMouseEvent*>(event)->button() == Qt::RightButton;
  if (!double_click && !right_press) return false;
  for (int i = 0; i < MainDesk::kStrips; ++i) {
    const Strip& strip = strips_[i];
    const bool opens = (double_click && (watched == strip.level || watched == strip.name)) ||
                       (right_press && (watched == strip.slider || watched == strip.name));
    if (opens) {
      app_.handle([&] { desk().Open_Channel_Properties(i); });
      return true;
    }
  }
  return false;
}

std::vector<DeskWindow::ScreenshotVariant> MainDeskWindow::screenshot_variants() {
  return {{"_page1", [this] { desk().Inc_Channel_Click(); }}};
}

// Keys that no control of the desk used itself (the faders keep their arrow
// keys, the submix label its typing) go to the command line.
void MainDeskWindow::keyPressEvent(QKeyEvent* event) {
  const int code = virtual_key_code(*event);
  if (code == 0) {
    QMainWindow::keyPressEvent(event);
    return;
  }
  app_.handle([&] { desk().Key_Down(code); });
}

void MainDeskWindow::sync() {
  const MainDesk& d = desk();
  sync::title(this, d.title());
  for (int i = 0; i < MainDesk::kStrips; ++i) {
    const ChannelStrip& model = d.strips()[i];
    const Strip& strip = strips_[i];
    strip.slider->set_model_value(model.fader);
    sync::text(strip.level, model.level_box);
    sync::text(strip.name, model.name_box);
    sync::background(strip.name, model.name_box_colour, "QLineEdit");
    sync::background(strip.level, model.level_box_colour, "QLineEdit");
    sync::tooltip(strip.slider, model.fader_tooltip);
    sync::tooltip(strip.level, model.level_box_tooltip);
    sync::tooltip(strip.name, model.name_box_tooltip);
    sync::tooltip(strip.max, model.max_button_tooltip);
    sync::tooltip(strip.min, model.min_button_tooltip);
  }
  channels_->set_model_value(d.channels_value());
  submix_master_->set_model_value(d.submix_master_value());
  main_->set_model_value(d.main_value());
  sync::text(submix_number_, d.submix_number());
  // The model holds what was typed, so the box always follows it, focused or not.
  sync::text(submix_text_, d.Submix_Text());
  sync::background(sub_colour_, d.Sub_colour(), "QFrame");
  sync::enabled(inc_channel_, d.Inc_Channel_enabled());
  sync::enabled(dec_channels_, d.Dec_Channels_enabled());
  sync::enabled(sequence_button_, d.button_enabled("sequence-desk"));
  sync::enabled(playback_button_, d.button_enabled("playback-desk"));
  sync::fill(dmx_lamp_, d.dmx_lamp());
  sync::tooltip(dmx_lamp_, d.dmx_lamp_tooltip());
  sync::fill(art_net_lamp_, d.art_net_lamp());
  sync::tooltip(art_net_lamp_, d.art_net_lamp_tooltip());
  sync::enabled(art_label_, d.Art_Label_enabled());
  sync::text(art_destination_, d.Art_Destination());
  sync::tooltip(art_destination_, d.Art_Destination_ToolTipText());
  art_destination_->setVisible(!d.Art_Destination().empty());
  sync::text(status_, d.Status());
  for (const MenuEntry& entry : d.menu_entries()) {
    if (QAction* action = menu_action(entry.name); action && action->isEnabled() != entry.enabled) {
      action->setEnabled(entry.enabled);
    }
  }
}

}  // namespace lumaris
