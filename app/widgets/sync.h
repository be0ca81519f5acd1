#pragma once

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QString>
#include <QWidget>
#include <string>

#include "base/colour.h"

// Write-if-changed helpers for re-syncing widgets from their models. Signals are
// blocked while writing, so a sync never loops back into the model.
namespace lumaris::sync {

inline QString q(const std::string& text) { return QString::fromStdString(text); }

inline void text(QLineEdit* edit, const std::string& value) {
  const QString wanted = q(value);
  if (edit->text() == wanted) return;
  const QSignalBlocker block(edit);
  edit->setText(wanted);
}

inline void text(QLabel* label, const std::string& value) {
  const QString wanted = q(value);
  if (label->text() != wanted) label->setText(wanted);
}

inline void text(QAbstractButton* button, const std::string& value) {
  const QString wanted = q(value);
  if (button->text() != wanted) button->setText(wanted);
}

inline void value(QAbstractSlider* slider, int wanted) {
  if (slider->value() == wanted) return;
  const QSignalBlocker block(slider);
  slider->setValue(wanted);
}

inline void checked(QAbstractButton* button, bool wanted) {
  if (button->isChecked() == wanted) return;
  const QSignalBlocker block(button);
  button->setChecked(wanted);
}

inline void tooltip(QWidget* widget, const std::string& value) {
  const QString wanted = q(value);
  if (widget->toolTip() != wanted) widget->setToolTip(wanted);
}

inline void enabled(QWidget* widget, bool wanted) {
  if (widget->isEnabled() != wanted) widget->setEnabled(wanted);
}

inline void visible(QWidget* widget, bool wanted) {
  if (widget->isVisibleTo(widget->parentWidget()) != wanted) widget->setVisible(wanted);
}

inline void title(QWidget* window, const std::string& value) {
  const QString wanted = q(value);
  if (window->windowTitle() != wanted) window->setWindowTitle(wanted);
}

// Paints a widget's background; nothing means the style's own colour. Text on a
// painted background is black or white, whichever reads better on it.
inline void background(QWidget* widget, Paint paint, const char* kind = "QWidget") {
  QString sheet;
  if (paint) {
    const int luma = (299 * paint->r + 587 * paint->g + 114 * paint->b) / 1000;
    sheet = QStringLiteral("%1 { background-color: rgb(%2, %3, %4); color: %5; }")
                .arg(kind)
                .arg(paint->r)
                .arg(paint->g)
                .arg(paint->b)
                .arg(luma < 110 ? QStringLiteral("white") : QStringLiteral("black"));
  }
  if (widget->styleSheet() != sheet) widget->setStyleSheet(sheet);
}

}  // namespace lumaris::sync
