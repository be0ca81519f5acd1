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
  text1_ = new QLineEdit(this);
  text1_->setReadOnly(true);
  text1_->setFocusPolicy(Qt::NoFocus);
  text1_->setMinimumWidth(320);
  layout->addWidget(text1_);
  auto* buttons = new QHBoxLayout;
  command1_ = new QPushButton(QString::fromUtf8(kConnectCaption), this);
  command2_ = new QPushButton(QString::fromUtf8(kControlCaption), this);
  command3_ = new QPushButton(QString::fromUtf8(kCloseCaption), this);
  buttons->addWidget(command1_);
  buttons->addWidget(command2_);
  buttons->addStretch(1);
  buttons->addWidget(command3_);
  layout->addLayout(buttons);
  connect(command1_, &QPushButton::clicked, [this] { app_.handle([&] { setup().Command1_Click(); }); });
  connect(command2_, &QPushButton::clicked, [this] { app_.handle([&] { setup().Command2_Click(); }); });
  connect(command3_, &QPushButton::clicked, [this] { app_.handle([&] { setup().Command3_Click(); }); });
}

Window& BcfSetupWindow::model() { return setup(); }
BcfSetup& BcfSetupWindow::setup() { return app_.console().surface_setup(); }

void BcfSetupWindow::prepare_screenshot() {
  app_.console().main_desk().Menu_Click("bcf2000-setup");
  setup().Command1_Click();
}

void BcfSetupWindow::sync() {
  BcfSetup& s = setup();
  sync::title(this, s.caption());
  sync::text(text1_, s.Text1());
}

}  // namespace lumaris
