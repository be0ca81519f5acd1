// The Qt wiring tests run offscreen with one QApplication for the whole program.
#include <gtest/gtest.h>

#include <QApplication>

#include "app/widgets/screen_fit.h"

int main(int argc, char** argv) {
  // On a laptop's screen: every window must fit 1366x768.
  const auto screen = lumaris::use_offscreen_screen({1366, 768});
  QApplication app(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
