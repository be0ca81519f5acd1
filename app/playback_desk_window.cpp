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
#include "playback/run_mode.h"
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

QPushButton* plain_button(const QString& caption, QWidget* parent, const QString& tooltip = {}) {
  auto* b = new QPushButton(caption, parent);
  b->setToolTip(tooltip);
  b->setFocusPolicy(Qt::NoFocus);
  return b;
}

}  // namespace

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
  screen_intxt_->setReadOnly(true);
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
    b.command1 = new PlaybackButton(panel, press, release);
    b.command2 = new PlaybackButton(panel, press, release);
    b.command2->setMinimumHeight(20);
    b.command2->setToolTip(QStringLiteral("Function"));
    b.lamp = new ColourBox(panel);
    b.lamp->setFixedHeight(8);
    grid->addWidget(b.lamp, row, column);
    grid->addWidget(b.command1, row + 1, column);
    grid->addWidget(b.command2, row + 2, column);
  }
  return panel;
}

QWidget* PlaybackDeskWindow::build_faders() {
  auto* panel = new QWidget(this);
  auto* grid = new QGridLayout(panel);
  for (int i = 0; i < kFadersPerPlaybackPage; ++i) {
    auto open = [this, i] { handle([i](PlaybackDesk& d) { d.panel().Fader_Setup_Click(i); }); };
    Fader& f = faders_[i];
    f.text2 = new FaderLabel(panel, open);
    f.text5 = new FaderLabel(panel, open);
    f.slider = new PlaybackFader(panel, open);
    f.text6 = new FaderLabel(panel, open);
    grid->addWidget(f.text2, 0, i);
    grid->addWidget(f.text5, 1, i);
    grid->addWidget(f.slider, 2, i, Qt::AlignHCenter);
    grid->addWidget(f.text6, 3, i);
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

// Run mode: Run/STOP, the two sides A and B, the crossfader (255 = side A up),
// the next screen, Auto Take and the Instant Cues button.
QWidget* PlaybackDeskWindow::build_run_row() {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  run_switch_ = plain_button(QStringLiteral("Run"), row, QStringLiteral("Select Run Mode"));
  run_a_ = new QLabel(row);
  run_a_->setMinimumWidth(140);
  run_a_->setAutoFillBackground(true);
  run_crossfade_ = new QSlider(Qt::Horizontal, row);
  run_crossfade_->setRange(0, 255);
  run_crossfade_->setToolTip(QStringLiteral("CrossFader"));
  run_b_ = new QLabel(row);
  run_b_->setMinimumWidth(140);
  run_b_->setAutoFillBackground(true);
  run_screen_sel_ = new QSpinBox(row);
  run_screen_sel_->setRange(0, 199);
  run_fade_time_ = new QLabel(row);
  run_autotake_ = plain_button(QStringLiteral("Auto Take"), row, QStringLiteral("Auto Screen Change in Run Mode"));
  instant_screens_ = plain_button(QStringLiteral("Instant Cues"), row, QStringLiteral("Select Instant Screen Pannel"));
  layout->addWidget(run_switch_);
  layout->addWidget(run_b_);
  layout->addWidget(run_crossfade_, 1);
  layout->addWidget(run_a_);
  layout->addWidget(run_screen_sel_);
  layout->addWidget(run_fade_time_);
  layout->addWidget(run_autotake_);
  layout->addWidget(instant_screens_);
  connect(run_switch_, &QPushButton::clicked, [this] { handle([](PlaybackDesk& d) { d.run_mode().Run_Switch_Click(); }); });
  connect(run_autotake_, &QPushButton::clicked, [this] { handle([](PlaybackDesk& d) { d.run_mode().Run_Autotake_Click(); }); });
  connect(instant_screens_, &QPushButton::clicked, [this] { handle([](PlaybackDesk& d) { d.Instant_screens_Click(); }); });
  connect(run_crossfade_, &QSlider::valueChanged, [this](int v) { handle([v](PlaybackDesk& d) { d.run_mode().Run_Crossfade_Change(v); }); });
  connect(run_screen_sel_, &QSpinBox::valueChanged, [this](int v) { handle([v](PlaybackDesk& d) { d.run_mode().Run_screen_sel_Change(v); }); });
  return row;
}

// Run mode as the operator meets it in a show: idle with the next screen
// waiting (live side red, next green), a take by hand halfway across (both red),
// then Auto Take carrying that take on (both yellow).
std::vector<DeskWindow::ScreenshotVariant> PlaybackDeskWindow::screenshot_variants() {
  return {
      {"_run", [this] {
         if (!app_.console().store().Run_Mode) desk().run_mode().Run_Switch_Click();
       }},
      {"_hand", [this] { desk().run_mode().Run_Crossfade_Change(128); }},
      {"_auto", [this] { desk().run_mode().Run_Autotake_Click(); }},
  };
}

void PlaybackDeskWindow::sync() {
  PlaybackDesk& d = desk();
  const RunMode& r = d.run_mode();
  sync::text(run_switch_, r.Run_Switch_caption());
  sync::background(run_switch_, r.Run_Switch_colour(), "QPushButton");
  sync::text(run_autotake_, r.Run_Autotake_caption());
  sync::background(run_autotake_, r.Run_Autotake_colour(), "QPushButton");
  sync::text(run_a_, r.Run_A_Num().empty() ? std::string() : "A  " + r.Run_A_Num() + "  " + r.Run_A());
  sync::text(run_b_, r.Run_B_Num().empty() ? std::string() : "B  " + r.Run_B_Num() + "  " + r.Run_B());
  sync::background(run_a_, r.side_a_colour(), "QLabel");
  sync::background(run_b_, r.side_b_colour(), "QLabel");
  sync::value(run_crossfade_, r.Run_Crossfade());
  sync::text(run_fade_time_, r.Run_Fade_Time());
  if (run_screen_sel_->value() != r.Run_screen_sel()) {
    const QSignalBlocker block(run_screen_sel_);
    run_screen_sel_->setValue(r.Run_screen_sel());
  }
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
    sync::text(buttons_[i].command1, c.Command1);
    sync::background(buttons_[i].command1, c.Command1_colour, "QPushButton");
    sync::text(buttons_[i].command2, c.Command2);
    sync::background(buttons_[i].lamp, c.Picture1, "QFrame");
  }
  for (int i = 0; i < kFadersPerPlaybackPage; ++i) {
    const PlaybackFaderControls& c = panel.faders()[i];
    faders_[i].slider->set_model_value(c.Slider1);
    sync::text(faders_[i].text2, c.Text2);
    sync::text(faders_[i].text5, c.Text5);
    sync::background(faders_[i].text5, c.Text5_colour, "QLabel");
    sync::text(faders_[i].text6, c.Text6);
  }
  sync::text(status_, d.Status());
}

}  // namespace lumaris
