#include "app/art_net_setup_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/desk_app.h"
#include "app/widgets/sync.h"
#include "core/main_desk.h"

namespace lumaris {

namespace {
constexpr const char* kRowsTitle = "Art-Net Output";
constexpr const char* kUniverseHeading = "Universe";
constexpr const char* kDestinationLabel = "Destination";
constexpr const char* kDestinationHint = "IPv4 address of one node; empty = broadcast (automatic)";
constexpr const char* kSetCaption = "Set";
constexpr const char* kCloseCaption = "Close";
}  // namespace

ArtNetSetupWindow::ArtNetSetupWindow(DeskApp& app)
    : ToolWindow([&app] { app.handle([&] { app.console().art_config().Hide(); }); }), app_(app) {
  auto* layout = new QVBoxLayout(this);

  auto* rows = new QGroupBox(QString::fromUtf8(kRowsTitle), this);
  auto* grid = new QGridLayout(rows);
  grid->addWidget(new QLabel(QString::fromUtf8(kUniverseHeading), rows), 0, 0);
  for (int i = 0; i < ArtNetSetup::kRows; ++i) {
    text1_[i] = new QLineEdit(rows);
    text1_[i]->setReadOnly(true);
    text1_[i]->setAlignment(Qt::AlignCenter);
    text1_[i]->setMaximumWidth(48);
    text1_[i]->setFocusPolicy(Qt::NoFocus);
    button1_[i] = new QPushButton(rows);
    button1_[i]->setMinimumWidth(96);
    grid->addWidget(text1_[i], i + 1, 0);
    grid->addWidget(button1_[i], i + 1, 1);
    connect(button1_[i], &QPushButton::clicked,
            [this, i] { app_.handle([&] { config().Button1_Click(i); }); });
  }
  layout->addWidget(rows);

  text2_ = new QLineEdit(this);
  text2_->setReadOnly(true);
  text2_->setMinimumWidth(420);
  layout->addWidget(text2_);

  auto* destination_box = new QGroupBox(QString::fromUtf8(kDestinationLabel), this);
  auto* destination_layout = new QVBoxLayout(destination_box);
  auto* destination_row = new QHBoxLayout;
  destination_ = new QLineEdit(destination_box);
  destination_->setPlaceholderText(QStringLiteral("automatic"));
  destination_->setToolTip(QString::fromUtf8(kDestinationHint));
  destination_set_ = new QPushButton(QString::fromUtf8(kSetCaption), destination_box);
  destination_row->addWidget(destination_, 1);
  destination_row->addWidget(destination_set_);
  destination_layout->addLayout(destination_row);
  destination_status_ = new QLabel(destination_box);
  destination_layout->addWidget(destination_status_);
  layout->addWidget(destination_box);
  connect(destination_, &QLineEdit::textEdited, [this](const QString& text) {
    app_.handle([&] { config().Destination_Change(text.toStdString()); });
  });
  auto apply = [this] { app_.handle([&] { config().Destination_Set_Click(); }); };
  connect(destination_set_, &QPushButton::clicked, apply);
  connect(destination_, &QLineEdit::returnPressed, apply);

  command1_ = new QPushButton(QString::fromUtf8(kCloseCaption), this);
  layout->addWidget(command1_, 0, Qt::AlignRight);
  connect(command1_, &QPushButton::clicked, [this] { app_.handle([&] { config().Command1_Click(); }); });
}

Window& ArtNetSetupWindow::model() { return config(); }
ArtNetSetup& ArtNetSetupWindow::config() { return app_.console().art_config(); }

void ArtNetSetupWindow::prepare_screenshot() { app_.console().main_desk().Menu_Click("art-net-setup"); }

void ArtNetSetupWindow::sync() {
  ArtNetSetup& c = config();
  sync::title(this, c.caption());
  for (int i = 0; i < ArtNetSetup::kRows; ++i) {
    sync::text(text1_[i], c.Text1(i));
    sync::text(button1_[i], c.Button1(i));
    sync::background(button1_[i], c.Button1_colour(i), "QPushButton");
  }
  sync::text(text2_, c.Text2());
  sync::text(destination_, c.Destination());
  sync::text(destination_status_, c.Destination_Status());
}

}  // namespace lumaris
