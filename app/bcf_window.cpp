#include "app/bcf_window.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/desk_app.h"
#include "app/widgets/sync.h"
#include "surface/bcf.h"

namespace lumaris {

namespace {
constexpr const char* kDecCaption = "Previous Channels";
constexpr const char* kIncCaption = "Next Channels";
constexpr const char* kConnectionLabel = "Connection";
constexpr const char* kModeLabel = "Mode";
constexpr const char* kMonitorLabel = "Surface";

QLineEdit* read_only_box(QWidget* parent) {
  auto* box = new QLineEdit(parent);
  box->setReadOnly(true);
  box->setFocusPolicy(Qt::NoFocus);
  box->setMinimumWidth(240);
  return box;
}
}  // namespace

BcfWindow::BcfWindow(DeskApp& app)
    : ToolWindow([&app] { app.handle([&] { app.console().surface().Hide(); }); }), app_(app) {
  auto* layout = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  text2_ = read_only_box(this);
  text3_ = read_only_box(this);
  text1_ = read_only_box(this);
  form->addRow(QString::fromUtf8(kConnectionLabel), text2_);
  form->addRow(QString::fromUtf8(kModeLabel), text3_);
  form->addRow(QString::fromUtf8(kMonitorLabel), text1_);
  layout->addLayout(form);

  auto* steps = new QHBoxLayout;
  pannel_dec_ = new QPushButton(QString::fromUtf8(kDecCaption), this);
  pannel_inc_ = new QPushButton(QString::fromUtf8(kIncCaption), this);
  steps->addWidget(pannel_dec_);
  steps->addWidget(pannel_inc_);
  layout->addLayout(steps);
  connect(pannel_dec_, &QPushButton::clicked, [this] { app_.handle([&] { surface().Pannel_Dec_Click(); }); });
  connect(pannel_inc_, &QPushButton::clicked, [this] { app_.handle([&] { surface().Pannel_Inc_Click(); }); });
}

Window& BcfWindow::model() { return surface(); }
BCF& BcfWindow::surface() { return app_.console().surface(); }

void BcfWindow::sync() {
  BCF& s = surface();
  sync::title(this, s.caption());
  sync::text(text1_, s.Text1());
  sync::text(text2_, s.Text2());
  sync::text(text3_, s.Text3());
  sync::enabled(pannel_dec_, s.Pannel_Dec_enabled());
  sync::enabled(pannel_inc_, s.Pannel_Inc_enabled());
}

}  // namespace lumaris
