#include <gtest/gtest.h>

#include <QApplication>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QPointer>
#include <array>
#include <memory>
#include <vector>

#include "app/function_setup_window.h"
#include "net/art_net_packets.h"
#include "playback/playback_desk.h"
#include "tests/app/app_windows.h"
#include "tests/support/fake_udp.h"

namespace lumaris {
namespace {

// A person types into the real boxes and clicks the real buttons: no Tab, no
// calls into the windows' slots.
class TypedEdits : public ::testing::Test {
 protected:
  TypedEdits() : app(services()) {
    app.start();
    app.show_main_window();
  }
  PlatformServices services() {
    PlatformServices s;
    s.art_socket = &udp;
    return s;
  }
  Store& store() { return app.console().store(); }
  // Button 1 set up as a Preset: its three boxes are the preset's channels.
  FunctionSetupWindow& button_setup() {
    store().Button_Functions[0].Function = kFunctionPreset;
    app.handle([&] { app.console().playback_desk().Open_Button_Setup(0); });
    auto& window = window_named<FunctionSetupWindow>(app, "button-setup");
    QApplication::setActiveWindow(&window);
    return window;
  }
  static void type_into(QLineEdit* box, const char* keys) {
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, keys);
  }
  // Another console's ArtDmx, as it arrives at a venue.
  void foreign_art_dmx() {
    std::array<std::uint8_t, artnet::dmx::kSlots> frame{};
    frame[0] = 200;
    const auto packet = artnet::build_dmx(3, frame);
    udp.deliver(std::vector<std::uint8_t>(packet.begin(), packet.end()));
    QCoreApplication::processEvents();
  }

  FakeUdp udp;
  DeskApp app;
};

TEST_F(TypedEdits, OkStoresTheChannelTypedWithoutLeavingTheBox) {
  FunctionSetupWindow& setup = button_setup();
  type_into(setup.Channel(1), "7");
  QTest::mouseClick(setup.OK(), Qt::LeftButton);
  EXPECT_EQ(store().Button_Functions[0].Channel2, 7);
}

TEST_F(TypedEdits, DatagramsNeverReplaceTheTextBeingTyped) {
  FunctionSetupWindow& setup = button_setup();
  QLineEdit* box = setup.Channel(0);
  type_into(box, "1");
  for (int i = 0; i < 50; ++i) foreign_art_dmx();  // a second of a console at 50 frames/s
  EXPECT_EQ(box->text(), QStringLiteral("1"));
  QTest::keyClicks(box, "2");
  foreign_art_dmx();
  QTest::mouseClick(setup.OK(), Qt::LeftButton);
  EXPECT_EQ(store().Button_Functions[0].Channel1, 12);
}

TEST_F(TypedEdits, ARefusedEditShowsTheDesksValueOnceEditingEnds) {
  FunctionSetupWindow& setup = button_setup();
  QLineEdit* box = setup.Channel(2);
  type_into(box, "999");  // no such channel
  EXPECT_EQ(box->text(), QStringLiteral("999")) << "kept while typed";
  QTest::keyClick(box, Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(box->text(), QStringLiteral("0"));
}

// SIGTERM, SIGINT and closing the window end the event loop; main() then shuts
// the console down and destroys the desk with a box still being typed into.
TEST(ShutDown, ABoxBeingTypedIntoEndsWithTheDeskAndReachesNoDestroyedWindow) {
  auto app = std::make_unique<DeskApp>();
  app->start();
  app->show_main_window();
  app->console().store().Button_Functions[0].Function = kFunctionPreset;
  app->handle([&] { app->console().playback_desk().Open_Button_Setup(0); });
  auto& setup = window_named<FunctionSetupWindow>(*app, "button-setup");
  QApplication::setActiveWindow(&setup);
  const QPointer<QLineEdit> box = setup.Channel(0);
  box->setFocus();
  QTest::keyClicks(box, "7");
  ASSERT_TRUE(box->hasFocus());
  app->console().shutdown();
  app.reset();
  EXPECT_TRUE(box.isNull());
}

}  // namespace
}  // namespace lumaris
