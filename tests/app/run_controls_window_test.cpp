#include <gtest/gtest.h>

#include <QApplication>
#include <QCoreApplication>
#include <QLabel>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTimer>

#include "app/instant_cues_window.h"
#include "app/playback_desk_window.h"
#include "playback/cue_editor.h"
#include "playback/playback_desk.h"
#include "playback/run_mode.h"
#include "tests/app/app_windows.h"

namespace lumaris {
namespace {

bool painted(const QWidget* widget, const char* rgb) { return widget->styleSheet().contains(QLatin1String(rgb)); }

void right_click(QWidget* widget) {
  const QPointF at(5, 5);
  for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, at, widget->mapToGlobal(at), Qt::RightButton, Qt::RightButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
  }
}

// Screens 1..4 (2 and 4 on the instant panel) and the playback desk open. What
// run mode does with them is the model's; here the controls and what they show.
class RunControlsWindow : public DeskAppTest {
 protected:
  RunControlsWindow() {
    const char* names[] = {"", "Opening", "Cold", "Warm", "Dark"};
    for (int n = 1; n <= 4; ++n) {
      store().Screens[n].Name = names[n];
      store().Screens[n].Time = static_cast<std::int16_t>(n + 1);
      store().Screens[n].Next = static_cast<std::int16_t>(n + 1);
    }
    store().Screens[2].Instant = true;
    store().Screens[2].Colour = "16711680";  // 0x00BBGGRR: blue
    store().Screens[4].Instant = true;
    store().Screen_Count = 5;
    app.handle([&] { app.console().playback_desk().Show(); });
  }
  PlaybackDeskWindow& playback_window() { return window_named<PlaybackDeskWindow>(app, "playback-desk"); }
  InstantCuesWindow& instant() { return window_named<InstantCuesWindow>(app, "instant-cues"); }
};

TEST_F(RunControlsWindow, RunSwitchScreenCrossfaderAndAutoTakeReachTheModelAndItsStateIsShown) {
  PlaybackDeskWindow& w = playback_window();
  w.Run_Switch()->click();
  ASSERT_TRUE(store().Run_Mode);
  EXPECT_EQ(w.Run_Switch()->text(), QStringLiteral("STOP"));
  EXPECT_TRUE(painted(w.Run_Switch(), "rgb(255, 0, 0)"));
  EXPECT_EQ(w.Run_A()->text(), QStringLiteral("A  1  Opening"));
  EXPECT_TRUE(painted(w.Run_A(), "rgb(255, 0, 0)")) << "live side red";
  EXPECT_TRUE(painted(w.Run_B(), "rgb(0, 255, 0)")) << "next side green";
  EXPECT_EQ(w.Run_Crossfade()->value(), 255);

  w.Run_screen_sel()->setValue(4);
  EXPECT_EQ(w.Run_B()->text(), QStringLiteral("B  4  Dark"));
  EXPECT_EQ(w.Run_Fade_Time()->text(), QStringLiteral("5 s"));

  w.Run_Crossfade()->setValue(100);  // down past 220: a take by hand towards side B
  EXPECT_EQ(store().Crossfade_Level, 155);
  w.Run_Autotake()->click();  // carries the paused take on automatically
  EXPECT_TRUE(store().Autotake_Running);
  EXPECT_EQ(w.Run_Autotake()->text(), QStringLiteral("Pause"));
  EXPECT_TRUE(painted(w.Run_Autotake(), "rgb(255, 255, 0)"));
  w.Run_Autotake()->click();
  EXPECT_FALSE(store().Autotake_Running);

  w.Run_Crossfade()->setValue(5);  // on by hand to the end: the take completes
  EXPECT_EQ(store().Run_Screen, 4);
  EXPECT_EQ(w.Run_Crossfade()->value(), 0) << "the model's rest position reaches the slider";
}

TEST_F(RunControlsWindow, LeavingAsksInABoxAndClearsTheSides) {
  PlaybackDeskWindow& w = playback_window();
  w.Run_Switch()->click();
  QString asked;
  QTimer::singleShot(0, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    asked = box->windowTitle() + "|" + box->text();
    box->button(QMessageBox::Ok)->click();
  });
  w.Run_Switch()->click();
  EXPECT_EQ(asked, QStringLiteral(" Run Mode|Do You wish to Exit Run Mode "));
  EXPECT_FALSE(store().Run_Mode);
  EXPECT_EQ(w.Run_Switch()->text(), QStringLiteral("Run"));
  EXPECT_TRUE(w.Run_Switch()->styleSheet().isEmpty()) << "button face again";
  EXPECT_TRUE(w.Run_A()->text().isEmpty());
}

TEST_F(RunControlsWindow, InstantPanelOpensFromThePlaybackDeskFollowsRunModeAndTakesOrEdits) {
  playback_window().Instant_screens()->click();
  InstantCuesWindow& w = instant();
  ASSERT_TRUE(w.isVisible());
  EXPECT_EQ(w.Screen_sel(0)->text(), QStringLiteral("Cold"));
  EXPECT_EQ(w.Screen_sel(0)->toolTip(), QStringLiteral("1, Screen 2 Cold"));
  EXPECT_TRUE(painted(w.Screen_sel(0), "rgb(0, 0, 255)"));
  EXPECT_TRUE(w.Screen_sel(1)->styleSheet().isEmpty()) << "no colour: button face";
  EXPECT_TRUE(w.Screen_sel(1)->isVisibleTo(&w));
  EXPECT_FALSE(w.Screen_sel(2)->isVisibleTo(&w));

  store().Screens[3].Instant = true;
  store().Screens[3].Name = "Warm";
  EXPECT_EQ(w.Screen_sel(1)->text(), QStringLiteral("Dark")) << "not rebuilt yet";
  playback_window().Run_Switch()->click();  // entering run mode rebuilds the panel while it is shown
  EXPECT_EQ(w.Screen_sel(1)->text(), QStringLiteral("Warm"));
  EXPECT_EQ(w.Screen_sel(2)->toolTip(), QStringLiteral("3, Screen 4 Dark"));
  w.Screen_sel(2)->click();
  EXPECT_TRUE(store().Autotake_Running);
  EXPECT_EQ(store().Run_Screen, 4);

  right_click(w.Screen_sel(0));
  EXPECT_EQ(app.console().playback_desk().cue_editor().selected_screen(), 2);
  EXPECT_EQ(store().Run_Screen, 4) << "a right click edits, it does not take";

  w.Exit()->click();
  EXPECT_FALSE(w.isVisible());
  EXPECT_FALSE(app.console().playback_desk().instant_cues().visible());
}

}  // namespace
}  // namespace lumaris
