#include "app/sacn_setup_window.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/desk_app.h"
#include "app/widgets/sync.h"
#include "core/main_desk.h"

namespace lumaris {

SacnSetupWindow::SacnSetupWindow(DeskApp& app)
    : ToolWindow([&app] { app.handle([&] { app.console().sacn_setup().Hide(); }); }), app_(app) {
  auto* layout = new QVBoxLayout(this);

  auto* rows = new QGroupBox(QStringLiteral("sACN Output"), this);
  auto* grid = new QGridLayout(rows);
  grid->addWidget(new QLabel(QStringLiteral("Universe (1-63999)"), rows), 0, 0);
  for (int i = 0; i < SacnSetup::kRows; ++i) {
    const auto at = static_cast<std::size_t>(i);
    universe_[at] = new QLineEdit(rows);
    universe_[at]->setAlignment(Qt::AlignCenter);
    universe_[at]->setMaximumWidth(72);
    enable_[at] = new QPushButton(rows);
    enable_[at]->setMinimumWidth(96);
    grid->addWidget(universe_[at], i + 1, 0);
    grid->addWidget(enable_[at], i + 1, 1);
    connect(universe_[at], &QLineEdit::textEdited, [this, i](const QString& text) {
      app_.handle([&] { config().Universe_Change(i, text.toStdString()); });
    });
    connect(enable_[at], &QPushButton::clicked,
            [this, i] { app_.handle([&] { config().Enable_Click(i); }); });
  }
  layout->addWidget(rows);

  auto* stream = new QGroupBox(QStringLiteral("Stream"), this);
  auto* form = new QFormLayout(stream);
  auto field = [&](QLineEdit*& edit, const char* label, const char* hint,
                   void (SacnSetup::*change)(const std::string&)) {
    edit = new QLineEdit(stream);
    edit->setPlaceholderText(QString::fromUtf8(hint));
    form->addRow(QString::fromUtf8(label), edit);
    connect(edit, &QLineEdit::textEdited, [this, change](const QString& text) {
      app_.handle([&] { (config().*change)(text.toStdString()); });
    });
    connect(edit, &QLineEdit::returnPressed, [this] { app_.handle([&] { config().Apply_Click(); }); });
  };
  field(source_name_, "Source name", "Lumaris", &SacnSetup::Source_Name_Change);
  field(priority_, "Priority (0-200)", "100", &SacnSetup::Priority_Change);
  field(destination_, "Destination", "multicast 239.255.hi.lo", &SacnSetup::Destination_Change);
  field(interface_, "Interface address", "the computer chooses", &SacnSetup::Interface_Change);
  apply_ = new QPushButton(QStringLiteral("Apply"), stream);
  form->addRow(QString(), apply_);
  connect(apply_, &QPushButton::clicked, [this] { app_.handle([&] { config().Apply_Click(); }); });
  layout->addWidget(stream);

  status_ = new QLabel(this);
  status_->setMinimumWidth(420);
  layout->addWidget(status_);
  close_ = new QPushButton(QStringLiteral("Close"), this);
  layout->addWidget(close_, 0, Qt::AlignRight);
  connect(close_, &QPushButton::clicked, [this] { app_.handle([&] { config().Close_Click(); }); });
}

Window& SacnSetupWindow::model() { return config(); }
SacnSetup& SacnSetupWindow::config() { return app_.console().sacn_setup(); }

void SacnSetupWindow::prepare_screenshot() { app_.console().main_desk().Menu_Click("sacn-setup"); }

void SacnSetupWindow::sync() {
  SacnSetup& c = config();
  sync::title(this, c.caption());
  for (int i = 0; i < SacnSetup::kRows; ++i) {
    const auto at = static_cast<std::size_t>(i);
    sync::text(universe_[at], c.Universe(i));
    sync::text(enable_[at], c.Enable_Caption(i));
    sync::background(enable_[at], c.Enable_Colour(i), "QPushButton");
  }
  sync::text(source_name_, c.Source_Name());
  sync::text(priority_, c.Priority());
  sync::text(destination_, c.Destination());
  sync::text(interface_, c.Interface());
  sync::text(status_, c.Status());
}

}  // namespace lumaris
