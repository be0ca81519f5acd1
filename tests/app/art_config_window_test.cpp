#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>

#include "app/art_config_window.h"
#include "app/desk_app.h"
#include "core/main_desk.h"
#include "net/art_net_node.h"
#include "tests/support/fake_udp.h"

namespace lumaris {

TEST(ArtConfigWindow, RowButtonReachesTheStoreAndTurnsGreen) {
  FakeUdp udp;
  PlatformServices services;
  services.art_socket = &udp;
  DeskApp app(services);
  app.start();
  app.handle([&] { app.console().main_desk().Menu_Click("Art_setup"); });
  ArtConfigWindow* window = nullptr;
  for (const auto& w : app.windows()) {
    if (w->name() == "Art_Config") window = static_cast<ArtConfigWindow*>(w.get());
  }
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(window->Text2()->text(), QStringLiteral(" Art-Net Initialized"));
  EXPECT_EQ(window->Text1(6)->text(), QStringLiteral("6"));

  window->Button1(6)->click();
  EXPECT_TRUE(app.console().store().Art_Universes[6].Enable);
  EXPECT_EQ(window->Button1(6)->text(), QStringLiteral("Disable"));
  EXPECT_TRUE(window->Button1(6)->styleSheet().contains(QStringLiteral("rgb(0, 255, 0)")));

  window->Destination()->setText(QStringLiteral("127.0.0.1"));
  emit window->Destination()->textEdited(window->Destination()->text());
  window->Destination_Set()->click();
  EXPECT_EQ(app.console().art_net().Art_Broadcast(), "127.0.0.1");

  window->Command1()->click();
  EXPECT_FALSE(window->isVisible());
  app.console().shutdown();
}

}  // namespace lumaris
