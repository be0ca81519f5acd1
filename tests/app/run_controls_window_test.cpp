#include <gtest/gtest.h>

#include <QApplication>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTimer>
#include <stdexcept>

#include "app/desk_app.h"
#include "app/instant_screen_window.h"
#include "app/playdesk_window.h"
#include "playback/cue_editor.h"
#include "playback/playdesk.h"
#include "playback/run_mode.h"

namespace lumaris {
namespace {

template <typename W>
W& window_named(DeskApp& app, const std::string& name) {
  for (const auto& w : app.windows()) {
    if (w->name() == name) return static_cast<W&>(*w);
  }
  throw std::logic_error("no window " + name);
}

bool painted(const QWidget* widget, const char* rgb) { return widget->styleSheet().contains(QLatin1String(rgb)); }

void right_click(QWidget* widget) {
  const QPointF at(5, 5);
  for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, at, widget->mapToGlobal(at), Qt::RightButton, Qt::RightButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
  }
}

// A desktop console with screens 1..4 (2 and 4 on the instant panel) and the
// playback desk open.
class RunControlsWindow : public ::testing::Test {
 protected:
  RunControlsWindow() {
    app.start();
    app.show_main_window();
    Store& s = store();
    const char* names[] = {"", "Opening", "Cold", "Warm", "Dark"};
    for (int n = 1; n <= 4; ++n) {
      s.Screens[n].Name = names[n];
      s.Screens[n].Time = static_cast<std::int16_t>(n + 1);
      s.Screens[n].Next = static_cast<std::int16_t>(n + 1);
      s.Screens[n].Preset[0] = static_cast<std::int16_t>(n * 50);
    }
    s.Screens[2].Instant = true;
    s.Screens[2].Colour = "16711680";  // 0x00BBGGRR: blue
    s.Screens[4].Instant = true;
    s.Screen_Count = 5;
    app.handle([&] { app.console().playback_desk().Show(); });
  }
  Store& store() { return app.console().store(); }
  PlaydeskWindow& playdesk() { return window_named<PlaydeskWindow>(app, "Playdesk"); }
  InstantScreenWindow& instant() { return window_named<InstantScreenWindow>(app, "instant_screen"); }

  DeskApp app;
};

TEST_F(RunControlsWindow, RunSwitchCrossfaderAndAutoTakeDriveTheTakeAndShowIt) {
  PlaydeskWindow& w = playdesk();
  w.Run_Switch()->click();
  ASSERT_TRUE(store().Run_Mode);
  EXPECT_EQ(w.Run_Switch()->text(), QStringLiteral("STOP"));
  EXPECT_TRUE(painted(w.Run_Switch(), "rgb(255, 0, 0)"));
  EXPECT_EQ(w.Run_A()->text(), QStringLiteral("A  1  Opening"));
  EXPECT_EQ(w.Run_B()->text(), QStringLiteral("B  2  Cold"));
  EXPECT_TRUE(painted(w.Run_A(), "rgb(255, 0, 0)")) << "live side red";
  EXPECT_TRUE(painted(w.Run_B(), "rgb(0, 255, 0)")) << "next side green";
  EXPECT_EQ(w.Run_Crossfade()->value(), 255);
  EXPECT_EQ(w.Run_Fade_Time()->text(), QStringLiteral("3 s"));
  EXPECT_EQ(w.Status()->text(), QStringLiteral(" Run Mode Selected"));

  w.Run_screen_sel()->setValue(4);
  EXPECT_EQ(app.console().playback_desk().run_mode().Next_Screen(), 4);
  EXPECT_EQ(w.Run_B()->text(), QStringLiteral("B  4  Dark"));
  EXPECT_EQ(w.Run_Fade_Time()->text(), QStringLiteral("5 s"));

  w.Run_Crossfade()->setValue(100);  // down past 220: a take by hand towards side B
  EXPECT_TRUE(store().Take_Manual);
  EXPECT_EQ(store().Run_Screen, 4);
  EXPECT_EQ(store().Crossfade_Level, 155);
  EXPECT_TRUE(painted(w.Run_A(), "rgb(255, 0, 0)"));
  EXPECT_TRUE(painted(w.Run_B(), "rgb(255, 0, 0)"));

  w.Run_Autotake()->click();  // carries the paused take on automatically
  EXPECT_TRUE(store().Autotake_Running);
  EXPECT_EQ(w.Run_Autotake()->text(), QStringLiteral("Pause"));
  EXPECT_TRUE(painted(w.Run_Autotake(), "rgb(255, 255, 0)"));
  EXPECT_TRUE(painted(w.Run_A(), "rgb(255, 255, 0)"));
  EXPECT_EQ(w.Status()->text(), QStringLiteral(" Autotake Running "));

  w.Run_Autotake()->click();
  EXPECT_FALSE(store().Autotake_Running);
  EXPECT_EQ(w.Run_Autotake()->text(), QStringLiteral("Auto Take"));
  EXPECT_EQ(w.Status()->text(), QStringLiteral(" Autotake Stopped "));

  w.Run_Crossfade()->setValue(5);  // on by hand to the end: X = 250 completes
  EXPECT_FALSE(store().Take_Manual);
  EXPECT_EQ(store().Desk_Level[0], 200) << "screen 4 is the desk";
  EXPECT_EQ(w.Run_Crossfade()->value(), 0) << "the model's rest position reaches the slider";
  EXPECT_EQ(w.Run_B()->text(), QStringLiteral("B  4  Dark"));
  EXPECT_TRUE(painted(w.Run_A(), "rgb(0, 255, 0)")) << "side A now waits with screen 5";
  EXPECT_EQ(w.Run_A()->text(), QStringLiteral("A  5  "));
}

TEST_F(RunControlsWindow, LeavingAsksInABoxAndClearsTheSides) {
  PlaydeskWindow& w = playdesk();
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
  EXPECT_TRUE(w.Run_B()->styleSheet().isEmpty());
  EXPECT_EQ(w.Status()->text(), QStringLiteral(" Run Mode Stopped"));
}

TEST_F(RunControlsWindow, InstantPanelOpensFromThePlaydeskAndTakesOrEdits) {
  playdesk().Instant_screens()->click();
  InstantScreenWindow& w = instant();
  ASSERT_TRUE(w.isVisible());
  EXPECT_EQ(w.windowTitle(), QStringLiteral("Instant Cues"));
  EXPECT_EQ(w.Screen_sel(0)->text(), QStringLiteral("Cold"));
  EXPECT_EQ(w.Screen_sel(0)->toolTip(), QStringLiteral("1, Screen 2 Cold"));
  EXPECT_TRUE(painted(w.Screen_sel(0), "rgb(0, 0, 255)"));
  EXPECT_EQ(w.Screen_sel(1)->text(), QStringLiteral("Dark"));
  EXPECT_TRUE(w.Screen_sel(1)->styleSheet().isEmpty()) << "no colour: button face";
  EXPECT_TRUE(w.Screen_sel(1)->isVisibleTo(&w));
  EXPECT_FALSE(w.Screen_sel(2)->isVisibleTo(&w));
  EXPECT_EQ(w.Exit()->toolTip(), QStringLiteral("Exit and Close Instant Screens"));

  w.Screen_sel(1)->click();
  EXPECT_FALSE(store().Autotake_Running) << "outside run mode a slot does nothing";

  playdesk().Run_Switch()->click();
  w.Screen_sel(1)->click();
  EXPECT_TRUE(store().Autotake_Running);
  EXPECT_EQ(store().Run_Screen, 4);

  right_click(w.Screen_sel(0));
  EXPECT_TRUE(app.console().playback_desk().cue_editor().visible());
  EXPECT_EQ(app.console().playback_desk().cue_editor().selected_screen(), 2);
  EXPECT_EQ(store().Run_Screen, 4) << "a right click edits, it does not take";

  w.Exit()->click();
  EXPECT_FALSE(w.isVisible());
  EXPECT_FALSE(app.console().playback_desk().instant_cues().visible());
}

TEST_F(RunControlsWindow, InstantPanelFollowsRunModeWhileShown) {
  playdesk().Instant_screens()->click();
  InstantScreenWindow& w = instant();
  store().Screens[3].Instant = true;
  store().Screens[3].Name = "Warm";
  EXPECT_EQ(w.Screen_sel(1)->text(), QStringLiteral("Dark")) << "not rebuilt yet";
  playdesk().Run_Switch()->click();
  EXPECT_EQ(w.Screen_sel(1)->text(), QStringLiteral("Warm"));
  EXPECT_EQ(w.Screen_sel(2)->toolTip(), QStringLiteral("3, Screen 4 Dark"));
}

}  // namespace
}  // namespace lumaris
