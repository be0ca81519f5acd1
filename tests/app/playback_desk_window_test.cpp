#include <gtest/gtest.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QSpinBox>

#include "app/cue_editor_window.h"
#include "app/function_setup_window.h"
#include "app/main_desk_window.h"
#include "app/playback_desk_window.h"
#include "playback/button_setup.h"
#include "playback/playback_desk.h"
#include "tests/app/app_windows.h"

namespace lumaris {
namespace {

QPushButton* button_with_text(QWidget* parent, const QString& text) {
  for (QPushButton* b : parent->findChildren<QPushButton*>()) {
    if (b->text() == text) return b;
  }
  return nullptr;
}

void mouse(QWidget* widget, QEvent::Type type, Qt::MouseButton button) {
  const QPointF at(5, 5);
  QMouseEvent event(type, at, widget->mapToGlobal(at), button, button, Qt::NoModifier);
  QCoreApplication::sendEvent(widget, &event);
}

class PlaybackDeskWindowTest : public DeskAppTest {
 protected:
  PlaybackDeskWindow& playback_window() { return window_named<PlaybackDeskWindow>(app, "playback-desk"); }
  PlaybackDesk& desk() { return app.console().playback_desk(); }
};

TEST_F(PlaybackDeskWindowTest, OpensFromTheMainDeskAndPlaysAndRecords) {
  QPushButton* open = button_with_text(&app.main_window(), QStringLiteral("Playback Desk"));
  ASSERT_NE(open, nullptr);
  open->click();
  PlaybackDeskWindow& window = playback_window();
  ASSERT_TRUE(window.isVisible());
  EXPECT_EQ(window.button(0)->text(), QStringLiteral("Submix 1"));

  // A flash button lights while the mouse is down.
  store().Submix[0].Chan[0] = 3;
  store().Submix[0].Level[0] = 255;
  mouse(window.button(0), QEvent::MouseButtonPress, Qt::LeftButton);
  EXPECT_EQ(store().Playback_Live_Out[2], 255);
  mouse(window.function_button(0), QEvent::MouseButtonRelease, Qt::LeftButton);
  EXPECT_EQ(store().Playback_Live_Out[2], 0);

  window.fader(0)->setValue(100);  // on screen, fills from the bottom: level 100
  EXPECT_EQ(store().Playback_Fader_Level[0], 100);

  window.Screen_Num_sel()->setValue(4);
  window.screen_txt()->setText(QStringLiteral("Four"));
  emit window.screen_txt()->textEdited(QStringLiteral("Four"));
  window.Screen_Prog()->click();
  EXPECT_EQ(store().Screens[4].Name, "Four");
  EXPECT_EQ(store().Screens[4].Fad_Sel[0], 100);
  EXPECT_EQ(window.Status()->text(), QStringLiteral(" Cue 4 Recorded"));
  EXPECT_EQ(window.Screen_Num_sel()->value(), 5) << "the model's move reaches the selector";

  window.Inc_Page(1)->click();
  EXPECT_EQ(window.Page_Details()->text(), QStringLiteral("Page 2"));
  EXPECT_EQ(window.function_button(0)->text(), QStringLiteral("Off"));

  mouse(window.button(2), QEvent::MouseButtonPress, Qt::RightButton);
  EXPECT_TRUE(desk().button_setup().visible());
  EXPECT_EQ(desk().button_setup().element(), 18);
}

TEST_F(PlaybackDeskWindowTest, TheFunctionSetupShowsTheElementAndStoresOnOk) {
  app.handle([&] { desk().Open_Button_Setup(0); });
  auto& window = window_named<FunctionSetupWindow>(app, "button-setup");
  ASSERT_TRUE(window.isVisible());
  EXPECT_EQ(window.Fun_set()->currentText(), QStringLiteral("Submix"));
  EXPECT_EQ(window.Element()->text(), QStringLiteral("1")) << "counted as the desk's captions count";
  EXPECT_EQ(window.Level_readout()->text(), QStringLiteral("255"));
  window.Plus()->click();
  EXPECT_EQ(window.Number()->text(), QStringLiteral("2"));
  window.OK()->click();
  EXPECT_EQ(store().Button_Functions[0].Value, 1);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(PlaybackDeskWindowTest, EditCuesListsTheScreensAndItsSliderWritesTheLevelBack) {
  store().Screens[1].Name = "Opening";
  store().Screens[2].Name = "Close";
  store().Screens[2].Preset[4] = 100;
  store().Screen_Count = 3;
  app.handle([&] { desk().Show(); });
  playback_window().menu_action("cue-editor")->trigger();
  auto& window = window_named<CueEditorWindow>(app, "cue-editor");
  ASSERT_TRUE(window.isVisible());
  EXPECT_TRUE(window.isModal());
  ASSERT_EQ(window.screen_list()->count(), 3);
  EXPECT_EQ(window.Next_Scn()->count(), 3);

  window.screen_list()->setCurrentRow(1);
  EXPECT_EQ(window.name_box()->text(), QStringLiteral("Close"));
  ASSERT_EQ(window.content_list()->count(), 1);
  window.content_list()->setCurrentRow(0);
  EXPECT_EQ(window.level_box()->text(), QStringLiteral("100"));
  window.level_fader()->setValue(180);  // on screen, fills from the bottom: level 180
  EXPECT_EQ(store().Screens[2].Preset[4], 180);
  EXPECT_EQ(window.content_list()->item(0)->text(), QStringLiteral("Preset Channel 5 @ 180"));

  window.name_box()->setText(QStringLiteral("Finale"));
  emit window.name_box()->textEdited(QStringLiteral("Finale"));
  window.Update()->click();
  EXPECT_EQ(store().Screens[2].Name, "Finale");
  EXPECT_EQ(window.screen_list()->item(1)->text(), QStringLiteral("2 Finale"));
  window.Save_and_Exit()->click();
  EXPECT_FALSE(window.isVisible());
}

// The screenshot run prepares every window in turn on one console; none of them
// may leave a change behind that a later screenshot shows.
TEST_F(PlaybackDeskWindowTest, PreparingEveryWindowForScreenshotsLeavesTheFreshPlaybackDeskAlone) {
  for (const auto& window : app.windows()) {
    app.handle([&] { window->prepare_screenshot(); });
    for (const auto& variant : window->screenshot_variants()) app.handle(variant.second);
  }
  for (int b = 0; b < kButtonsPerPage; ++b) EXPECT_EQ(store().Button_Functions[b].Function, kFunctionSubmix) << b;
  auto& setup = window_named<FunctionSetupWindow>(app, "button-setup");
  setup.sync();
  EXPECT_EQ(setup.Fun_set()->currentText(), QStringLiteral("Submix"));
}

}  // namespace
}  // namespace lumaris
