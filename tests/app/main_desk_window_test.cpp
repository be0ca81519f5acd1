#include <gtest/gtest.h>

#include "app/desk_app.h"
#include "app/main_desk_window.h"

namespace lumaris {

TEST(MainDeskWindow, FaderMoveReachesTheStore) {
  DeskApp app;
  app.start();
  app.main_window().Slider1(4)->setValue(200);  // on screen: the level
  EXPECT_EQ(app.console().store().Desk_Level[4], 200);
}

}  // namespace lumaris
