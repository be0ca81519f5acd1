#include "app/function_setup_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "app/desk_app.h"
#include "app/widgets/colour_box.h"
#include "app/widgets/sync.h"
#include "playback/button_setup.h"
#include "playback/fader_setup.h"
#include "playback/playback_desk.h"

namespace lumaris {

namespace {

const std::array<const char*, 3> kColourNames = {"Red", "Green", "Blue"};

QPushButton* small_button(const QString& caption, const QString& tooltip, QWidget* parent) {
  auto* b = new QPushButton(caption, parent);
  b->setToolTip(tooltip);
  b->setFocusPolicy(Qt::NoFocus);
  return b;
}

}  // namespace

template <typename Work>
void FunctionSetupWindow::handle(Work work) {
  app_.handle([&] {
    PlaybackDesk& desk = app_.console().playback_desk();
    if (kind_ == Kind::Buttons) {
      work(desk.button_setup());
    } else {
      work(desk.fader_setup());
    }
  });
}

FunctionSetupWindow::FunctionSetupWindow(DeskApp& app, Kind kind)
    : ToolWindow([this] { handle([](auto& w) { w.Hide(); }); }), app_(app), kind_(kind) {
  setWindowModality(Qt::ApplicationModal);
  auto* layout = new QVBoxLayout(this);
  auto* top = new QHBoxLayout;
  fader_num_ = new QLineEdit(this);
  fader_num_->setReadOnly(true);
  fader_num_->setMaximumWidth(48);
  f_name_ = new QLineEdit(this);
  fun_set_ = new QComboBox(this);
  const auto entries = kind == Kind::Buttons ? app.console().playback_desk().button_setup().Fun_set_entries()
                                             : app.console().playback_desk().fader_setup().Fun_set_entries();
  for (const std::string& entry : entries) fun_set_->addItem(sync::q(entry));
  element_label_ = new QLabel(kind == Kind::Buttons ? QStringLiteral("Button") : QStringLiteral("Fader"), this);
  top->addWidget(element_label_);
  top->addWidget(fader_num_);
  top->addWidget(f_name_, 1);
  top->addWidget(fun_set_);
  layout->addLayout(top);
  if (kind == Kind::Faders) {
    sequence_fun_ = new QComboBox(this);
    for (const std::string& entry : FaderSetup::Sequence_Fun_entries()) sequence_fun_->addItem(sync::q(entry));
    layout->addWidget(sequence_fun_);
    connect(sequence_fun_, &QComboBox::activated, [this](int i) {
      app_.handle([&] { app_.console().playback_desk().fader_setup().Sequence_Fun_Click(i); });
    });
  }

  value_row_ = new QWidget(this);
  auto* value_layout = new QHBoxLayout(value_row_);
  minus_ = small_button(QStringLiteral("-"), QStringLiteral("Decrease Chase Step"), value_row_);
  number_ = new QLineEdit(value_row_);
  number_->setReadOnly(true);
  number_->setMaximumWidth(48);
  plus_ = small_button(QStringLiteral("+"), QStringLiteral("Increase Chase Step"), value_row_);
  value_layout->addWidget(new QLabel(QStringLiteral("Number"), value_row_));
  value_layout->addWidget(minus_);
  value_layout->addWidget(number_);
  value_layout->addWidget(plus_);
  value_layout->addStretch(1);
  layout->addWidget(value_row_);

  channel_row_ = new QWidget(this);
  auto* channel_layout = new QHBoxLayout(channel_row_);
  channel_layout->addWidget(new QLabel(QStringLiteral("Channels"), channel_row_));
  for (int k = 0; k < 3; ++k) {
    channels_[k] = new QLineEdit(channel_row_);
    channels_[k]->setMaximumWidth(48);
    channel_layout->addWidget(channels_[k]);
    connect(channels_[k], &QLineEdit::editingFinished, [this, k] {
      const std::string text = channels_[k]->text().toStdString();
      handle([&](auto& w) { w.Channel_Change(k, text); });
    });
  }
  channel_layout->addStretch(1);
  layout->addWidget(channel_row_);

  colour_rows_ = new QWidget(this);
  auto* colour_grid = new QGridLayout(colour_rows_);
  for (int k = 0; k < 3; ++k) {
    colour_grid->addWidget(new QLabel(QString::fromLatin1(kColourNames[k]), colour_rows_), k, 0);
    colour_channels_[k] = new QLineEdit(colour_rows_);
    colour_channels_[k]->setMaximumWidth(48);
    components_[k] = new QScrollBar(Qt::Horizontal, colour_rows_);
    components_[k]->setRange(0, 255);
    component_labels_[k] = new QLabel(colour_rows_);
    colour_grid->addWidget(colour_channels_[k], k, 1);
    colour_grid->addWidget(components_[k], k, 2);
    colour_grid->addWidget(component_labels_[k], k, 3);
    connect(colour_channels_[k], &QLineEdit::editingFinished, [this, k] {
      const std::string text = colour_channels_[k]->text().toStdString();
      handle([&](auto& w) { w.Colour_Channel_Change(k, text); });
    });
    connect(components_[k], &QScrollBar::valueChanged, [this, k](int v) { handle([&](auto& w) { w.Component_Change(k, v); }); });
  }
  colour_box_ = new ColourBox(colour_rows_);
  colour_box_->setFixedSize(48, 48);
  colour_grid->addWidget(colour_box_, 0, 4, 3, 1);
  colour_box_->on_click([this] { handle([](auto& w) { w.Colour_box_Click(); }); });
  layout->addWidget(colour_rows_);

  level_box_ = new QWidget(this);
  auto* level_layout = new QHBoxLayout(level_box_);
  level_fader_ = new LevelSlider(level_box_);
  level_fader_->setMinimumHeight(120);
  level_layout->addWidget(new QLabel(QStringLiteral("Level"), level_box_));
  level_layout->addWidget(level_fader_);
  level_readout_ = new QLabel(level_box_);
  level_readout_->setMinimumWidth(32);
  level_layout->addWidget(level_readout_);
  level_layout->addStretch(1);
  layout->addWidget(level_box_);
  level_fader_->on_model_change([this](int v) { handle([v](auto& w) { w.level_fader_changed(v); }); });

  if (kind == Kind::Buttons) {
    latch_ = new QCheckBox(QStringLiteral("Latch Button"), this);
    preset_col_ = new QCheckBox(QStringLiteral("Preset Colour ?"), this);
    layout->addWidget(latch_);
    layout->addWidget(preset_col_);
    auto setup = [this]() -> ButtonSetup& { return app_.console().playback_desk().button_setup(); };
    connect(latch_, &QCheckBox::clicked, [this, setup](bool c) { app_.handle([&] { setup().Latch_Click(c); }); });
    connect(preset_col_, &QCheckBox::clicked, [this, setup](bool c) { app_.handle([&] { setup().Preset_Col_Click(c); }); });
  }

  auto* bottom = new QHBoxLayout;
  previous_button_ = small_button(QStringLiteral("<"), QStringLiteral("Previous Channels"), this);
  next_button_ = small_button(QStringLiteral(">"), QStringLiteral("Next Channels"), this);
  ok_ = small_button(QStringLiteral("OK"), QString(), this);
  auto* cancel = small_button(QStringLiteral("Cancel"), QString(), this);
  bottom->addWidget(previous_button_);
  bottom->addWidget(next_button_);
  bottom->addStretch(1);
  bottom->addWidget(ok_);
  bottom->addWidget(cancel);
  layout->addLayout(bottom);

  connect(f_name_, &QLineEdit::textEdited, [this](const QString& text) {
    handle([&](auto& w) { w.F_Name_Change(text.toStdString()); });
  });
  connect(fun_set_, &QComboBox::activated, [this](int i) { handle([i](auto& w) { w.Fun_set_Click(i); }); });
  connect(plus_, &QPushButton::clicked, [this] { handle([](auto& w) { w.Plus_Click(); }); });
  connect(minus_, &QPushButton::clicked, [this] { handle([](auto& w) { w.Minus_Click(); }); });
  connect(previous_button_, &QPushButton::clicked, [this] { handle([](auto& w) { w.previous_clicked(); }); });
  connect(next_button_, &QPushButton::clicked, [this] { handle([](auto& w) { w.next_clicked(); }); });
  connect(ok_, &QPushButton::clicked, [this] { handle([](auto& w) { w.OK_Click(); }); });
  connect(cancel, &QPushButton::clicked, [this] { handle([](auto& w) { w.Cancel_Click(); }); });
  resize(420, 460);
}

Window& FunctionSetupWindow::model() {
  PlaybackDesk& desk = app_.console().playback_desk();
  if (kind_ == Kind::Buttons) return desk.button_setup();
  return desk.fader_setup();
}

std::string FunctionSetupWindow::name() const {
  return kind_ == Kind::Buttons ? "button-setup" : "fader-setup";
}

void FunctionSetupWindow::prepare_screenshot() {
  handle([](auto& w) { w.Open(0); });
}

void FunctionSetupWindow::sync() {
  auto show = [this](auto& w) {
    sync::title(this, w.caption());
    sync::text(fader_num_, w.Fader_Num());
    sync::text(level_readout_, w.level_readout());
    sync::text(f_name_, w.F_Name());
    if (fun_set_->currentIndex() != w.Fun_set()) {
      const QSignalBlocker block(fun_set_);
      fun_set_->setCurrentIndex(w.Fun_set());
    }
    const auto layout = w.layout();
    sync::visible(value_row_, layout.value);
    sync::visible(level_box_, layout.level);
    sync::visible(channel_row_, layout.channels);
    sync::visible(colour_rows_, layout.colour);
    sync::text(number_, w.Number());
    for (int k = 0; k < 3; ++k) {
      sync::text(channels_[k], w.Channel(k));
      sync::text(colour_channels_[k], w.Colour_Channel(k));
      sync::value(components_[k], w.Component(k));
      sync::text(component_labels_[k], w.Component_Label(k));
    }
    level_fader_->set_model_value(w.level_fader());
    sync::background(colour_box_, w.Colour_box(), "QFrame");
    sync::enabled(previous_button_, w.previous_enabled());
    sync::enabled(next_button_, w.next_enabled());
  };
  PlaybackDesk& desk = app_.console().playback_desk();
  if (kind_ == Kind::Buttons) {
    ButtonSetup& w = desk.button_setup();
    show(w);
    sync::checked(latch_, w.Latch());
    sync::checked(preset_col_, w.Preset_Col());
    sync::visible(preset_col_, w.Fun_set() == kFunctionColour);
  } else {
    FaderSetup& w = desk.fader_setup();
    show(w);
    if (sequence_fun_->currentIndex() != w.Sequence_Fun()) {
      const QSignalBlocker block(sequence_fun_);
      sequence_fun_->setCurrentIndex(w.Sequence_Fun());
    }
    sync::visible(sequence_fun_, w.Fun_set() == kFunctionSequence);
  }
}

}  // namespace lumaris
