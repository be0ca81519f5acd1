#include <gtest/gtest.h>

#include <tuple>

#include "console/output_cycle.h"
#include "core/main_desk.h"
#include "net/art_net_setup.h"
#include "tests/support/fake_adapter_libraries.h"
#include "tests/support/fake_udp.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

constexpr int kOki = 2;

// A dialog is for the operator, never a pause of the show: the output cycle,
// Art-Net and every other timer keep their rate while a box is open.
struct ShowGoesOnTest : ::testing::Test {
  FakeUdp udp;
  FakeAdapterLibraries libraries;
  TestConsole test;

  void SetUp() override {
    udp.set_local("127.0.0.1");
    test.services.art_socket = &udp;
    test.services.adapter_libraries = &libraries;
    test.build();
    test.console->main_desk().Menu_Click("art-net-setup");
    test.console->art_net_setup().enable_button_clicked(0);
    test.store().Patch[0] = 1;
    udp.clear_sent();
  }
  int art_dmx_sent() const {
    int n = 0;
    for (const FakeUdp::Sent& s : udp.sent()) n += s.bytes.size() > 9 && s.bytes[9] == 0x50;
    return n;
  }
};

TEST_F(ShowGoesOnTest, AnAdapterFailingMidShowNeverHoldsUpArtNet) {
  test.store().Adapter = kOki;
  libraries.write_status = 1;
  bool ran_inside_notice = false;
  test.dialogs.during_next_message([&] { ran_inside_notice = true; });
  test.store().Desk_Level[0] = 99;
  test.scheduler.advance(1000);
  ASSERT_FALSE(test.dialogs.messages().empty());
  EXPECT_EQ(test.dialogs.messages()[0].title, " DMX ERROR");
  EXPECT_FALSE(ran_inside_notice) << "a notice returns at once and stays on screen";
  EXPECT_EQ(std::tuple(art_dmx_sent(), test.store().DMX_Out[0]), std::tuple(10, 99));

  // Closing the program ends the show: no frame is mixed or sent after it.
  test.console->shutdown();
  udp.clear_sent();
  test.store().Desk_Level[0] = 55;
  test.scheduler.advance(1000);
  EXPECT_EQ(std::tuple(art_dmx_sent(), test.store().DMX_Out[0]), std::tuple(0, 99));
}

TEST_F(ShowGoesOnTest, WhileTheOperatorThinksOverAQuestionTheShowRunsOn) {
  test.store().Project_Changed = true;
  int frames_during_question = 0;
  int art_dmx_during_question = 0;
  test.dialogs.during_next_message([&] {
    const int art_before = art_dmx_sent();
    test.store().Desk_Level[0] = 77;  // a level another desk set meanwhile
    test.scheduler.advance(1000);     // the operator takes a second to answer
    frames_during_question = test.store().DMX_Out[0];
    art_dmx_during_question = art_dmx_sent() - art_before;
  });
  test.dialogs.answer_message(MessageResult::Cancel);
  test.console->main_desk().resetdesk_Click();
  EXPECT_EQ(frames_during_question, 77) << "output ticks ran while the box was open";
  EXPECT_EQ(art_dmx_during_question, 10);
}

TEST_F(ShowGoesOnTest, ATimerWaitingInADialogSkipsItsOwnTicksAndOthersRun) {
  std::unique_ptr<Timer> asking = test.scheduler.create_timer();
  std::unique_ptr<Timer> other = test.scheduler.create_timer();
  int asking_ticks = 0;
  int other_ticks = 0;
  asking->on_tick([&] {
    ++asking_ticks;
    if (asking_ticks == 1) test.scheduler.advance(500);  // waits in a dialog for 500 ms
  });
  other->on_tick([&] { ++other_ticks; });
  asking->set_interval(100);
  other->set_interval(100);
  asking->set_enabled(true);
  other->set_enabled(true);
  test.scheduler.advance(1000);
  EXPECT_EQ(other_ticks, 10);
  EXPECT_EQ(asking_ticks, 5) << "ticks 200..600 fell due while the first one waited";
  EXPECT_EQ(test.scheduler.now(), 1000);
}

}  // namespace
}  // namespace lumaris
