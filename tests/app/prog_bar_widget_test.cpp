#include <gtest/gtest.h>

#include <QImage>

#include "app/widgets/prog_bar_widget.h"

namespace lumaris {
namespace {

TEST(ProgBarWidget, AVerticalBarFillsFromTheBottom) {
  ProgBar model;
  model.set_BackColor(0x0000FF);  // red
  model.set_BarColor(0xFF0000);   // blue
  model.set_BorderStyle(0);
  model.set_Vertical(true);
  model.set_Value(25);
  ProgBarWidget widget(model);
  widget.resize(20, 100);
  const QImage image = widget.grab().toImage();
  EXPECT_EQ(image.pixelColor(10, 90), QColor(0, 0, 255));  // bottom quarter: bar
  EXPECT_EQ(image.pixelColor(10, 10), QColor(255, 0, 0));  // top: empty colour
}

}  // namespace
}  // namespace lumaris
