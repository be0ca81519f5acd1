#include "app/cli_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/desk_app.h"
#include "app/key_codes.h"
#include "app/widgets/colour_box.h"
#include "app/widgets/sync.h"
#include "console/window_registry.h"

namespace lumaris {

namespace {

constexpr const char* kHideCaption = "Hide";
constexpr const char* kLaptopKeysCaption = "Laptop keys";
constexpr const char* kLaptopKeysTip = "The top-row digits and . / * + act as the keypad's keys in this window";

}  // namespace

CliWindow::CliWindow(DeskApp& app)
    : ToolWindow([&app] { app.handle([&] { app.console().cli().hide_clicked(); }); }), app_(app) {
  setFocusPolicy(Qt::StrongFocus);
  auto* layout = new QVBoxLayout(this);

  auto* line = new QHBoxLayout;
  string_in_ = new QLineEdit(this);
  string_in_->setReadOnly(true);
  string_in_->setFocusPolicy(Qt::NoFocus);
  string_in_->setMinimumWidth(320);
  QFont big = string_in_->font();
  big.setPointSize(big.pointSize() + 4);
  string_in_->setFont(big);
  lamp_ = new ColourBox(this);
  lamp_->setFixedSize(28, 28);
  line->addWidget(string_in_, 1);
  line->addWidget(lamp_);
  layout->addLayout(line);
  refusal_ = new QLabel(this);  // why the lamp is red
  refusal_->setWordWrap(true);
  layout->addWidget(refusal_);

  history_list_ = new QComboBox(this);
  history_list_->setFocusPolicy(Qt::NoFocus);
  layout->addWidget(history_list_);

  auto* bottom = new QHBoxLayout;
  laptop_keys_ = new QCheckBox(QString::fromUtf8(kLaptopKeysCaption), this);
  laptop_keys_->setFocusPolicy(Qt::NoFocus);
  laptop_keys_->setToolTip(QString::fromUtf8(kLaptopKeysTip));
  hide_button_ = new QPushButton(QString::fromUtf8(kHideCaption), this);
  hide_button_->setFocusPolicy(Qt::NoFocus);
  bottom->addWidget(laptop_keys_);
  bottom->addStretch(1);
  bottom->addWidget(hide_button_);
  layout->addLayout(bottom);

  connect(hide_button_, &QPushButton::clicked, [this] { app_.handle([&] { cli().hide_clicked(); }); });
  connect(laptop_keys_, &QCheckBox::toggled,
          [this](bool checked) { app_.handle([&] { cli().Laptop_Keys_Click(checked); }); });
}

Window& CliWindow::model() { return cli(); }
CLI& CliWindow::cli() { return app_.console().cli(); }

void CliWindow::keyPressEvent(QKeyEvent* event) {
  const int code = virtual_key_code(*event);
  if (code == 0) {
    ToolWindow::keyPressEvent(event);
    return;
  }
  app_.handle([&] { cli().Form_KeyDown(code); });
}

void CliWindow::prepare_screenshot() { app_.console().windows().open("command-line"); }

std::vector<DeskWindow::ScreenshotVariant> CliWindow::screenshot_variants() {
  // A line being typed after one that was executed.
  return {{"_typing", [this] {
             for (const int code : {101, 110, 101, 96, 13, 97, 106, 104, 107}) cli().CLI_Key(code);
           }}};
}

void CliWindow::sync() {
  const CLI& c = cli();
  sync::title(this, c.caption());
  sync::text(string_in_, c.String_In());
  sync::background(lamp_, c.CLI_Status(), "QFrame");
  sync::text(refusal_, c.refusal().empty() ? std::string() : "Refused: " + c.refusal());
  sync::checked(laptop_keys_, c.Laptop_Keys());
  const std::vector<std::string>& history = c.history_list();
  bool same = history_list_->count() == static_cast<int>(history.size());
  for (int i = 0; same && i < history_list_->count(); ++i) same = history_list_->itemText(i) == sync::q(history[i]);
  if (!same) {
    const QSignalBlocker block(history_list_);
    history_list_->clear();
    for (const std::string& entry : history) history_list_->addItem(sync::q(entry));
    history_list_->setCurrentIndex(history_list_->count() - 1);
  }
}

}  // namespace lumaris
