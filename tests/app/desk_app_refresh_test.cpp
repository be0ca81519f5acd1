#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>

#include "app/sequence_desk_window.h"
#include "app/main_desk_window.h"
#include "core/main_desk.h"
#include "sequence/sequence_desk.h"
#include "tests/app/app_windows.h"

namespace lumaris {
namespace {

class DeskAppRefreshTest : public DeskAppTest {
 protected:
  MainDeskWindow& desk() { return app.main_window(); }
  SequenceDeskWindow& chases() { return window_named<SequenceDeskWindow>(app, "sequence-desk"); }
  // Runs `work` the way a timer's tick runs.
  template <typename Work>
  void tick(Work work) {
    app.scheduler().run_event(work, &tick_source_);
  }

 private:
  int tick_source_ = 0;
};

TEST_F(DeskAppRefreshTest, AHiddenWindowIsNotWalkedAndCatchesUpWhenShown) {
  const QString before = chases().Chase_Sel()->itemText(0);
  app.handle([&] { store().Chase_Table[0].Name = "Sunrise"; });
  EXPECT_EQ(chases().Chase_Sel()->itemText(0), before) << "the hidden sequence desk was walked";

  app.handle([&] { app.console().sequence_desk().Show(); });
  EXPECT_TRUE(chases().isVisible());
  EXPECT_TRUE(chases().Chase_Sel()->itemText(0).contains(QStringLiteral("Sunrise")));
}

TEST_F(DeskAppRefreshTest, ATickThatChangesNothingShownSkipsTheWalkAndOneThatDoesWalks) {
  const QString status = desk().Status()->text();
  // A widget the walk would rewrite tells whether the walk ran.
  desk().Status()->setText(QStringLiteral("not from the model"));
  const long walks = app.walks();
  tick([] {});
  EXPECT_EQ(desk().Status()->text(), QStringLiteral("not from the model"));
  EXPECT_EQ(app.walks(), walks);

  tick([&] {
    store().Desk_Level[7] = 90;
    store().Fader_Names[7].Desc = store().Fader_Names[7].Name = "Cyc";
    app.console().main_desk().Refresh_Desk_Panel();
  });
  EXPECT_EQ(desk().level_box(7)->text(), QStringLiteral("90"));
  EXPECT_EQ(desk().channel_fader(7)->value(), 90);
  EXPECT_EQ(desk().name_box(7)->text(), QStringLiteral("Cyc"));
  EXPECT_EQ(desk().name_box(7)->toolTip(), QStringLiteral(" Ch 8 Cyc"));
  EXPECT_EQ(desk().Status()->text(), status) << "a changed window is walked in full";
  EXPECT_EQ(app.walks(), walks + 1) << "only the window that changed is walked";
}

TEST_F(DeskAppRefreshTest, TheOperatorsEventsAlwaysWalkTheShownWindows) {
  tick([] {});
  // An edit the model never took is put back by the next operator event.
  desk().level_box(3)->setText(QStringLiteral("abc"));
  app.handle([] {});
  EXPECT_EQ(desk().level_box(3)->text(), QString::number(store().Desk_Level[3]));
}

// Another console's ArtDmx at 44 Hz must not walk the windows 44 times a
// second: ticks soon after a re-sync are held back and shown together.
TEST_F(DeskAppRefreshTest, TicksSoonAfterAReSyncAreShownTogether) {
  app.set_background_refresh_interval(3'600'000);
  const auto set_level = [&](int level) {
    tick([&] {
      store().Desk_Level[7] = static_cast<std::int16_t>(level);
      app.console().main_desk().Refresh_Desk_Panel();
    });
  };
  const long walks = app.walks();
  for (int level = 11; level <= 60; ++level) set_level(level);
  EXPECT_NE(desk().level_box(7)->text(), QStringLiteral("60"));
  EXPECT_EQ(app.walks(), walks);

  app.flush_background_refresh();
  EXPECT_EQ(desk().level_box(7)->text(), QStringLiteral("60")) << "the burst's end shows";
  EXPECT_EQ(app.walks(), walks + 1);

  set_level(61);
  app.handle([] {});
  EXPECT_EQ(desk().level_box(7)->text(), QStringLiteral("61")) << "the operator's event shows at once";
}

}  // namespace
}  // namespace lumaris
