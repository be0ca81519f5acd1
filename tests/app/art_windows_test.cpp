#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "app/art_net_setup_window.h"
#include "app/main_desk_window.h"
#include "core/main_desk.h"
#include "net/art_net_node.h"
#include "tests/app/app_windows.h"
#include "tests/support/fake_udp.h"

namespace lumaris {
namespace {

class ArtWindows : public ::testing::Test {
 protected:
  ArtWindows() : app(services()) {
    app.start();
    app.show_main_window();
  }
  ~ArtWindows() override { app.console().shutdown(); }
  PlatformServices services() {
    PlatformServices s;
    s.art_socket = &udp;
    return s;
  }
  ArtNetNode& art_net() { return app.console().art_net(); }
  FakeUdp udp;
  DeskApp app;
};

TEST_F(ArtWindows, TheSetupRowButtonAndDestinationReachTheNode) {
  app.handle([&] { app.console().main_desk().Menu_Click("art-net-setup"); });
  auto& window = window_named<ArtNetSetupWindow>(app, "art-net-setup");
  ASSERT_TRUE(window.isVisible());
  EXPECT_EQ(window.state_box()->text(), QStringLiteral(" Art-Net Initialized"));

  window.enable_button(6)->click();
  EXPECT_TRUE(app.console().store().Art_Universes[6].Enable);
  EXPECT_EQ(window.enable_button(6)->text(), QStringLiteral("Disable"));
  EXPECT_TRUE(window.enable_button(6)->styleSheet().contains(QStringLiteral("rgb(0, 255, 0)")));

  window.Destination()->setText(QStringLiteral("127.0.0.1"));
  emit window.Destination()->textEdited(window.Destination()->text());
  window.Destination_Set()->click();
  EXPECT_EQ(art_net().Art_Broadcast(), "127.0.0.1");

  ASSERT_EQ(window.interface_list()->count(), 3);  // every address, 192.168.1.5, 127.0.0.1
  emit window.interface_list()->activated(2);
  EXPECT_EQ(udp.bound_address(), "127.0.0.1");
  EXPECT_EQ(window.interface_list()->currentIndex(), 2);

  window.close_button()->click();
  EXPECT_FALSE(window.isVisible());
}

// Next to the Art-Net indicator: the destination given for this run, if any.
TEST_F(ArtWindows, TheMainDeskShowsADestinationForThisRunOnlyWhileItIsInForce) {
  auto* label = app.main_window().findChild<QLabel*>(QStringLiteral("Art_Destination"));
  ASSERT_NE(label, nullptr);
  EXPECT_FALSE(label->isVisible()) << "automatic broadcast: nothing to say";
  app.handle([&] { art_net().set_run_destination("127.0.0.1"); });
  EXPECT_TRUE(label->isVisible());
  EXPECT_EQ(label->text(), QStringLiteral("to 127.0.0.1 (this run)"));
  EXPECT_TRUE(label->toolTip().contains(QStringLiteral("--artnet-target")));
  app.handle([&] { art_net().set_run_destination(""); });
  EXPECT_FALSE(label->isVisible());
}

}  // namespace
}  // namespace lumaris
