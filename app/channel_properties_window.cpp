#include "app/channel_properties_window.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/desk_app.h"
#include "app/widgets/colour_box.h"
#include "app/widgets/level_slider.h"
#include "app/widgets/sync.h"

namespace lumaris {

namespace {

QLineEdit* read_only_box(QWidget* parent) {
  auto* box = new QLineEdit(parent);
  box->setReadOnly(true);
  box->setFocusPolicy(Qt::NoFocus);
  box->setAlignment(Qt::AlignCenter);
  box->setFixedWidth(44);
  return box;
}

}  // namespace

ChannelPropertiesWindow::ChannelPropertiesWindow(DeskApp& app)
    : ToolWindow([&app] { app.handle([&] { app.console().channel_properties().OK_Click(); }); }),
      app_(app) {
  auto* layout = new QHBoxLayout(this);
  auto* left = new QVBoxLayout;
  left->addWidget(build_fields());
  left->addWidget(build_slots());
  auto* ok = new QPushButton(QStringLiteral("OK"), this);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(ok);
  left->addLayout(buttons);
  layout->addLayout(left, 1);

  auto* fader = new QVBoxLayout;
  level_fader_ = new LevelSlider(this);
  level_fader_->setMinimumHeight(200);
  level_fader_->setToolTip(QStringLiteral("Channel level"));
  fader->addWidget(new QLabel(QStringLiteral("Level"), this), 0, Qt::AlignHCenter);
  fader->addWidget(level_fader_, 1, Qt::AlignHCenter);
  layout->addLayout(fader);

  connect(ok, &QPushButton::clicked, [this] { app_.handle([&] { properties().OK_Click(); }); });
  level_fader_->on_model_change(
      [this](int value) { app_.handle([&] { properties().level_fader_changed(value); }); });
}

QWidget* ChannelPropertiesWindow::build_fields() {
  auto* panel = new QWidget(this);
  auto* form = new QFormLayout(panel);
  auto* channel_row = new QHBoxLayout;
  previous_channel_ = new QPushButton(QStringLiteral("<"), panel);
  show_channel_ = read_only_box(panel);
  next_channel_ = new QPushButton(QStringLiteral(">"), panel);
  for (QPushButton* button : {previous_channel_, next_channel_}) button->setFixedWidth(32);
  channel_row->addWidget(previous_channel_);
  channel_row->addWidget(show_channel_);
  channel_row->addWidget(next_channel_);
  channel_row->addStretch(1);
  form->addRow(QStringLiteral("Channel"), channel_row);

  show_name_ = new QLineEdit(panel);
  show_name_->setFixedWidth(80);
  form->addRow(QStringLiteral("Short name"), show_name_);
  description_ = new QLineEdit(panel);
  description_->setMinimumWidth(220);
  form->addRow(QStringLiteral("Description"), description_);

  auto* colour_row = new QHBoxLayout;
  colour_box_ = new ColourBox(panel);
  colour_box_->setFixedSize(44, 22);
  auto* colour_button = new QPushButton(QStringLiteral("Colour"), panel);
  colour_row->addWidget(colour_box_);
  colour_row->addWidget(colour_button);
  colour_row->addStretch(1);
  form->addRow(QStringLiteral("Colour"), colour_row);

  main_f_ = new QCheckBox(QStringLiteral("Follows Main fader"), panel);
  cross_f_ = new QCheckBox(QStringLiteral("Follow Crossfade"), panel);
  form->addRow(main_f_);
  form->addRow(cross_f_);

  connect(previous_channel_, &QPushButton::clicked, [this] { app_.handle([&] { properties().previous_channel_clicked(); }); });
  connect(next_channel_, &QPushButton::clicked, [this] { app_.handle([&] { properties().next_channel_clicked(); }); });
  connect(show_name_, &QLineEdit::textEdited, [this](const QString& text) {
    app_.handle([&] { properties().Show_Name_Change(text.toStdString()); });
  });
  connect(description_, &QLineEdit::textEdited, [this](const QString& text) {
    app_.handle([&] { properties().Channel_Description_Change(text.toStdString()); });
  });
  connect(description_, &QLineEdit::editingFinished,
          [this] { app_.handle([&] { properties().Channel_Description_Validate(); }); });
  connect(colour_button, &QPushButton::clicked, [this] { app_.handle([&] { properties().Colour_button_Click(); }); });
  colour_box_->on_click([this] { app_.handle([&] { properties().colour_box_clicked(); }); });
  connect(main_f_, &QCheckBox::clicked,
          [this](bool checked) { app_.handle([&] { properties().Main_F_Click(checked); }); });
  connect(cross_f_, &QCheckBox::clicked,
          [this](bool checked) { app_.handle([&] { properties().Cross_F_Click(checked); }); });
  return panel;
}

QWidget* ChannelPropertiesWindow::build_slots() {
  auto* panel = new QWidget(this);
  auto* row = new QHBoxLayout(panel);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(new QLabel(QStringLiteral("On DMX channels"), panel));
  for (QLineEdit*& box : show_dmx_) {
    box = read_only_box(panel);
    row->addWidget(box);
  }
  row->addStretch(1);
  return panel;
}

Window& ChannelPropertiesWindow::model() { return properties(); }
ChannelProperties& ChannelPropertiesWindow::properties() { return app_.console().channel_properties(); }

void ChannelPropertiesWindow::prepare_screenshot() {
  app_.console().store().Edit_Channel = 0;
  properties().Refresh();
  properties().Show();
}

void ChannelPropertiesWindow::sync() {
  const ChannelProperties& p = properties();
  sync::title(this, p.caption());
  sync::text(show_channel_, p.Show_Channel());
  sync::text(show_name_, p.Show_Name());
  sync::text(description_, p.Channel_Description());
  sync::background(colour_box_, p.colour_box(), "QFrame");
  sync::checked(main_f_, p.Main_F());
  sync::checked(cross_f_, p.Cross_F());
  sync::enabled(previous_channel_, p.previous_channel_enabled());
  sync::enabled(next_channel_, p.next_channel_enabled());
  for (int i = 0; i < ChannelProperties::kShownSlots; ++i) sync::text(show_dmx_[i], p.Show_DMX(i));
  level_fader_->set_model_value(p.level_fader());
}

}  // namespace lumaris
