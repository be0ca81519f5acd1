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
    : ToolWindow([&app] { app.handle([&app] { app.console().port_setup().Command2_Click(); }); }),
      app_(app) {
  setObjectName(QStringLiteral("OutputDeviceSetup"));
  auto* grid = new QGridLayout(this);

  combo1_ = new QComboBox(this);
  for (const char* entry : OutputDeviceSetup::kAdapterEntries) combo1_->addItem(sync::q(entry));
  adapter_name_ = new QLabel(this);
  adapter_name_->setFrameShape(QFrame::Panel);
  adapter_name_->setFrameShadow(QFrame::Sunken);
  grid->addWidget(combo1_, 0, 0, 1, 2);
  grid->addWidget(adapter_name_, 1, 0, 1, 2);

  label2_ = new QLabel(sync::q(kPortCaption), this);
  option1_ = new QRadioButton(sync::q(kLpt1Caption), this);
  option2_ = new QRadioButton(sync::q(kLpt2Caption), this);
  // The model decides which option is set; Qt must not clear the other by itself.
  option1_->setAutoExclusive(false);
  option2_->setAutoExclusive(false);
  label1_[0] = new QLabel(sync::q(kLpt1Address), this);
  label1_[1] = new QLabel(sync::q(kLpt2Address), this);
  grid->addWidget(label2_, 2, 0, 1, 2);
  grid->addWidget(option1_, 3, 0);
  grid->addWidget(label1_[0], 3, 1);
  grid->addWidget(option2_, 4, 0);
  grid->addWidget(label1_[1], 4, 1);

  label3_ = new QLabel(sync::q(kRateCaption), this);
  text1_ = new QLineEdit(this);
  text1_->setReadOnly(true);
  hscroll1_ = new QScrollBar(Qt::Horizontal, this);
  hscroll1_->setRange(OutputDeviceSetup::kScrollMin, OutputDeviceSetup::kScrollMax);
  hscroll1_->setSingleStep(OutputDeviceSetup::kScrollStep);
  hscroll1_->setPageStep(10);
  hscroll1_->setValue(OutputDeviceSetup::kScrollInitial);
  grid->addWidget(label3_, 5, 0);
  grid->addWidget(text1_, 5, 1);
  grid->addWidget(hscroll1_, 6, 0, 1, 2);

  text2_ = new QLineEdit(this);
  text2_->setReadOnly(true);
  grid->addWidget(text2_, 7, 0, 1, 2);

  smooth_check_ = new QCheckBox(sync::q(kSmoothCaption), this);
  smooth_check_->setToolTip(sync::q(kSmoothTip));
  grid->addWidget(smooth_check_, 8, 0, 1, 2);

  command1_ = new QPushButton(sync::q(kSaveCaption), this);
  command2_ = new QPushButton(sync::q(kCancelCaption), this);
  grid->addWidget(command1_, 9, 0);
  grid->addWidget(command2_, 9, 1);
  grid->setRowStretch(10, 1);
  setMinimumWidth(320);

  connect(combo1_, &QComboBox::activated,
          [this](int index) { app_.handle([&] { setup().Combo1_Click(index); }); });
  connect(option1_, &QRadioButton::clicked,
          [this] { app_.handle([&] { setup().Option1_Click(); }); });
  connect(option2_, &QRadioButton::clicked,
          [this] { app_.handle([&] { setup().Option2_Click(); }); });
  connect(hscroll1_, &QScrollBar::valueChanged,
          [this](int value) { app_.handle([&] { setup().HScroll1_Change(value); }); });
  connect(smooth_check_, &QCheckBox::clicked,
          [this](bool checked) { app_.handle([&] { setup().Smooth_Check_Click(checked); }); });
  connect(command1_, &QPushButton::clicked,
          [this] { app_.handle([&] { setup().Command1_Click(); }); });
  connect(command2_, &QPushButton::clicked,
          [this] { app_.handle([&] { setup().Command2_Click(); }); });
}

OutputDeviceSetup& OutputDeviceSetupWindow::setup() { return app_.console().port_setup(); }

Window& OutputDeviceSetupWindow::model() { return setup(); }

QWidget* OutputDeviceSetupWindow::control_widget(OutputDeviceSetup::Control control) const {
  switch (control) {
    case OutputDeviceSetup::Label1_0: return label1_[0];
    case OutputDeviceSetup::Label1_1: return label1_[1];
    case OutputDeviceSetup::Label2: return label2_;
    case OutputDeviceSetup::Option1: return option1_;
    case OutputDeviceSetup::Option2: return option2_;
    case OutputDeviceSetup::Label3: return label3_;
    case OutputDeviceSetup::Text1: return text1_;
    case OutputDeviceSetup::HScroll1: return hscroll1_;
    case OutputDeviceSetup::Text2: return text2_;
  }
  return nullptr;
}

void OutputDeviceSetupWindow::sync() {
  OutputDeviceSetup& model = setup();
  sync::title(this, model.caption());
  if (combo1_->currentIndex() != model.Combo1_ListIndex()) {
    const QSignalBlocker block(combo1_);
    combo1_->setCurrentIndex(model.Combo1_ListIndex());
  }
  sync::text(adapter_name_, model.Adapter_Name());
  for (int c = 0; c < OutputDeviceSetup::kControls; ++c) {
    const auto control = static_cast<OutputDeviceSetup::Control>(c);
    QWidget* widget = control_widget(control);
    sync::visible(widget, model.control(control).visible);
    sync::enabled(widget, model.control(control).enabled);
  }
  sync::checked(option1_, model.Option1_Value());
  sync::checked(option2_, model.Option2_Value());
  sync::text(text1_, model.Text1_Text());
  sync::value(hscroll1_, model.HScroll1_Value());
  sync::text(text2_, model.Text2_Text());
  sync::checked(smooth_check_, model.Smooth_Check_Value());
}

void OutputDeviceSetupWindow::prepare_screenshot() {
  app_.console().main_desk().Menu_Click("output-device-setup");
  // The parallel adapter shows every control of the window.
  setup().Combo1_Click(1);
}

}  // namespace lumaris
