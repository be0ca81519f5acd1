#include "app/project_info_window.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/desk_app.h"
#include "app/widgets/sync.h"

namespace lumaris {

namespace {

QLineEdit* display_box(QWidget* parent) {
  auto* box = new QLineEdit(parent);
  box->setReadOnly(true);
  box->setFocusPolicy(Qt::NoFocus);
  box->setFixedWidth(110);
  return box;
}

}  // namespace

ProjectInfoWindow::ProjectInfoWindow(DeskApp& app)
    : ToolWindow([&app] { app.handle([&] { app.console().project_info().CancelButton_Click(); }); }),
      app_(app) {
  auto* layout = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  prj_name_ = new QLineEdit(this);
  prj_name_->setMinimumWidth(280);
  prj_date_ = display_box(this);
  prj_version_ = display_box(this);
  project_text_ = new QPlainTextEdit(this);
  project_text_->setMinimumHeight(120);
  form->addRow(QStringLiteral("Name"), prj_name_);
  form->addRow(QStringLiteral("Date"), prj_date_);
  form->addRow(QStringLiteral("Version"), prj_version_);
  form->addRow(QStringLiteral("Text"), project_text_);
  layout->addLayout(form);

  auto* buttons = new QHBoxLayout;
  ok_ = new QPushButton(QStringLiteral("OK"), this);
  auto* cancel = new QPushButton(QStringLiteral("Cancel"), this);
  buttons->addStretch(1);
  buttons->addWidget(ok_);
  buttons->addWidget(cancel);
  layout->addLayout(buttons);

  connect(prj_name_, &QLineEdit::textEdited, [this](const QString& text) {
    app_.handle([&] { info().Prj_Name_Change(text.toStdString()); });
  });
  connect(project_text_, &QPlainTextEdit::textChanged, [this] {
    app_.handle([&] { info().project_text_changed(project_text_->toPlainText().toStdString()); });
  });
  connect(ok_, &QPushButton::clicked, [this] { app_.handle([&] { info().OKButton_Click(); }); });
  connect(cancel, &QPushButton::clicked, [this] { app_.handle([&] { info().CancelButton_Click(); }); });
}

Window& ProjectInfoWindow::model() { return info(); }
ProjectInfo& ProjectInfoWindow::info() { return app_.console().project_info(); }

void ProjectInfoWindow::prepare_screenshot() {
  info().Form_Load();
  info().Show();
}

void ProjectInfoWindow::sync() {
  const ProjectInfo& p = info();
  sync::title(this, p.caption());
  sync::text(prj_name_, p.Prj_Name());
  sync::text(prj_date_, p.Prj_Date());
  sync::text(prj_version_, p.Prj_Version());
  const QString text = sync::q(p.project_text());
  if (project_text_->toPlainText() != text) {
    const QSignalBlocker block(project_text_);
    project_text_->setPlainText(text);
  }
}

}  // namespace lumaris
