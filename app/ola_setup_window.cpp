#include "app/ola_setup_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/desk_app.h"
#include "app/widgets/sync.h"
#include "core/main_desk.h"

namespace lumaris {

OlaSetupWindow::OlaSetupWindow(DeskApp& app)
    : ToolWindow([&app] { app.handle([&] { app.console().ola_setup().Hide(); }); }), app_(app) {
  auto* layout = new QVBoxLayout(this);
  auto* row = new QHBoxLayout;
  row->addWidget(new QLabel(QStringLiteral("olad universe"), this));
  universe_ = new QLineEdit(this);
  universe_->setMaximumWidth(110);
  set_ = new QPushButton(QStringLiteral("Set"), this);
  enable_ = new QPushButton(this);
  enable_->setMinimumWidth(96);
  row->addWidget(universe_);
  row->addWidget(set_);
  row->addWidget(enable_);
  layout->addLayout(row);
  status_ = new QLabel(this);
  status_->setMinimumWidth(420);
  status_->setWordWrap(true);
  layout->addWidget(status_);
  close_ = new QPushButton(QStringLiteral("Close"), this);
  layout->addWidget(close_, 0, Qt::AlignRight);

  connect(universe_, &QLineEdit::textEdited, [this](const QString& text) {
    app_.handle([&] { config().Universe_Change(text.toStdString()); });
  });
  auto apply = [this] { app_.handle([&] { config().Universe_Set_Click(); }); };
  connect(set_, &QPushButton::clicked, apply);
  connect(universe_, &QLineEdit::returnPressed, apply);
  connect(enable_, &QPushButton::clicked, [this] { app_.handle([&] { config().Enable_Click(); }); });
  connect(close_, &QPushButton::clicked, [this] { app_.handle([&] { config().Close_Click(); }); });
}

Window& OlaSetupWindow::model() { return config(); }
OlaSetup& OlaSetupWindow::config() { return app_.console().ola_setup(); }

void OlaSetupWindow::prepare_screenshot() { app_.console().main_desk().Menu_Click("ola-setup"); }

void OlaSetupWindow::sync() {
  OlaSetup& c = config();
  sync::title(this, c.caption());
  sync::text(universe_, c.Universe());
  sync::text(enable_, c.Enable_Caption());
  sync::background(enable_, c.Enable_Colour(), "QPushButton");
  sync::text(status_, c.Status());
}

}  // namespace lumaris
