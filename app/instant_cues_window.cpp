#include "app/instant_cues_window.h"

#include <QGridLayout>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/desk_app.h"
#include "app/widgets/sync.h"
#include "playback/playback_desk.h"

namespace lumaris {

namespace {

constexpr int kColumns = 7;

// A slot: the left button takes, the right button edits. Both act on release,
// as a push button does, so a press dragged off the slot does nothing.
class SlotButton : public QPushButton {
 public:
  using Handler = std::function<void(MouseButton)>;
  SlotButton(QWidget* parent, Handler click) : QPushButton(parent), click_(std::move(click)) {
    setFocusPolicy(Qt::NoFocus);
    setMinimumSize(120, 72);
    // Hidden slots keep their place, so a slot sits where the operator learnt it.
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    QFont big = font();
    big.setPointSizeF(big.pointSizeF() * 1.3);
    big.setBold(true);
    setFont(big);
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() == Qt::RightButton) {
      event->accept();
      return;
    }
    QPushButton::mousePressEvent(event);
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() == Qt::RightButton) {
      if (rect().contains(event->position().toPoint())) click_(MouseButton::Right);
      event->accept();
      return;
    }
    QPushButton::mouseReleaseEvent(event);
  }

 private:
  Handler click_;
};

}  // namespace

InstantCuesWindow::InstantCuesWindow(DeskApp& app)
    : ToolWindow([&app] { app.handle([&app] { app.console().playback_desk().instant_cues().Exit_Click(); }); }),
      app_(app) {
  auto* layout = new QVBoxLayout(this);
  auto* grid = new QGridLayout;
  for (int i = 0; i < InstantCues::kSlots; ++i) {
    auto click = [this, i](MouseButton button) {
      app_.handle([this, i, button] { panel().Screen_sel_Click(i, button); });
    };
    auto* slot = new SlotButton(this, click);
    connect(slot, &QPushButton::clicked, [click] { click(MouseButton::Left); });
    slot->setVisible(false);
    slots_[static_cast<std::size_t>(i)] = slot;
    grid->addWidget(slot, i / kColumns, i % kColumns);
  }
  layout->addLayout(grid, 1);
  exit_ = new QPushButton(QStringLiteral("Exit"), this);
  exit_->setToolTip(QStringLiteral("Exit and Close Instant Screens"));
  exit_->setFocusPolicy(Qt::NoFocus);
  auto* bottom = new QHBoxLayout;
  bottom->addStretch(1);
  bottom->addWidget(exit_);
  layout->addLayout(bottom);
  connect(exit_, &QPushButton::clicked, [this] { app_.handle([this] { panel().Exit_Click(); }); });
  resize(kColumns * 130, 220);
}

Window& InstantCuesWindow::model() { return panel(); }
InstantCues& InstantCuesWindow::panel() { return app_.console().playback_desk().instant_cues(); }

void InstantCuesWindow::prepare_screenshot() { app_.console().playback_desk().Instant_screens_Click(); }

void InstantCuesWindow::sync() {
  const InstantCues& p = panel();
  sync::title(this, p.caption());
  for (int i = 0; i < InstantCues::kSlots; ++i) {
    const InstantCues::Slot& s = p.Screen_sel(i);
    QPushButton* slot = slots_[static_cast<std::size_t>(i)];
    sync::text(slot, s.caption);
    sync::tooltip(slot, s.tooltip);
    sync::background(slot, s.colour, "QPushButton");
    sync::visible(slot, s.visible);
  }
}

}  // namespace lumaris
