#include "app/bcf_setup_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/desk_app.h"
#include "app/widgets/sync.h"
#include "core/main_desk.h"
#include "surface/bcf_setup.h"

namespace lumaris {

namespace {
constexpr const char* kHint = "Plug in the BCF2000 by USB, then connect.";
constexpr const char* kConnectCaption = "Connect";
constexpr const char* kControlCaption = "BCF2000 Control";
constexpr const char* kCloseCaption = "Close";
}  // namespace

BcfSetupWindow::BcfSetupWindow(DeskApp& app)
    : ToolWindow([&app] { app.handle([&] { app.console().surface_setup().Hide(); }); }), app_(app) {
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel(QString::fromUtf8(kHint), this));
  connection_box_ = new QLineEdit(this);
  connection_box_->setReadOnly(true);
  connection_box_->setFocusPolicy(Qt::NoFocus);
  connection_box_->setMinimumWidth(320);
  layout->addWidget(connection_box_);
  auto* buttons = new QHBoxLayout;
  connect_button_ = new QPushButton(QString::fromUtf8(kConnectCaption), this);
  control_button_ = new QPushButton(QString::fromUtf8(kControlCaption), this);
  close_button_ = new QPushButton(QString::fromUtf8(kCloseCaption), this);
  buttons->addWidget(connect_button_);
  buttons->addWidget(control_button_);
  buttons->addStretch(1);
  buttons->addWidget(close_button_);
  layout->addLayout(buttons);
  connect(connect_button_, &QPushButton::clicked, [this] { app_.handle([&] { setup().connect_clicked(); }); });
  connect(control_button_, &QPushButton::clicked, [this] { app_.handle([&] { setup().control_clicked(); }); });
  connect(close_button_, &QPushButton::clicked, [this] { app_.handle([&] { setup().close_clicked(); }); });
}

Window& BcfSetupWindow::model() { return setup(); }
BcfSetup& BcfSetupWindow::setup() { return app_.console().surface_setup(); }

void BcfSetupWindow::prepare_screenshot() {
  app_.console().main_desk().Menu_Click("bcf2000-setup");
  setup().connect_clicked();
}

void BcfSetupWindow::sync() {
  BcfSetup& s = setup();
  sync::title(this, s.caption());
  sync::text(connection_box_, s.connection_box());
}

}  // namespace lumaris
