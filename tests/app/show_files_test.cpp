#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTest>
#include <filesystem>

#include "app/main_desk_window.h"
#include "app/playback_desk_window.h"
#include "playback/playback_chases.h"
#include "playback/playback_desk.h"
#include "tests/app/app_windows.h"
#include "tests/support/memory_settings.h"
#include "tests/support/scripted_dialogs.h"
#include "tests/support/show_builders.h"
#include "tests/support/temp_folder.h"

namespace lumaris {
namespace {

// The operator's show files: asked before unsaved changes go, the keys on
// every desk, the title, Save As and the recent shows.
class ShowFilesTest : public ::testing::Test {
 protected:
  ShowFilesTest() : app(services()) {
    app.start();
    app.show_main_window();
  }
  PlatformServices services() {
    PlatformServices s;
    s.dialogs = &dialogs;
    s.settings = &settings;
    return s;
  }
  Store& store() { return app.console().store(); }
  MainDeskWindow& main_window() { return app.main_window(); }
  void press(QWidget* window, QKeySequence keys) {
    QApplication::setActiveWindow(window);
    QTest::keySequence(window, keys);
  }
  std::string proposed_name() const {
    return dialogs.file_dialogs().empty() ? std::string() : dialogs.file_dialogs().back().initial_name;
  }
  MessageBoxSpec last_question() const {
    return dialogs.messages().empty() ? MessageBoxSpec{} : dialogs.messages().back();
  }

  ScriptedDialogs dialogs;
  MemorySettings settings;
  TempFolder folder;
  DeskApp app;
};

TEST_F(ShowFilesTest, LoadAsksAboutUnsavedChangesAndStopsTheOldShowBeforeReadingTheNew) {
  PlaybackChases& chases = app.console().playback_desk().chases();
  app.handle([&] {
    store().Chase_Table[0].Steps = 1;
    chases.Start_Sequence(0);
    store().Playback_Fader_Level[0] = 200;
    store().Project_Changed = true;
    app.console().playback_desk().Show();
  });
  auto& playback = window_named<PlaybackDeskWindow>(app, "playback-desk");
  press(&playback, QKeySequence(Qt::CTRL | Qt::Key_O));  // the question's default: Cancel
  EXPECT_EQ(last_question().title, "Unsaved Changes");
  EXPECT_EQ(last_question().buttons, MessageButtons::SaveDiscardCancel);
  EXPECT_TRUE(dialogs.file_dialogs().empty()) << "Cancel asks for no file";
  EXPECT_TRUE(chases.running(0));

  dialogs.answer_message(MessageResult::Discard);
  dialogs.answer_file(test_data("full_show.xml"));
  press(&main_window(), QKeySequence(Qt::CTRL | Qt::Key_O));
  EXPECT_FALSE(chases.running(0));
  EXPECT_EQ(store().Playback_Fader_Level[0], 0);
  EXPECT_EQ(main_window().windowTitle(), QStringLiteral("DMX 512 Main Desk - full_show.xml"));
}

TEST_F(ShowFilesTest, ClosingWithUnsavedChangesStaysOpenUntilTheShowIsSavedOrDiscarded) {
  app.handle([&] { store().Project_Changed = true; });
  EXPECT_EQ(main_window().windowTitle(), QStringLiteral("DMX 512 Main Desk *"));
  dialogs.answer_message(MessageResult::Save);  // and Save As is cancelled
  EXPECT_FALSE(main_window().close());
  EXPECT_EQ(proposed_name(), "Untitled show.xml");

  dialogs.answer_message(MessageResult::Save);
  dialogs.answer_file(folder.file("gala.xml"));
  EXPECT_TRUE(main_window().close());
  EXPECT_FALSE(file_contents(folder.file("gala.xml")).empty());
}

TEST_F(ShowFilesTest, AnExampleIsSavedUnderANewNameAndRecentShowsForgetAMissingFile) {
  std::filesystem::create_directory(folder.file("examples"));
  const std::string example = folder.file("examples/demo_show.xml");
  std::filesystem::copy_file(test_data("full_show.xml"), example);
  const std::string own = folder.file("mine.xml");
  dialogs.answer_file(example);
  press(&main_window(), QKeySequence(Qt::CTRL | Qt::Key_O));
  dialogs.answer_file(own);
  press(&main_window(), QKeySequence(Qt::CTRL | Qt::Key_S));
  EXPECT_EQ(proposed_name(), "Untitled show.xml");
  EXPECT_EQ(main_window().windowTitle(), QStringLiteral("DMX 512 Main Desk - mine.xml"));
  dialogs.answer_file("");
  press(&main_window(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
  EXPECT_EQ(proposed_name(), own);

  std::filesystem::remove(own);
  auto* recent = main_window().findChild<QMenu*>(QStringLiteral("recent-shows"));
  ASSERT_NE(recent, nullptr);
  recent->popup(main_window().mapToGlobal(QPoint(0, 0)));
  ASSERT_EQ(recent->actions().size(), 2);
  EXPECT_EQ(recent->actions()[0]->text().toStdString(), own);
  QTest::mouseClick(recent, Qt::LeftButton, {}, recent->actionGeometry(recent->actions()[0]).center());
  EXPECT_EQ(last_question().title, " Recent Show Missing");
  EXPECT_EQ(app.console().main_desk().recent_shows(), std::vector<std::string>{example});
}

}  // namespace
}  // namespace lumaris
