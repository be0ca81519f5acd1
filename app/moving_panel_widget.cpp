#include "app/moving_panel_widget.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/desk_app.h"
#include "app/widgets/colour_box.h"
#include "app/widgets/level_slider.h"
#include "app/widgets/sync.h"
#include "fixtures/moving_desk.h"

namespace lumaris {

namespace {

constexpr const char* kFamilyNames[] = {"A", "B", "C", "D"};

}  // namespace

MovingPanelWidget::MovingPanelWidget(DeskApp& app, QWidget* parent) : QWidget(parent), app_(app) {
  auto* layout = new QGridLayout(this);
  layout->setContentsMargins(4, 0, 4, 0);
  fixture_sel_ = new QComboBox(this);
  fixture_sel_->setToolTip(QString::fromLatin1(MovingDesk::kFixtureSelTooltip));
  layout->addWidget(fixture_sel_, 0, 0, 1, 3);
  connect(fixture_sel_, &QComboBox::activated,
          [this](int i) { app_.handle([&] { desk().Fixture_Sel_Click(i); }); });
  layout->addWidget(build_family(0), 1, 0, 2, 1);
  layout->addWidget(build_family(1), 1, 1, 2, 1);
  layout->addWidget(build_family(2), 1, 2);
  layout->addWidget(build_family(3), 2, 2);
  layout->addWidget(build_sliders(), 3, 0, 1, 3);

  popup_ = new QMenu(this);
  QAction* properties = popup_->addAction(QStringLiteral("Properties"));
  properties->setObjectName(QStringLiteral("fixture-properties"));
  connect(properties, &QAction::triggered, [this] { app_.handle([&] { desk().fixture_properties_clicked(); }); });
}

MovingDesk& MovingPanelWidget::desk() { return app_.console().moving_desk(); }

QWidget* MovingPanelWidget::build_family(int k) {
  auto* box = new QGroupBox(QString::fromLatin1(kFamilyNames[k]), this);
  auto* grid = new QGridLayout(box);
  grid->setSpacing(2);
  function_txt_[k] = new QLabel(box);
  grid->addWidget(function_txt_[k], 0, 0, 1, 4);
  const int count = MovingDesk::buttons_of(k);
  const int rows = k < 2 ? 10 : count;
  for (int j = 0; j < count; ++j) {
    Preset preset;
    preset.button = new QPushButton(box);
    preset.button->setObjectName(QStringLiteral("move%1_%2").arg(k + 1).arg(j));
    preset.button->setFocusPolicy(Qt::NoFocus);
    preset.button->setMinimumWidth(76);
    preset.button->setContextMenuPolicy(Qt::CustomContextMenu);
    preset.indicator = new ColourBox(box);
    preset.indicator->setFixedSize(10, 10);
    const int row = 1 + j % rows;
    const int column = 2 * (j / rows);
    grid->addWidget(preset.button, row, column);
    grid->addWidget(preset.indicator, row, column + 1);
    connect(preset.button, &QPushButton::clicked, [this, k, j] { app_.handle([&] { desk().move_Click(k, j); }); });
    QPushButton* button = preset.button;
    connect(button, &QPushButton::customContextMenuRequested, [this, k, j, button](const QPoint& at) {
      app_.handle([&] { desk().move_RightClick(k, j); });
      popup_->popup(button->mapToGlobal(at));
    });
    families_[k].push_back(preset);
  }
  return box;
}

QWidget* MovingPanelWidget::build_sliders() {
  auto* panel = new QWidget(this);
  auto* grid = new QGridLayout(panel);
  const char* captions[] = {"C", "D", "Set Level Required", "Select Movement"};
  for (int n = 0; n < kMovingSliders; ++n) {
    auto* slider = new LevelSlider(panel);
    slider->setToolTip(QString::fromLatin1(captions[n]));
    slider->setMinimumHeight(150);
    auto* label = new QLabel(QString::fromLatin1(captions[n]), panel);
    label->setWordWrap(true);
    label->setMaximumWidth(70);
    label->setAlignment(Qt::AlignCenter);
    grid->addWidget(label, 0, n);
    grid->addWidget(slider, 1, n, Qt::AlignHCenter);
    const auto which = static_cast<MovingSlider>(n);
    slider->on_model_change([this, which](int v) { app_.handle([&] { desk().slider_changed(which, v); }); });
    sliders_[n] = slider;
  }
  pad_ = new XyPad(app_, panel);
  x_text_ = new QLineEdit(panel);
  y_text_ = new QLineEdit(panel);
  for (QLineEdit* edit : {x_text_, y_text_}) {
    edit->setReadOnly(true);
    edit->setMaximumWidth(44);
    edit->setFocusPolicy(Qt::NoFocus);
  }
  auto* texts = new QHBoxLayout;
  texts->addWidget(new QLabel(QStringLiteral("X"), panel));
  texts->addWidget(x_text_);
  texts->addWidget(new QLabel(QStringLiteral("Y"), panel));
  texts->addWidget(y_text_);
  texts->addStretch(1);
  grid->addWidget(pad_, 1, 4);
  grid->addLayout(texts, 2, 4);
  return panel;
}

void MovingPanelWidget::sync() {
  MovingDesk& d = desk();
  const std::vector<std::string> entries = d.Fixture_Sel_entries();
  for (int i = 0; i < static_cast<int>(entries.size()); ++i) {
    if (i >= fixture_sel_->count()) {
      fixture_sel_->addItem(sync::q(entries[i]));
    } else if (fixture_sel_->itemText(i) != sync::q(entries[i])) {
      fixture_sel_->setItemText(i, sync::q(entries[i]));
    }
  }
  if (fixture_sel_->currentIndex() != d.Cur_Fixture()) {
    const QSignalBlocker block(fixture_sel_);
    fixture_sel_->setCurrentIndex(d.Cur_Fixture());
  }
  for (int k = 0; k < kFixtureButtonFunctions; ++k) {
    sync::text(function_txt_[k], d.Function_txt(k));
    const std::vector<PresetButton>& model = d.buttons(k);
    for (std::size_t j = 0; j < model.size(); ++j) {
      const Preset& p = families_[k][j];
      sync::text(p.button, model[j].caption);
      sync::background(p.button, model[j].colour, "QPushButton");
      sync::enabled(p.button, model[j].enabled);
      sync::background(p.indicator, model[j].indicator, "QFrame");
    }
  }
  for (int n = 0; n < kMovingSliders; ++n) {
    const auto which = static_cast<MovingSlider>(n);
    sliders_[n]->set_model_value(d.slider(which));
    sync::enabled(sliders_[n], d.slider_enabled(which));
  }
  sync::text(x_text_, d.X_text());
  sync::text(y_text_, d.Y_text());
}

XyPad::XyPad(DeskApp& app, QWidget* parent) : QWidget(parent), app_(app) {
  setFixedSize(kSide + 2 * kMargin, kSide + 2 * kMargin);
  setToolTip(QStringLiteral("Select Movement"));
  app_.console().moving_desk().set_pad({kMargin, kMargin, kSide, kSide});
}

void XyPad::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  const QRect frame(kMargin, kMargin, kSide, kSide);
  painter.fillRect(frame, QColor(20, 20, 28));
  painter.setPen(QColor(90, 90, 110));
  painter.drawLine(frame.center().x(), frame.top(), frame.center().x(), frame.bottom());
  painter.drawLine(frame.left(), frame.center().y(), frame.right(), frame.center().y());
  painter.setPen(QColor(200, 200, 200));
  painter.drawRect(frame.adjusted(0, 0, -1, -1));
}

void XyPad::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const QPointF at = event->position();
  app_.handle([&] { app_.console().moving_desk().Form_MouseDown(at.x(), at.y()); });
}

void XyPad::mouseMoveEvent(QMouseEvent* event) {
  const QPointF at = event->position();
  const bool held = (event->buttons() & Qt::LeftButton) != 0;
  app_.handle([&] { app_.console().moving_desk().Form_MouseMove(at.x(), at.y(), held); });
}

}  // namespace lumaris
