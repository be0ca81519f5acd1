#include "app/fixture_properties_window.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/desk_app.h"
#include "app/widgets/sync.h"
#include "fixtures/fixture_properties.h"
#include "fixtures/moving_desk.h"

namespace lumaris {

FixturePropertiesWindow::FixturePropertiesWindow(DeskApp& app)
    : ToolWindow([this] { handle([](FixtureProperties& p) { p.Hide(); }); }), app_(app) {
  auto* layout = new QVBoxLayout(this);
  auto* bar = new QMenuBar(this);
  layout->setMenuBar(bar);
  QMenu* file = nullptr;
  for (const MenuEntry& entry : prop().menu_entries()) {
    if (file == nullptr) file = bar->addMenu(sync::q(entry.menu));
    QAction* action = file->addAction(sync::q(entry.caption));
    action->setObjectName(sync::q(entry.name));
    actions_[entry.name] = action;
    const std::string name = entry.name;
    connect(action, &QAction::triggered, [this, name] { handle([&](FixtureProperties& p) { p.Menu_Click(name); }); });
  }

  auto* grid = new QGridLayout;
  layout->addLayout(grid);
  fixture_sel_ = new QComboBox(this);
  fixture_txt_ = edit(&FixtureProperties::Fixture_txt_Change);
  function_sel_ = new QComboBox(this);
  function_txt_ = edit(&FixtureProperties::Function_txt_Change);
  grid->addWidget(new QLabel(QStringLiteral("Fixture"), this), 0, 0);
  grid->addWidget(fixture_sel_, 0, 1);
  grid->addWidget(fixture_txt_, 0, 2);
  grid->addWidget(new QLabel(QStringLiteral("Function"), this), 1, 0);
  grid->addWidget(function_sel_, 1, 1);
  grid->addWidget(function_txt_, 1, 2);
  connect(fixture_sel_, &QComboBox::activated,
          [this](int i) { handle([i](FixtureProperties& p) { p.Fixture_Sel_Click(i); }); });
  connect(function_sel_, &QComboBox::activated,
          [this](int i) { handle([i](FixtureProperties& p) { p.Function_Sel_Click(i); }); });

  auto* buttons = new QGridLayout;
  layout->addLayout(buttons);
  for (int j = 0; j < MovingDesk::kButtonsAB; ++j) {
    auto* b = new QPushButton(this);
    b->setFocusPolicy(Qt::NoFocus);
    b->setCheckable(true);
    b->setMinimumWidth(84);
    buttons->addWidget(b, j % 10, j / 10);
    connect(b, &QPushButton::clicked, [this, j] { handle([j](FixtureProperties& p) { p.move_Click(j); }); });
    presets_.push_back(b);
  }

  auto* fields = new QGridLayout;
  layout->addLayout(fields);
  button_ = edit(&FixtureProperties::Button_Change);
  output_ = edit(&FixtureProperties::Output_Change);
  min_txt_ = edit(&FixtureProperties::min_txt_Change);
  max_txt_ = edit(&FixtureProperties::max_txt_Change);
  output_label_ = new QLabel(QStringLiteral("DMX Output Required"), this);
  min_label_ = new QLabel(QStringLiteral("Min Output"), this);
  max_label_ = new QLabel(QStringLiteral("Max Output"), this);
  enabled_box_ = new QCheckBox(QStringLiteral("Enabled"), this);
  colour_bx_ = new QPushButton(QStringLiteral("Choose Colour"), this);
  close_button_ = new QPushButton(QStringLiteral("Close"), this);
  fields->addWidget(new QLabel(QStringLiteral("Button"), this), 0, 0);
  fields->addWidget(button_, 0, 1);
  fields->addWidget(output_label_, 1, 0);
  fields->addWidget(output_, 1, 1);
  fields->addWidget(enabled_box_, 1, 2);
  fields->addWidget(min_label_, 2, 0);
  fields->addWidget(min_txt_, 2, 1);
  fields->addWidget(max_label_, 3, 0);
  fields->addWidget(max_txt_, 3, 1);
  fields->addWidget(colour_bx_, 4, 0);
  fields->addWidget(close_button_, 4, 2);
  connect(enabled_box_, &QCheckBox::clicked, [this](bool on) { handle([on](FixtureProperties& p) { p.enabled_box_clicked(on); }); });
  connect(colour_bx_, &QPushButton::clicked, [this] { handle([](FixtureProperties& p) { p.colour_bx_Click(); }); });
  connect(close_button_, &QPushButton::clicked, [this] { handle([](FixtureProperties& p) { p.close_clicked(); }); });
}

FixtureProperties& FixturePropertiesWindow::prop() { return app_.console().moving_desk().fixture_prop(); }
Window& FixturePropertiesWindow::model() { return prop(); }

void FixturePropertiesWindow::handle(const std::function<void(FixtureProperties&)>& work) {
  app_.handle([&] { work(prop()); });
}

QLineEdit* FixturePropertiesWindow::edit(void (FixtureProperties::*change)(const std::string&)) {
  auto* e = new QLineEdit(this);
  connect(e, &QLineEdit::textEdited, [this, change](const QString& text) {
    handle([&](FixtureProperties& p) { (p.*change)(text.toStdString()); });
  });
  return e;
}

void FixturePropertiesWindow::prepare_screenshot() {
  handle([](FixtureProperties& p) { p.open_on(0, 0, 0); });
}

void FixturePropertiesWindow::fill(QComboBox* box, const std::vector<std::string>& entries, int current) {
  const QSignalBlocker block(box);
  for (int i = 0; i < static_cast<int>(entries.size()); ++i) {
    if (i >= box->count()) {
      box->addItem(sync::q(entries[i]));
    } else if (box->itemText(i) != sync::q(entries[i])) {
      box->setItemText(i, sync::q(entries[i]));
    }
  }
  if (box->currentIndex() != current) box->setCurrentIndex(current);
}

void FixturePropertiesWindow::sync() {
  FixtureProperties& p = prop();
  sync::title(this, p.caption());
  fill(fixture_sel_, p.Fixture_Sel_entries(), p.fixture());
  fill(function_sel_, p.Function_Sel_entries(), p.function());
  if (!fixture_txt_->hasFocus()) sync::text(fixture_txt_, p.Fixture_txt());
  if (!function_txt_->hasFocus()) sync::text(function_txt_, p.Function_txt());
  const std::vector<std::string> captions = p.button_captions();
  const std::vector<Paint> colours = p.button_colours();
  for (int j = 0; j < static_cast<int>(presets_.size()); ++j) {
    const bool shown = j < static_cast<int>(captions.size());
    sync::visible(presets_[j], shown);
    if (!shown) continue;
    sync::text(presets_[j], captions[j]);
    sync::background(presets_[j], colours[j], "QPushButton");
    sync::checked(presets_[j], j == p.button());
  }
  sync::text(button_, p.Button());
  sync::enabled(button_, p.has_buttons());
  sync::enabled(colour_bx_, p.has_buttons());
  for (QWidget* w : {static_cast<QWidget*>(output_label_), static_cast<QWidget*>(output_),
                     static_cast<QWidget*>(enabled_box_)}) {
    sync::visible(w, p.Output_visible());
  }
  for (QWidget* w : {static_cast<QWidget*>(min_label_), static_cast<QWidget*>(min_txt_),
                     static_cast<QWidget*>(max_label_), static_cast<QWidget*>(max_txt_)}) {
    sync::visible(w, p.range_visible());
  }
  sync::text(output_, p.Output());
  sync::text(min_txt_, p.min_txt());
  sync::text(max_txt_, p.max_txt());
  sync::checked(enabled_box_, p.enabled_box());
}

}  // namespace lumaris
