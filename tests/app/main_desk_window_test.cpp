#include <gtest/gtest.h>

#include <QAction>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "app/main_desk_window.h"
#include "tests/app/app_windows.h"

namespace lumaris {
namespace {

class MainDeskWindowTest : public DeskAppTest {
 protected:
  MainDeskWindow& window() { return app.main_window(); }
};

TEST_F(MainDeskWindowTest, FadersButtonsKeysAndClicksOnScreenReachTheModelForTheShownPage) {
  window().channel_fader(4)->setValue(200);  // on screen the fader holds the level
  EXPECT_EQ(store().Desk_Level[4], 200);
  EXPECT_EQ(window().level_box(4)->text(), QStringLiteral("200"));
  QTest::mouseClick(window().max_button(2), Qt::LeftButton);
  EXPECT_EQ(store().Desk_Level[2], 255);
  QTest::mouseClick(window().Inc_Channel(), Qt::LeftButton);
  EXPECT_FALSE(window().Inc_Channel()->isEnabled());
  EXPECT_EQ(window().Status()->text(), QStringLiteral(" Faders  1 Selected"));
  EXPECT_EQ(window().name_box(0)->text(), QStringLiteral("33"));

  std::vector<int> keys;
  app.console().main_desk().set_cli_key_handler([&keys](int code) { keys.push_back(code); });
  QTest::keyClick(window().channel_fader(0), Qt::Key_5, Qt::KeypadModifier);
  QTest::keyClick(window().channel_fader(0), Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(keys, (std::vector<int>{101, 13}));

  // A double click or a right press opens the channel of the strip on the page shown.
  QTest::mouseDClick(window().level_box(3), Qt::LeftButton);
  EXPECT_EQ(store().Edit_Channel, 35) << "page 1 strip 3 is channel 36";
  QTest::mousePress(window().channel_fader(5), Qt::RightButton);
  EXPECT_EQ(store().Edit_Channel, 37);
}

TEST_F(MainDeskWindowTest, ClickingALevelBoxSelectsItAndTheSubmixLabelFollowsTheDesk) {
  QLineEdit* level = window().level_box(3);
  QTest::mouseClick(level, Qt::LeftButton);
  QApplication::processEvents();
  EXPECT_EQ(level->selectedText(), level->text()) << "typing replaces the whole level";

  app.handle([&] { store().Submix[1].Name = "Wash"; });
  QLineEdit* label = window().Submix_Text();
  label->setFocus();
  QTest::keyClicks(label, "typed");
  QTest::mouseClick(window().Submix_Plus(), Qt::LeftButton);
  EXPECT_EQ(label->text(), QStringLiteral("Wash")) << "the label shows the submix the desk holds";
  QTest::mouseClick(window().Submix_Prog(), Qt::LeftButton);
  EXPECT_EQ(store().Submix[1].Name, "Wash") << "Program stores what the label shows";
}

}  // namespace
}  // namespace lumaris
