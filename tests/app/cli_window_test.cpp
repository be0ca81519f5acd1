#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "app/cli_window.h"
#include "app/main_desk_window.h"
#include "app/widgets/colour_box.h"
#include "tests/app/app_windows.h"

namespace lumaris {
namespace {

class CliWindowTest : public DeskAppTest {
 protected:
  CliWindow& window() { return window_named<CliWindow>(app, "command-line"); }
  void keys(QWidget* target, std::initializer_list<Qt::Key> sequence,
            Qt::KeyboardModifiers modifiers = Qt::KeypadModifier) {
    for (const Qt::Key key : sequence) QTest::keyClick(target, key, modifiers);
  }
};

TEST_F(CliWindowTest, TheMenuOpensTheWindowAndItsKeysReachTheLine) {
  QAction* open = app.main_window().menu_action("command-line");
  ASSERT_NE(open, nullptr);
  open->trigger();
  ASSERT_TRUE(window().isVisible());

  keys(&window(), {Qt::Key_5, Qt::Key_Period, Qt::Key_5, Qt::Key_0});
  EXPECT_EQ(window().String_In()->text(), QStringLiteral("5 @ 50 "));
  keys(&window(), {Qt::Key_Enter});
  EXPECT_EQ(store().Desk_Level[4], 128);
  EXPECT_EQ(window().String_In()->text(), QString());
  EXPECT_EQ(window().history_list()->currentText(), QStringLiteral("5 @ 50 "));
  EXPECT_TRUE(window().CLI_Status()->styleSheet().contains(QStringLiteral("rgb(0, 255, 0)")));
  EXPECT_EQ(window().refusal()->text(), QString());
  keys(&window(), {Qt::Key_5, Qt::Key_Period, Qt::Key_1, Qt::Key_5, Qt::Key_0, Qt::Key_Enter});
  EXPECT_EQ(window().refusal()->text(), QStringLiteral("Refused: level over 100%"));

  QTest::mouseClick(window().hide_button(), Qt::LeftButton);
  EXPECT_FALSE(window().isVisible());
  open->trigger();
  EXPECT_EQ(window().history_list()->count(), 1) << "the history is kept while the program runs";
}

TEST_F(CliWindowTest, KeysOnTheMainDeskTypeIntoTheLine) {
  app.main_window().menu_action("command-line")->trigger();
  keys(app.main_window().widget(), {Qt::Key_3, Qt::Key_Slash});
  EXPECT_EQ(window().String_In()->text(), QStringLiteral("S3 "));
  keys(app.main_window().widget(), {Qt::Key_Asterisk});
  EXPECT_EQ(window().String_In()->text(), QStringLiteral("S3 Thru  "));
  keys(app.main_window().widget(), {Qt::Key_4}, Qt::NoModifier);
  EXPECT_EQ(window().String_In()->text(), QStringLiteral("S3 Thru  ")) << "top-row digits are not the keypad";
}

TEST_F(CliWindowTest, LaptopKeysMakeTheTopRowTheKeypadInThisWindow) {
  app.main_window().menu_action("command-line")->trigger();
  keys(&window(), {Qt::Key_7, Qt::Key_Period}, Qt::NoModifier);
  EXPECT_EQ(window().String_In()->text(), QString()) << "off: only the keypad's own keys";
  QTest::mouseClick(window().Laptop_Keys(), Qt::LeftButton);
  ASSERT_TRUE(app.console().cli().Laptop_Keys());
  keys(&window(), {Qt::Key_7, Qt::Key_Plus, Qt::Key_2, Qt::Key_Slash, Qt::Key_Asterisk, Qt::Key_4,
                   Qt::Key_Period, Qt::Key_1, Qt::Key_0, Qt::Key_Return},
       Qt::NoModifier);
  EXPECT_EQ(store().Desk_Level[6], 26);
  EXPECT_EQ(store().Playback_Fader_Level[1], 26);
  EXPECT_EQ(store().Playback_Fader_Level[3], 26);
}

}  // namespace
}  // namespace lumaris
