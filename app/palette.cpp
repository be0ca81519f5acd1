#include "app/palette.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace lumaris {

void apply_stage_palette(QApplication& app) {
  app.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QPalette palette;
  const QColor window(37, 37, 40);
  const QColor base(25, 25, 28);
  const QColor text(215, 215, 215);
  palette.setColor(QPalette::Window, window);
  palette.setColor(QPalette::WindowText, text);
  palette.setColor(QPalette::Base, base);
  palette.setColor(QPalette::AlternateBase, window);
  palette.setColor(QPalette::ToolTipBase, QColor(50, 50, 55));
  palette.setColor(QPalette::ToolTipText, text);
  palette.setColor(QPalette::Text, text);
  palette.setColor(QPalette::Button, QColor(52, 52, 57));
  palette.setColor(QPalette::ButtonText, text);
  palette.setColor(QPalette::BrightText, Qt::red);
  palette.setColor(QPalette::Highlight, QColor(200, 120, 30));
  palette.setColor(QPalette::HighlightedText, Qt::black);
  palette.setColor(QPalette::Disabled, QPalette::Text, QColor(110, 110, 110));
  palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(110, 110, 110));
  palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(110, 110, 110));
  app.setPalette(palette);
}

}  // namespace lumaris
