#include <gtest/gtest.h>

#include <QLabel>

#include "app/desk_app.h"
#include "app/main_desk_window.h"
#include "net/art_net_node.h"
#include "tests/support/fake_udp.h"

namespace lumaris {

// The main desk shows, next to the Art-Net indicator, a destination in force.
TEST(ArtDestinationLabel, ShownOnTheMainDeskWhileADestinationIsInForce) {
  FakeUdp udp;
  PlatformServices services;
  services.art_socket = &udp;
  DeskApp app(services);
  app.start();
  app.show_main_window();
  auto* label = app.main_window().findChild<QLabel*>(QStringLiteral("Art_Destination"));
  ASSERT_NE(label, nullptr);
  EXPECT_FALSE(label->isVisible()) << "automatic broadcast: nothing to say";

  app.handle([&] { app.console().art_net().set_run_destination("127.0.0.1"); });
  EXPECT_TRUE(label->isVisible());
  EXPECT_EQ(label->text(), QStringLiteral("to 127.0.0.1 (this run)"));
  EXPECT_TRUE(label->toolTip().contains(QStringLiteral("--artnet-target")));

  app.handle([&] { app.console().art_net().set_run_destination(""); });
  EXPECT_FALSE(label->isVisible());
}

}  // namespace lumaris
