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
  connection_box_ = read_only_box(this);
  mode_box_ = read_only_box(this);
  monitor_box_ = read_only_box(this);
  form->addRow(QString::fromUtf8(kConnectionLabel), connection_box_);
  form->addRow(QString::fromUtf8(kModeLabel), mode_box_);
  form->addRow(QString::fromUtf8(kMonitorLabel), monitor_box_);
  layout->addLayout(form);

  auto* steps = new QHBoxLayout;
  previous_mode_button_ = new QPushButton(QString::fromUtf8(kDecCaption), this);
  next_mode_button_ = new QPushButton(QString::fromUtf8(kIncCaption), this);
  steps->addWidget(previous_mode_button_);
  steps->addWidget(next_mode_button_);
  layout->addLayout(steps);
  connect(previous_mode_button_, &QPushButton::clicked, [this] { app_.handle([&] { surface().previous_mode_clicked(); }); });
  connect(next_mode_button_, &QPushButton::clicked, [this] { app_.handle([&] { surface().next_mode_clicked(); }); });
}

Window& BcfWindow::model() { return surface(); }
BCF& BcfWindow::surface() { return app_.console().surface(); }

void BcfWindow::sync() {
  BCF& s = surface();
  sync::title(this, s.caption());
  sync::text(monitor_box_, s.monitor_box());
  sync::text(connection_box_, s.connection_box());
  sync::text(mode_box_, s.mode_box());
  sync::enabled(previous_mode_button_, s.previous_mode_enabled());
  sync::enabled(next_mode_button_, s.next_mode_enabled());
}

}  // namespace lumaris
