#include "app/playback_desk_window.h"

#include <QAction>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTextEdit>
#include <QVBoxLayout>

#include "app/desk_app.h"
#include "app/widgets/colour_box.h"
#include "app/widgets/log_slider_widget.h"
#include "app/widgets/sync.h"
#include "playback/page_controls.h"
#include "playback/playback_panel.h"
#include "playback/playback_desk.h"
#include "playback/screen_panel.h"

namespace lumaris {

namespace {

// A playback button: both mouse buttons go down and up to the model, so a flash
// button lights while held and the right button opens its set-up.
class PlaybackButton : public QPushButton {
 public:
  using Handler = std::function<void(MouseButton)>;
  PlaybackButton(QWidget* parent, Handler press, Handler release)
      : QPushButton(parent), press_(std::move(press)), release_(std::move(release)) {
    setFocusPolicy(Qt::NoFocus);
    setMinimumHeight(36);
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    press_(event->button() == Qt::RightButton ? MouseButton::Right : MouseButton::Left);
    event->accept();
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    release_(event->button() == Qt::RightButton ? MouseButton::Right : MouseButton::Left);
    event->accept();
  }

 private:
  Handler press_;
  Handler release_;
};

// A fader label: a double click opens the fader's set-up.
class FaderLabel : public QLabel {
 public:
  FaderLabel(QWidget* parent, std::function<void()> open) : QLabel(parent), open_(std::move(open)) {
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMinimumWidth(64);
  }

 protected:
  void mouseDoubleClickEvent(QMouseEvent*) override { open_(); }

 private:
  std::function<void()> open_;
};

// A playback fader: the right button opens its set-up instead of moving it.
class PlaybackFader : public LevelSlider {
 public:
  PlaybackFader(QWidget* parent, std::function<void()> open) : LevelSlider(parent), open_(std::move(open)) {}

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() == Qt::RightButton) {
      open_();
      return;
    }
    LevelSlider::mousePressEvent(event);
  }

 private:
  std::function<void()> open_;
};

}  // namespace

QPushButton* PlaybackDeskWindow::plain_button(const QString& caption, QWidget* parent, const QString& tooltip) {
  auto* b = new QPushButton(caption, parent);
  b->setToolTip(tooltip);
  b->setFocusPolicy(Qt::NoFocus);
  return b;
}

PlaybackDeskWindow::PlaybackDeskWindow(DeskApp& app)
    : ToolWindow([this] { handle([](PlaybackDesk& d) { d.Hide(); }); }), app_(app) {
  auto* layout = new QVBoxLayout(this);
  build_menus();
  auto* top = new QHBoxLayout;
  top->addWidget(build_screen_panel());
  auto* right = new QVBoxLayout;
  right->addWidget(build_page_row());
  right->addWidget(build_buttons());
  right->addWidget(build_faders(), 1);
  top->addLayout(right, 1);
  layout->addLayout(top, 1);
  page_text_ = new QTextEdit(this);
  page_text_->setMaximumHeight(110);
  layout->addWidget(page_text_);
  connect(page_text_, &QTextEdit::textChanged, [this] {
    const std::string text = page_text_->toPlainText().toStdString();
    handle([&](PlaybackDesk& d) { d.pages().Page_text_Change(text); });
  });
  layout->addWidget(build_run_row());
  layout->addWidget(build_bottom_row());
  resize(1240, 800);
}

Window& PlaybackDeskWindow::model() { return desk(); }
PlaybackDesk& PlaybackDeskWindow::desk() { return app_.console().playback_desk(); }

void PlaybackDeskWindow::handle(const std::function<void(PlaybackDesk&)>& work) {
  app_.handle([&] { work(desk()); });
}

void PlaybackDeskWindow::build_menus() {
  auto* bar = new QMenuBar(this);
  layout()->setMenuBar(bar);
  std::map<std::string, QMenu*> menus;
  for (const MenuEntry& entry : desk().menu_entries()) {
    QMenu*& menu = menus[entry.menu];
    if (menu == nullptr) menu = bar->addMenu(sync::q(entry.menu));
    QAction* action = menu->addAction(sync::q(entry.caption));
    action->setObjectName(sync::q(entry.name));
    actions_[entry.name] = action;
    const std::string name = entry.name;
    connect(action, &QAction::triggered, [this, name] { handle([&](PlaybackDesk& d) { d.Menu_Click(name); }); });
  }
}

QAction* PlaybackDeskWindow::menu_action(const std::string& name) const {
  const auto it = actions_.find(name);
  return it == actions_.end() ? nullptr : it->second;
}

QWidget* PlaybackDeskWindow::build_screen_panel() {
  auto* panel = new QWidget(this);
  panel->setMaximumWidth(260);
  auto* grid = new QGridLayout(panel);
  screen_sel_ = new QSpinBox(panel);
  screen_sel_->setRange(1, 199);
  screen_num_ = new QLineEdit(panel);
  screen_num_->setReadOnly(true);
  screen_num_->setMaximumWidth(48);
  screen_txt_ = new QLineEdit(panel);
  screen_txt_->setPlaceholderText(QStringLiteral("Screen name"));
  fade_time_ = new LogSliderWidget(desk().screens().Screen_Fade_Time(), panel);
  fade_time_->setToolTip(QStringLiteral("Fade In Time"));
  screen_intxt_ = new QLineEdit(panel);
  screen_intxt_->setToolTip(QStringLiteral("Fade In Time"));
  screen_intxt_->setMaximumWidth(48);
  auto_next_ = new QCheckBox(QStringLiteral("Auto next"), panel);
  instant_ = new QCheckBox(QStringLiteral("Instant"), panel);
  cue_colour_ = new ColourBox(panel);
  cue_colour_->setFixedSize(40, 22);
  screen_prog_ = plain_button(QStringLiteral("Record"), panel);
  screen_recall_ = plain_button(QStringLiteral("Recall"), panel);
  grid->addWidget(new QLabel(QStringLiteral("Screen"), panel), 0, 0);
  grid->addWidget(screen_sel_, 0, 1);
  grid->addWidget(screen_num_, 0, 2);
  grid->addWidget(screen_txt_, 1, 0, 1, 3);
  grid->addWidget(fade_time_, 2, 0, 4, 1);
  grid->addWidget(new QLabel(QStringLiteral("Fade In Time"), panel), 2, 1);
  grid->addWidget(screen_intxt_, 2, 2);
  grid->addWidget(auto_next_, 3, 1, 1, 2);
  grid->addWidget(instant_, 4, 1, 1, 2);
  grid->addWidget(cue_colour_, 5, 1);
  grid->addWidget(screen_prog_, 6, 0);
  grid->addWidget(screen_recall_, 6, 1, 1, 2);
  preset_ = new LevelSlider(panel);
  preset_->setToolTip(QStringLiteral("Preset Channels Main level"));
  main_ = new LevelSlider(panel);
  main_->setToolTip(QStringLiteral("Main Level"));
  grid->addWidget(new QLabel(QStringLiteral("Preset"), panel), 7, 0);
  grid->addWidget(new QLabel(QStringLiteral("Main"), panel), 7, 1);
  grid->addWidget(preset_, 8, 0);
  grid->addWidget(main_, 8, 1);
  grid->setRowStretch(8, 1);

  connect(screen_sel_, &QSpinBox::valueChanged, [this](int v) { handle([v](PlaybackDesk& d) { d.screens().Screen_Num_sel_Change(v); }); });
  connect(screen_txt_, &QLineEdit::textEdited, [this](const QString& text) {
    handle([&](PlaybackDesk& d) { d.screens().screen_txt_Change(text.toStdString()); });
  });
  fade_time_->on_position([this](double p) { handle([p](PlaybackDesk& d) { d.screens().Screen_Fade_Time().Set_From_Position(p); }); });
  fade_time_->on_step([this](double f) { handle([f](PlaybackDesk& d) { d.screens().Screen_Fade_Time().Step_By(f); }); });
  connect(screen_intxt_, &QLineEdit::editingFinished, [this] {
    const std::string text = screen_intxt_->text().toStdString();
    handle([&](PlaybackDesk& d) { d.screens().Screen_intxt_Change(text); });
  });
  connect(auto_next_, &QCheckBox::clicked, [this](bool c) { handle([c](PlaybackDesk& d) { d.screens().Auto_next_Click(c); }); });
  connect(instant_, &QCheckBox::clicked, [this](bool c) { handle([c](PlaybackDesk& d) { d.screens().Screen_instant_box_Click(c); }); });
  cue_colour_->on_click([this] { handle([](PlaybackDesk& d) { d.screens().Cue_Colour_Click(); }); });
  connect(screen_prog_, &QPushButton::clicked, [this] { handle([](PlaybackDesk& d) { d.screens().Screen_Prog_Click(); }); });
  connect(screen_recall_, &QPushButton::clicked, [this] { handle([](PlaybackDesk& d) { d.screens().Screen_Recall_Click(); }); });
  preset_->on_model_change([this](int v) { handle([v](PlaybackDesk& d) { d.Preset_Change(v); }); });
  main_->on_model_change([this](int v) { handle([v](PlaybackDesk& d) { d.Main_Change(v); }); });
  return panel;
}

QWidget* PlaybackDeskWindow::build_page_row() {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  for (int k = 0; k < 2; ++k) {
    dec_page_[k] = plain_button(QStringLiteral("<"), row, QStringLiteral("Previous Page"));
    inc_page_[k] = plain_button(QStringLiteral(">"), row, QStringLiteral("Next Page"));
    connect(dec_page_[k], &QPushButton::clicked, [this] { handle([](PlaybackDesk& d) { d.pages().Dec_Page_Click(); }); });
    connect(inc_page_[k], &QPushButton::clicked, [this] { handle([](PlaybackDesk& d) { d.pages().Inc_Page_Click(); }); });
  }
  page_details_ = new QLineEdit(row);
  page_number_ = new QLineEdit(row);
  page_number_->setReadOnly(true);
  page_number_->setMaximumWidth(32);
  layout->addWidget(dec_page_[0]);
  layout->addWidget(page_number_);
  layout->addWidget(inc_page_[0]);
  layout->addWidget(page_details_, 1);
  layout->addWidget(dec_page_[1]);
  layout->addWidget(inc_page_[1]);
  connect(page_details_, &QLineEdit::textEdited, [this](const QString& text) {
    handle([&](PlaybackDesk& d) { d.pages().Page_Details_Change(text.toStdString()); });
  });
  return row;
}

QWidget* PlaybackDeskWindow::build_buttons() {
  auto* panel = new QWidget(this);
  auto* grid = new QGridLayout(panel);
  grid->setSpacing(3);
  for (int i = 0; i < kButtonsPerPage; ++i) {
    const int row = (i / 8) * 3;
    const int column = i % 8;
    auto press = [this, i](MouseButton m) { handle([&](PlaybackDesk& d) { d.panel().Button_Press(i, m); }); };
    auto release = [this, i](MouseButton m) { handle([&](PlaybackDesk& d) { d.panel().Button_Release(i, m); }); };
    Button& b = buttons_[i];
    b.button = new PlaybackButton(panel, press, release);
    b.function_button = new PlaybackButton(panel, press, release);
    b.function_button->setMinimumHeight(20);
    b.function_button->setToolTip(QStringLiteral("Function"));
    b.lamp = new ColourBox(panel);
    b.lamp->setFixedHeight(8);
    grid->addWidget(b.lamp, row, column);
    grid->addWidget(b.button, row + 1, column);
    grid->addWidget(b.function_button, row + 2, column);
  }
  return panel;
}

QWidget* PlaybackDeskWindow::build_faders() {
  auto* panel = new QWidget(this);
  auto* grid = new QGridLayout(panel);
  for (int i = 0; i < kFadersPerPlaybackPage; ++i) {
    auto open = [this, i] { handle([i](PlaybackDesk& d) { d.panel().Fader_Setup_Click(i); }); };
    Fader& f = faders_[i];
    f.function_label = new FaderLabel(panel, open);
    f.caption = new FaderLabel(panel, open);
    f.slider = new PlaybackFader(panel, open);
    f.step_time_note = new FaderLabel(panel, open);
    grid->addWidget(f.function_label, 0, i);
    grid->addWidget(f.caption, 1, i);
    grid->addWidget(f.slider, 2, i, Qt::AlignHCenter);
    grid->addWidget(f.step_time_note, 3, i);
    f.slider->on_model_change([this, i](int v) { handle([&](PlaybackDesk& d) { d.panel().Fader_Move(i, v); }); });
  }
  grid->setRowStretch(2, 1);
  return panel;
}

QWidget* PlaybackDeskWindow::build_bottom_row() {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  auto* clear_all = plain_button(QStringLiteral("Clear All"), row, QStringLiteral("Clear all Buttons on Desk"));
  auto* clear = plain_button(QStringLiteral("Clear"), row, QStringLiteral("Clear Sub Mixes Faders"));
  status_ = new QLineEdit(row);
  status_->setReadOnly(true);
  status_->setFocusPolicy(Qt::NoFocus);
  layout->addWidget(clear_all);
  layout->addWidget(clear);
  layout->addWidget(status_, 1);
  connect(clear_all, &QPushButton::clicked, [this] { handle([](PlaybackDesk& d) { d.Clear_All(); }); });
  connect(clear, &QPushButton::clicked, [this] { handle([](PlaybackDesk& d) { d.Submix_Clear(); }); });
  return row;
}

void PlaybackDeskWindow::sync() {
  PlaybackDesk& d = desk();
  sync_run_row();
  sync::title(this, d.caption());
  const ScreenPanel& s = d.screens();
  if (screen_sel_->value() != s.Screen_Num_sel()) {
    const QSignalBlocker block(screen_sel_);
    screen_sel_->setValue(s.Screen_Num_sel());
  }
  sync::text(screen_num_, s.Screen_num());
  sync::text(screen_txt_, s.screen_txt());
  sync::text(screen_intxt_, s.screen_intxt());
  sync::checked(auto_next_, s.Auto_next());
  sync::checked(instant_, s.Screen_instant_box());
  sync::background(cue_colour_, s.Cue_Colour(), "QFrame");
  sync::enabled(screen_prog_, s.Screen_Prog_enabled());
  sync::enabled(screen_recall_, s.Screen_Recall_enabled());
  sync::enabled(screen_sel_, s.Screen_Num_sel_enabled());
  fade_time_->sync();
  preset_->set_model_value(d.preset_value());
  main_->set_model_value(d.main_value());

  const PageControls& p = d.pages();
  for (int k = 0; k < 2; ++k) {
    sync::enabled(inc_page_[k], p.Inc_Page_enabled());
    sync::enabled(dec_page_[k], p.Dec_Page_enabled());
  }
  sync::text(page_details_, p.Page_Details());
  sync::text(page_number_, p.Page_Number());
  if (page_text_->toPlainText().toStdString() != p.Page_text()) {
    const QSignalBlocker block(page_text_);
    page_text_->setPlainText(sync::q(p.Page_text()));
  }
  sync::visible(page_text_, p.Page_Text_Shown());

  const PlaybackPanel& panel = d.panel();
  for (int i = 0; i < kButtonsPerPage; ++i) {
    const PlaybackButtonControls& c = panel.buttons()[i];
    sync::text(buttons_[i].button, c.caption);
    sync::background(buttons_[i].button, c.caption_colour, "QPushButton");
    sync::text(buttons_[i].function_button, c.function_caption);
    sync::background(buttons_[i].lamp, c.lamp, "QFrame");
  }
  for (int i = 0; i < kFadersPerPlaybackPage; ++i) {
    const PlaybackFaderControls& c = panel.faders()[i];
    faders_[i].slider->set_model_value(c.fader);
    sync::text(faders_[i].function_label, c.function_caption);
    sync::text(faders_[i].caption, c.caption);
    sync::background(faders_[i].caption, c.caption_colour, "QLabel");
    sync::text(faders_[i].step_time_note, c.step_time_note);
  }
  sync::text(status_, d.Status());
}

}  // namespace lumaris
