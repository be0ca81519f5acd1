// The run-mode row of the playback desk: Run/STOP, the two sides A and B, the
// crossfader, the next screen, Auto Take and the Instant Cues button, and the
// run-mode looks the screenshots show.
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>

#include "app/desk_app.h"
#include "app/playback_desk_window.h"
#include "app/widgets/sync.h"
#include "playback/playback_desk.h"
#include "playback/run_mode.h"

namespace lumaris {

// The crossfader's 255 is side A up.
QWidget* PlaybackDeskWindow::build_run_row() {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  run_switch_ = plain_button(QStringLiteral("Run"), row, QStringLiteral("Select Run Mode"));
  run_a_ = new QLabel(row);
  run_a_->setMinimumWidth(140);
  run_a_->setAutoFillBackground(true);
  run_crossfade_ = new QSlider(Qt::Horizontal, row);
  run_crossfade_->setRange(0, 255);
  run_crossfade_->setToolTip(QStringLiteral("CrossFader"));
  run_b_ = new QLabel(row);
  run_b_->setMinimumWidth(140);
  run_b_->setAutoFillBackground(true);
  run_screen_sel_ = new QSpinBox(row);
  run_screen_sel_->setRange(0, 199);
  run_fade_time_ = new QLabel(row);
  run_autotake_ = plain_button(QStringLiteral("Auto Take"), row, QStringLiteral("Auto Screen Change in Run Mode"));
  instant_screens_ = plain_button(QStringLiteral("Instant Cues"), row, QStringLiteral("Select Instant Screen Pannel"));
  layout->addWidget(run_switch_);
  layout->addWidget(run_b_);
  layout->addWidget(run_crossfade_, 1);
  layout->addWidget(run_a_);
  layout->addWidget(run_screen_sel_);
  layout->addWidget(run_fade_time_);
  layout->addWidget(run_autotake_);
  layout->addWidget(instant_screens_);
  connect(run_switch_, &QPushButton::clicked, [this] { handle([](PlaybackDesk& d) { d.run_mode().Run_Switch_Click(); }); });
  connect(run_autotake_, &QPushButton::clicked, [this] { handle([](PlaybackDesk& d) { d.run_mode().Run_Autotake_Click(); }); });
  connect(instant_screens_, &QPushButton::clicked, [this] { handle([](PlaybackDesk& d) { d.Instant_screens_Click(); }); });
  connect(run_crossfade_, &QSlider::valueChanged, [this](int v) { handle([v](PlaybackDesk& d) { d.run_mode().Run_Crossfade_Change(v); }); });
  connect(run_screen_sel_, &QSpinBox::valueChanged, [this](int v) { handle([v](PlaybackDesk& d) { d.run_mode().Run_screen_sel_Change(v); }); });
  return row;
}

// Run mode as the operator meets it in a show: idle with the next screen
// waiting (live side red, next green), a take by hand halfway across (both red),
// then Auto Take carrying that take on (both yellow).
std::vector<DeskWindow::ScreenshotVariant> PlaybackDeskWindow::screenshot_variants() {
  return {
      {"_run", [this] {
         if (!app_.console().store().Run_Mode) desk().run_mode().Run_Switch_Click();
       }},
      {"_hand", [this] { desk().run_mode().Run_Crossfade_Change(128); }},
      {"_auto", [this] { desk().run_mode().Run_Autotake_Click(); }},
  };
}

void PlaybackDeskWindow::sync_run_row() {
  const RunMode& r = desk().run_mode();
  sync::text(run_switch_, r.Run_Switch_caption());
  sync::background(run_switch_, r.Run_Switch_colour(), "QPushButton");
  sync::text(run_autotake_, r.Run_Autotake_caption());
  sync::background(run_autotake_, r.Run_Autotake_colour(), "QPushButton");
  sync::text(run_a_, r.Run_A_Num().empty() ? std::string() : "A  " + r.Run_A_Num() + "  " + r.Run_A());
  sync::text(run_b_, r.Run_B_Num().empty() ? std::string() : "B  " + r.Run_B_Num() + "  " + r.Run_B());
  sync::background(run_a_, r.side_a_colour(), "QLabel");
  sync::background(run_b_, r.side_b_colour(), "QLabel");
  sync::value(run_crossfade_, r.Run_Crossfade());
  sync::text(run_fade_time_, r.Run_Fade_Time());
  if (run_screen_sel_->value() != r.Run_screen_sel()) {
    const QSignalBlocker block(run_screen_sel_);
    run_screen_sel_->setValue(r.Run_screen_sel());
  }
}

}  // namespace lumaris
