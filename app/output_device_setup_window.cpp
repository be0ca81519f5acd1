#include "app/output_device_setup_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include "app/desk_app.h"
#include "app/widgets/sync.h"
#include "core/main_desk.h"

namespace lumaris {

namespace {

constexpr const char* kLpt1Caption = "LPT1 378h";
constexpr const char* kLpt2Caption = "LPT2 278h";
constexpr const char* kPortCaption = "Parallel Port";
constexpr const char* kLpt1Address = "Data 378h, Control 37Ah";
constexpr const char* kLpt2Address = "Data 278h, Control 27Ah";
constexpr const char* kRateCaption = "Refresh Rate";
constexpr const char* kSmoothCaption = "Smooth output";
constexpr const char* kSmoothTip =
    "Fades move at every frame and Art-Net sends every frame; kept on this computer";
constexpr const char* kSaveCaption = "Save and Exit";
constexpr const char* kCancelCaption = "Cancel";

}  // namespace

OutputDeviceSetupWindow::OutputDeviceSetupWindow(DeskApp& app)
    : ToolWindow([&app] { app.handle([&app] { app.console().output_device_setup().cancel_clicked(); }); }),
      app_(app) {
  setObjectName(QStringLiteral("OutputDeviceSetup"));
  auto* grid = new QGridLayout(this);

  adapter_list_ = new QComboBox(this);
  for (const char* entry : OutputDeviceSetup::kAdapterEntries) adapter_list_->addItem(sync::q(entry));
  adapter_name_ = new QLabel(this);
  adapter_name_->setFrameShape(QFrame::Panel);
  adapter_name_->setFrameShadow(QFrame::Sunken);
  grid->addWidget(adapter_list_, 0, 0, 1, 2);
  grid->addWidget(adapter_name_, 1, 0, 1, 2);

  port_label_ = new QLabel(sync::q(kPortCaption), this);
  lpt1_option_ = new QRadioButton(sync::q(kLpt1Caption), this);
  lpt2_option_ = new QRadioButton(sync::q(kLpt2Caption), this);
  // The model decides which option is set; Qt must not clear the other by itself.
  lpt1_option_->setAutoExclusive(false);
  lpt2_option_->setAutoExclusive(false);
  lpt_address_labels_[0] = new QLabel(sync::q(kLpt1Address), this);
  lpt_address_labels_[1] = new QLabel(sync::q(kLpt2Address), this);
  grid->addWidget(port_label_, 2, 0, 1, 2);
  grid->addWidget(lpt1_option_, 3, 0);
  grid->addWidget(lpt_address_labels_[0], 3, 1);
  grid->addWidget(lpt2_option_, 4, 0);
  grid->addWidget(lpt_address_labels_[1], 4, 1);

  rate_label_ = new QLabel(sync::q(kRateCaption), this);
  rate_box_ = new QLineEdit(this);
  rate_box_->setReadOnly(true);
  rate_scroll_ = new QScrollBar(Qt::Horizontal, this);
  rate_scroll_->setRange(OutputDeviceSetup::kScrollMin, OutputDeviceSetup::kScrollMax);
  rate_scroll_->setSingleStep(OutputDeviceSetup::kScrollStep);
  rate_scroll_->setPageStep(10);
  rate_scroll_->setValue(OutputDeviceSetup::kScrollInitial);
  grid->addWidget(rate_label_, 5, 0);
  grid->addWidget(rate_box_, 5, 1);
  grid->addWidget(rate_scroll_, 6, 0, 1, 2);

  usb_state_box_ = new QLineEdit(this);
  usb_state_box_->setReadOnly(true);
  grid->addWidget(usb_state_box_, 7, 0, 1, 2);

  smooth_check_ = new QCheckBox(sync::q(kSmoothCaption), this);
  smooth_check_->setToolTip(sync::q(kSmoothTip));
  grid->addWidget(smooth_check_, 8, 0, 1, 2);

  save_button_ = new QPushButton(sync::q(kSaveCaption), this);
  cancel_button_ = new QPushButton(sync::q(kCancelCaption), this);
  grid->addWidget(save_button_, 9, 0);
  grid->addWidget(cancel_button_, 9, 1);
  grid->setRowStretch(10, 1);
  setMinimumWidth(320);

  connect(adapter_list_, &QComboBox::activated,
          [this](int index) { app_.handle([&] { setup().adapter_list_clicked(index); }); });
  connect(lpt1_option_, &QRadioButton::clicked,
          [this] { app_.handle([&] { setup().lpt1_option_clicked(); }); });
  connect(lpt2_option_, &QRadioButton::clicked,
          [this] { app_.handle([&] { setup().lpt2_option_clicked(); }); });
  connect(rate_scroll_, &QScrollBar::valueChanged,
          [this](int value) { app_.handle([&] { setup().rate_scroll_changed(value); }); });
  connect(smooth_check_, &QCheckBox::clicked,
          [this](bool checked) { app_.handle([&] { setup().Smooth_Check_Click(checked); }); });
  connect(save_button_, &QPushButton::clicked,
          [this] { app_.handle([&] { setup().save_clicked(); }); });
  connect(cancel_button_, &QPushButton::clicked,
          [this] { app_.handle([&] { setup().cancel_clicked(); }); });
}

OutputDeviceSetup& OutputDeviceSetupWindow::setup() { return app_.console().output_device_setup(); }

Window& OutputDeviceSetupWindow::model() { return setup(); }

QWidget* OutputDeviceSetupWindow::control_widget(OutputDeviceSetup::Control control) const {
  switch (control) {
    case OutputDeviceSetup::Lpt1AddressLabel: return lpt_address_labels_[0];
    case OutputDeviceSetup::Lpt2AddressLabel: return lpt_address_labels_[1];
    case OutputDeviceSetup::PortLabel: return port_label_;
    case OutputDeviceSetup::Lpt1Option: return lpt1_option_;
    case OutputDeviceSetup::Lpt2Option: return lpt2_option_;
    case OutputDeviceSetup::RateLabel: return rate_label_;
    case OutputDeviceSetup::RateBox: return rate_box_;
    case OutputDeviceSetup::RateScroll: return rate_scroll_;
    case OutputDeviceSetup::UsbStateBox: return usb_state_box_;
  }
  return nullptr;
}

void OutputDeviceSetupWindow::sync() {
  OutputDeviceSetup& model = setup();
  sync::title(this, model.caption());
  if (adapter_list_->currentIndex() != model.adapter_list_index()) {
    const QSignalBlocker block(adapter_list_);
    adapter_list_->setCurrentIndex(model.adapter_list_index());
  }
  sync::text(adapter_name_, model.Adapter_Name());
  for (int c = 0; c < OutputDeviceSetup::kControls; ++c) {
    const auto control = static_cast<OutputDeviceSetup::Control>(c);
    QWidget* widget = control_widget(control);
    sync::visible(widget, model.control(control).visible);
    sync::enabled(widget, model.control(control).enabled);
  }
  sync::checked(lpt1_option_, model.lpt1_option_value());
  sync::checked(lpt2_option_, model.lpt2_option_value());
  sync::text(rate_box_, model.rate_box_text());
  sync::value(rate_scroll_, model.rate_scroll_value());
  sync::text(usb_state_box_, model.usb_state_box_text());
  sync::checked(smooth_check_, model.Smooth_Check_Value());
}

void OutputDeviceSetupWindow::prepare_screenshot() {
  app_.console().main_desk().Menu_Click("output-device-setup");
  // The parallel adapter shows every control of the window.
  setup().adapter_list_clicked(1);
}

}  // namespace lumaris
