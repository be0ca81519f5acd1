#pragma once

#include <QSlider>
#include <functional>

#include "app/widgets/sync.h"

namespace lumaris {

// A vertical level fader. The models keep slider values the way the desk does
// (0 at the top = full, 255 at the bottom); on screen the fader fills from the
// bottom like any lighting fader. This class converts between the two.
class LevelSlider : public QSlider {
 public:
  explicit LevelSlider(QWidget* parent = nullptr) : QSlider(Qt::Vertical, parent) {
    setRange(0, 255);
    connect(this, &QSlider::valueChanged, [this](int level) {
      if (on_change_) on_change_(255 - level);
    });
  }

  // The value as the model keeps it.
  int model_value() const { return 255 - value(); }
  // Shows the model's value; a dry pass (sync.h) only takes its fingerprint.
  void set_model_value(int model_value) {
    if (sync::dry(this, model_value)) return;
    if (this->model_value() == model_value) return;
    const QSignalBlocker block(this);
    setValue(255 - model_value);
  }
  void on_model_change(std::function<void(int)> change) { on_change_ = std::move(change); }

 private:
  std::function<void(int)> on_change_;
};

}  // namespace lumaris
