// The OLA output against a fake olad: the frame on the universe set up, and a
// desk that keeps running and reconnects (at most once a second) when olad is
// missing or goes away.
#include <gtest/gtest.h>

#include <tuple>

#include "console/output_cycle.h"
#include "output/ola_setup.h"
#include "output/ola_output.h"
#include "tests/support/fake_ola_client.h"
#include "tests/support/memory_settings.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

struct OlaDesk : ::testing::Test {
  FakeOlaClient olad;
  MemorySettings settings;
  TestConsole desk;

  void build(OlaClient* client) {
    desk.services.ola_client = client;
    desk.services.settings = &settings;
    desk.build();
  }
  OlaOutput& output() { return desk.console->ola_output(); }
  OlaSetup& window() { return desk.console->ola_setup(); }
  void tick() { desk.console->output_cycle().output_tick(); }
};

TEST_F(OlaDesk, EnabledOutputSendsTheFrameToTheUniverseSetUp) {
  build(&olad);
  tick();
  EXPECT_TRUE(olad.frames.empty());
  window().Universe_Change("12");
  window().Universe_Set_Click();
  window().Enable_Click();
  desk.store().Desk_Level[0] = 99;
  tick();
  ASSERT_EQ(olad.frames.size(), 1u);
  ASSERT_EQ(olad.frames[0].slots.size(), 512u);
  EXPECT_EQ(std::tuple(olad.frames[0].universe, olad.frames[0].slots[0]), std::tuple(12u, 99));
  EXPECT_EQ(output().status(), "OLA sending universe 12");
  EXPECT_EQ(std::tuple(settings.read(OlaOutput::kUniverseSetting), settings.read(OlaOutput::kEnabledSetting)),
            std::tuple("12", "true"));

  window().Universe_Change("4294967296");
  window().Universe_Set_Click();
  EXPECT_EQ(output().universe(), 12u) << "a bad universe changes nothing";
  EXPECT_EQ(desk.dialogs.messages().size(), 1u);
}

TEST_F(OlaDesk, MissingOrVanishingOladIsRetriedOnceASecondWhileTheDeskRuns) {
  olad.olad_running = false;
  build(&olad);
  ASSERT_FALSE(output().set_enabled(true));
  EXPECT_EQ(olad.connect_attempts, 1);
  EXPECT_NE(output().status().find("olad is not running"), std::string::npos);
  for (int i = 0; i < 20; ++i) tick();  // output ticks never try to connect
  EXPECT_EQ(olad.connect_attempts, 1);
  desk.scheduler.advance(3000);
  EXPECT_EQ(olad.connect_attempts, 4);

  olad.olad_running = true;
  desk.scheduler.advance(1000);
  EXPECT_TRUE(output().connected());
  const int attempts = olad.connect_attempts;
  desk.scheduler.advance(5000);
  EXPECT_EQ(olad.connect_attempts, attempts) << "no retries while connected";
  EXPECT_FALSE(olad.frames.empty()) << "the output cycle ran meanwhile";

  olad.olad_running = false;
  desk.scheduler.advance(100);
  EXPECT_FALSE(output().connected());
  EXPECT_NE(output().status().find("olad went away"), std::string::npos);
  olad.olad_running = true;
  olad.frames.clear();
  desk.scheduler.advance(1000);
  EXPECT_TRUE(output().connected());
  desk.scheduler.advance(100);
  EXPECT_FALSE(olad.frames.empty());
}

TEST_F(OlaDesk, AHungOladIsShownOnceAsNotAnsweringAndTriedLessOftenUntilItAnswers) {
  olad.olad_hung = true;
  build(&olad);
  std::vector<std::string> said;
  desk.console->status().on_main_change([&](const std::string& s) { said.push_back(s); });
  ASSERT_FALSE(output().set_enabled(true));
  desk.scheduler.advance(10000);
  const std::string steady = output().status();
  EXPECT_EQ(steady, "OLA universe 1: olad is not answering (it takes the connection but not the "
                    "frames); trying again");
  desk.scheduler.advance(80000);
  EXPECT_EQ(said, std::vector<std::string>{" OLA: olad is not answering (it takes the connection but not the frames)"});
  EXPECT_EQ(output().status(), steady);
  EXPECT_LE(olad.connect_attempts, 8) << "backing off: 1, 2, 4, 8, 16, 30 s";

  olad.olad_hung = false;
  for (int waited = 0; !olad.connected && waited < OlaOutput::kLongestRetryInterval; waited += 100) {
    desk.scheduler.advance(100);
  }
  EXPECT_EQ(output().status(), steady) << "not answering until frames have gone a while";
  desk.scheduler.advance(OlaOutput::kSettleTime);
  EXPECT_EQ(std::tuple(said.back(), output().status()), std::tuple(" OLA connected again", "OLA sending universe 1"));
}

TEST_F(OlaDesk, RunUniverseSendsAndIsNeverSaved) {
  desk.services.ola_universe = 7;
  build(&olad);
  tick();
  ASSERT_EQ(olad.frames.size(), 1u);
  EXPECT_EQ(olad.frames[0].universe, 7u);
  EXPECT_FALSE(settings.read(OlaOutput::kUniverseSetting).has_value());
  EXPECT_FALSE(settings.read(OlaOutput::kEnabledSetting).has_value());
}

TEST(OlaAbsent, EnablingExplainsThatOlaIsNotBuiltIn) {
  TestConsole desk;
  desk.build();
  desk.console->ola_setup().Enable_Click();
  EXPECT_FALSE(desk.console->ola_output().enabled());
  ASSERT_EQ(desk.dialogs.messages().size(), 1u);
  EXPECT_NE(desk.dialogs.messages()[0].text.find("not built"), std::string::npos);
}

}  // namespace
}  // namespace lumaris
