#pragma once

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QSignalBlocker>
#include <QString>
#include <QWidget>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/colour.h"

// Write-if-changed helpers for re-syncing widgets from their models. Signals are
// blocked while writing, so a sync never loops back into the model.
//
// A sync can also run as a dry pass (DryPass below): the helpers then fold what
// they would write into a fingerprint and leave the widgets alone. Equal
// fingerprints mean the helpers would write the same values as last time, so the
// real walk can be skipped. Code in a sync() that writes widgets itself runs in
// both passes and so never goes stale.
namespace lumaris::sync {

// FNV-1a over everything a dry pass is shown.
class Fingerprint {
 public:
  void add(const void* widget, std::string_view value) {
    add_bytes(&widget, sizeof widget);
    add_bytes(value.data(), value.size());
    add_bytes(&kEnd, 1);
  }
  void add(const void* widget, double value) {
    add_bytes(&widget, sizeof widget);
    add_bytes(&value, sizeof value);
  }
  std::uint64_t value() const { return hash_; }

 private:
  static constexpr char kEnd = '\0';
  void add_bytes(const void* data, std::size_t size) {
    const auto* bytes = static_cast<const unsigned char*>(data);
    for (std::size_t i = 0; i < size; ++i) {
      hash_ ^= bytes[i];
      hash_ *= 1099511628211ull;
    }
  }
  std::uint64_t hash_ = 14695981039346656037ull;
};

// The fingerprint of the dry pass under way, if any (the GUI thread only).
inline Fingerprint*& dry_fingerprint() {
  static Fingerprint* current = nullptr;
  return current;
}

// While alive, the helpers only fingerprint.
class DryPass {
 public:
  DryPass() { dry_fingerprint() = &fingerprint_; }
  ~DryPass() { dry_fingerprint() = nullptr; }
  DryPass(const DryPass&) = delete;
  DryPass& operator=(const DryPass&) = delete;
  std::uint64_t value() const { return fingerprint_.value(); }

 private:
  Fingerprint fingerprint_;
};

inline bool dry(const void* widget, std::string_view value) {
  if (Fingerprint* f = dry_fingerprint()) {
    f->add(widget, value);
    return true;
  }
  return false;
}

inline bool dry(const void* widget, double value) {
  if (Fingerprint* f = dry_fingerprint()) {
    f->add(widget, value);
    return true;
  }
  return false;
}

inline QString q(const std::string& text) { return QString::fromStdString(text); }

// A box with an edit under way keeps what the operator typed until the edit is
// committed (see DeskApp); then it shows the model's value again.
inline void text(QLineEdit* edit, const std::string& value) {
  if (edit->isModified()) return;
  if (dry(edit, value)) return;
  const QString wanted = q(value);
  if (edit->text() == wanted) return;
  const QSignalBlocker block(edit);
  edit->setText(wanted);
}

inline void text(QLabel* label, const std::string& value) {
  if (dry(label, value)) return;
  const QString wanted = q(value);
  if (label->text() != wanted) label->setText(wanted);
}

inline void text(QAbstractButton* button, const std::string& value) {
  if (dry(button, value)) return;
  const QString wanted = q(value);
  if (button->text() != wanted) button->setText(wanted);
}

inline void value(QAbstractSlider* slider, int wanted) {
  if (dry(slider, wanted)) return;
  if (slider->value() == wanted) return;
  const QSignalBlocker block(slider);
  slider->setValue(wanted);
}

inline void checked(QAbstractButton* button, bool wanted) {
  if (dry(button, wanted ? 1.0 : 0.0)) return;
  if (button->isChecked() == wanted) return;
  const QSignalBlocker block(button);
  button->setChecked(wanted);
}

inline void tooltip(QWidget* widget, const std::string& value) {
  if (dry(widget, value)) return;
  const QString wanted = q(value);
  if (widget->toolTip() != wanted) widget->setToolTip(wanted);
}

inline void enabled(QWidget* widget, bool wanted) {
  if (dry(widget, wanted ? 1.0 : 0.0)) return;
  if (widget->isEnabled() != wanted) widget->setEnabled(wanted);
}

inline void visible(QWidget* widget, bool wanted) {
  if (dry(widget, wanted ? 1.0 : 0.0)) return;
  if (widget->isVisibleTo(widget->parentWidget()) != wanted) widget->setVisible(wanted);
}

inline void title(QWidget* window, const std::string& value) {
  if (dry(window, value)) return;
  const QString wanted = q(value);
  if (window->windowTitle() != wanted) window->setWindowTitle(wanted);
}

// Paints a widget's background; nothing means the style's own colour. Text on a
// painted background is black or white, whichever reads better on it.
inline void background(QWidget* widget, Paint paint, const char* kind = "QWidget") {
  if (dry(widget, paint ? (paint->r << 16 | paint->g << 8 | paint->b) : -1.0)) return;
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

// Fills a widget that paints its own background (a ColourBox) through its
// palette; nothing means the style's own colour. For colours that change while
// a show runs: a style sheet is parsed again and the widget re-polished on every
// change, a palette is not.
inline void fill(QWidget* widget, Paint paint) {
  if (dry(widget, paint ? (paint->r << 16 | paint->g << 8 | paint->b) : -1.0)) return;
  const QPalette& shown = widget->palette();
  const bool filled = widget->testAttribute(Qt::WA_SetPalette);
  if (!paint) {
    if (filled) widget->setPalette(QPalette());
    return;
  }
  const QColor wanted(paint->r, paint->g, paint->b);
  if (filled && shown.color(QPalette::Window) == wanted) return;
  const int luma = (299 * paint->r + 587 * paint->g + 114 * paint->b) / 1000;
  QPalette palette = shown;
  palette.setColor(QPalette::Window, wanted);
  palette.setColor(QPalette::WindowText, luma < 110 ? Qt::white : Qt::black);
  widget->setPalette(palette);
}

// Schedules a repaint of a widget that paints straight from its model when the
// model values its painting depends on (`shown`) differ from those of its last
// repaint, which `last` keeps for the widget.
inline void repaint(QWidget* widget, std::optional<std::uint64_t>& last, std::initializer_list<double> shown) {
  Fingerprint values;
  for (double value : shown) values.add(widget, value);
  if (dry(widget, static_cast<double>(values.value()))) return;
  if (last == values.value()) return;
  last = values.value();
  widget->update();
}

inline void items(QComboBox* box, const std::vector<std::string>& entries) {
  if (Fingerprint* f = dry_fingerprint()) {
    for (const std::string& entry : entries) f->add(box, entry);
    return;
  }
  const QSignalBlocker block(box);
  for (int i = 0; i < static_cast<int>(entries.size()); ++i) {
    const QString wanted = q(entries[static_cast<std::size_t>(i)]);
    if (i >= box->count()) {
      box->addItem(wanted);
    } else if (box->itemText(i) != wanted) {
      box->setItemText(i, wanted);
    }
  }
}

inline void current(QComboBox* box, int index) {
  if (dry(box, index)) return;
  if (box->currentIndex() == index) return;
  const QSignalBlocker block(box);
  box->setCurrentIndex(index);
}

inline void enabled(QAction* action, bool wanted) {
  if (dry(action, wanted ? 1.0 : 0.0)) return;
  if (action->isEnabled() != wanted) action->setEnabled(wanted);
}

}  // namespace lumaris::sync
