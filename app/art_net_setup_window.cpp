#include "app/art_net_setup_window.h"

#include <QComboBox>
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
constexpr const char* kInterfaceLabel = "Interface";
constexpr const char* kInterfaceHint =
    "The address of this computer that Art-Net is sent from and listened on (kept on this computer)";
constexpr const char* kCloseCaption = "Close";
}  // namespace

ArtNetSetupWindow::ArtNetSetupWindow(DeskApp& app)
    : ToolWindow([&app] { app.handle([&] { app.console().art_net_setup().Hide(); }); }), app_(app) {
  auto* layout = new QVBoxLayout(this);

  auto* rows = new QGroupBox(QString::fromUtf8(kRowsTitle), this);
  auto* grid = new QGridLayout(rows);
  grid->addWidget(new QLabel(QString::fromUtf8(kUniverseHeading), rows), 0, 0);
  for (int i = 0; i < ArtNetSetup::kRows; ++i) {
    universe_boxes_[i] = new QLineEdit(rows);
    universe_boxes_[i]->setReadOnly(true);
    universe_boxes_[i]->setAlignment(Qt::AlignCenter);
    universe_boxes_[i]->setMaximumWidth(48);
    universe_boxes_[i]->setFocusPolicy(Qt::NoFocus);
    enable_buttons_[i] = new QPushButton(rows);
    enable_buttons_[i]->setMinimumWidth(96);
    grid->addWidget(universe_boxes_[i], i + 1, 0);
    grid->addWidget(enable_buttons_[i], i + 1, 1);
    connect(enable_buttons_[i], &QPushButton::clicked,
            [this, i] { app_.handle([&] { config().enable_button_clicked(i); }); });
  }
  layout->addWidget(rows);

  state_box_ = new QLineEdit(this);
  state_box_->setReadOnly(true);
  state_box_->setMinimumWidth(420);
  layout->addWidget(state_box_);

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

  auto* interface_box = new QGroupBox(QString::fromUtf8(kInterfaceLabel), this);
  auto* interface_layout = new QVBoxLayout(interface_box);
  interface_list_ = new QComboBox(interface_box);
  interface_list_->setToolTip(QString::fromUtf8(kInterfaceHint));
  interface_layout->addWidget(interface_list_);
  layout->addWidget(interface_box);
  connect(interface_list_, &QComboBox::activated,
          [this](int index) { app_.handle([&] { config().Interface_Click(index); }); });

  close_button_ = new QPushButton(QString::fromUtf8(kCloseCaption), this);
  layout->addWidget(close_button_, 0, Qt::AlignRight);
  connect(close_button_, &QPushButton::clicked, [this] { app_.handle([&] { config().close_clicked(); }); });
}

Window& ArtNetSetupWindow::model() { return config(); }
ArtNetSetup& ArtNetSetupWindow::config() { return app_.console().art_net_setup(); }

void ArtNetSetupWindow::prepare_screenshot() { app_.console().main_desk().Menu_Click("art-net-setup"); }

void ArtNetSetupWindow::sync() {
  ArtNetSetup& c = config();
  sync::title(this, c.caption());
  for (int i = 0; i < ArtNetSetup::kRows; ++i) {
    sync::text(universe_boxes_[i], c.universe_box(i));
    sync::text(enable_buttons_[i], c.enable_button(i));
    sync::background(enable_buttons_[i], c.enable_button_colour(i), "QPushButton");
  }
  sync::text(state_box_, c.state_box());
  sync::text(destination_, c.Destination());
  sync::text(destination_status_, c.Destination_Status());
  sync::items(interface_list_, c.Interface_Items());
  sync::current(interface_list_, c.Interface_Index());
}

}  // namespace lumaris
