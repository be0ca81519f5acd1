// The 24 chase channel columns of the sequence desk: desk channel box, function
// button and indicator for every channel, and for the level channels 0..17 a
// fader with its full and zero buttons.
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "app/sequence_desk_window.h"
#include "app/widgets/colour_box.h"
#include "app/widgets/sync.h"

namespace lumaris {

namespace {

constexpr const char* kFunctionTooltip = " Function Step, fade or Off";

QPushButton* small_button(const QString& caption, const QString& tooltip, QWidget* parent) {
  auto* b = new QPushButton(caption, parent);
  b->setToolTip(tooltip);
  b->setMaximumWidth(40);
  b->setFocusPolicy(Qt::NoFocus);
  return b;
}

}  // namespace

QWidget* SequenceDeskWindow::build_channels() {
  auto* panel = new QWidget(this);
  auto* grid = new QGridLayout(panel);
  grid->setHorizontalSpacing(2);
  grid->setVerticalSpacing(2);
  for (int i = 0; i < kChaseChannels; ++i) {
    Channel& ch = channels_[i];
    auto* number = new QLabel(QString::number(i + 1), panel);
    number->setAlignment(Qt::AlignCenter);
    ch.text = new QLineEdit(panel);
    ch.text->setAlignment(Qt::AlignCenter);
    ch.text->setMaximumWidth(40);
    ch.function = small_button(QStringLiteral("S"), QString::fromLatin1(kFunctionTooltip), panel);
    ch.indicator = new ColourBox(panel);
    ch.indicator->setFixedSize(36, 14);
    grid->addWidget(number, 0, i);
    grid->addWidget(ch.text, 1, i);
    grid->addWidget(ch.function, 2, i);
    grid->addWidget(ch.indicator, 3, i, Qt::AlignHCenter);
    connect(ch.text, &QLineEdit::textEdited, [this, i](const QString& text) {
      handle([&](SequenceDesk& d) { d.channel_box_changed(i, text.toStdString()); });
    });
    connect(ch.function, &QPushButton::clicked, [this, i] { handle([i](SequenceDesk& d) { d.Ch_Function_Click(i); }); });
    if (i >= kLevelChannels) continue;
    ch.full = small_button(QStringLiteral("Full"), QStringLiteral("Full"), panel);
    ch.slider = new LevelSlider(panel);
    ch.slider->setMinimumHeight(160);
    ch.zero = small_button(QStringLiteral("Zero"), QStringLiteral("Zero"), panel);
    grid->addWidget(ch.full, 4, i);
    grid->addWidget(ch.slider, 5, i, Qt::AlignHCenter);
    grid->addWidget(ch.zero, 6, i);
    ch.slider->on_model_change([this, i](int v) { handle([i, v](SequenceDesk& d) { d.fader_changed(i, v); }); });
    connect(ch.full, &QPushButton::clicked, [this, i] { handle([i](SequenceDesk& d) { d.full_clicked(i); }); });
    connect(ch.zero, &QPushButton::clicked, [this, i] { handle([i](SequenceDesk& d) { d.zero_clicked(i); }); });
  }
  grid->setRowStretch(5, 1);
  return panel;
}

void SequenceDeskWindow::sync_channel_steps() {
  const auto& model = desk().channels();
  for (int i = 0; i < kChaseChannels; ++i) {
    const ChaseChannelControls& m = model[i];
    const Channel& ch = channels_[i];
    sync::text(ch.text, m.channel_box);
    sync::enabled(ch.text, m.channel_box_enabled);
    sync::tooltip(ch.text, m.channel_box_tooltip);
    sync::text(ch.function, m.Ch_Function);
    sync::background(ch.function, m.Ch_Function_colour, "QPushButton");
    if (ch.slider == nullptr) continue;
    ch.slider->set_model_value(m.fader);
    sync::enabled(ch.slider, m.level_enabled);
    sync::enabled(ch.full, m.level_enabled);
    sync::enabled(ch.zero, m.level_enabled);
  }
}

// The indicators follow the chase's levels while it runs, ten times a second.
void SequenceDeskWindow::sync_pictures() {
  const auto& model = desk().channels();
  for (int i = 0; i < kChaseChannels; ++i) {
    sync::fill(channels_[i].indicator, model[i].indicator);
    sync::tooltip(channels_[i].indicator, model[i].indicator_tooltip);
  }
}

}  // namespace lumaris
