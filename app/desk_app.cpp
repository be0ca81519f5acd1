#include "app/desk_app.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QShortcut>
#include <cmath>
#include <functional>

#include "app/main_desk_window.h"
#include "core/main_desk.h"
#include "app/widgets/sync.h"

namespace lumaris {

namespace {

// Typed text reaches the desk where a person expects it to. A box the operator
// is typing into holds an edit until it is committed (QLineEdit::isModified);
// re-syncs leave such a box alone (sync::text), so neither a timer nor the
// network ever replaces what is being typed. The edit is committed
// - when the operator presses any other control of the same window (OK, Apply,
//   <, >, Record, a slider): the window's pending edits are committed first, as
//   Tab would, so a button that never takes the focus still acts on them;
// - by Return, or by leaving the box: the box then shows the desk's value again
//   (a refused edit is undone) and the windows are re-synced.
class EditCommits final : public QObject {
 public:
  explicit EditCommits(std::function<void()> refresh) : refresh_(std::move(refresh)) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* edit = qobject_cast<QLineEdit*>(watched);
    switch (event->type()) {
      case QEvent::MouseButtonPress:
        if (auto* widget = qobject_cast<QWidget*>(watched); widget != nullptr && edit == nullptr) {
          commit_pending(widget->window());
        }
        break;
      case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (edit != nullptr && (key == Qt::Key_Return || key == Qt::Key_Enter)) end_later(edit);
        break;
      }
      case QEvent::FocusOut:
        if (edit != nullptr && static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
          end_later(edit);
        }
        break;
      default:
        break;
    }
    return false;
  }

 private:
  // Boxes inside spin boxes and combo boxes belong to those controls.
  static bool own_box(const QLineEdit* edit) {
    const QWidget* parent = edit->parentWidget();
    return qobject_cast<const QAbstractSpinBox*>(parent) == nullptr &&
           qobject_cast<const QComboBox*>(parent) == nullptr;
  }

  static void commit_pending(QWidget* window) {
    for (QLineEdit* edit : window->findChildren<QLineEdit*>()) {
      if (!edit->isModified() || edit->isReadOnly() || !own_box(edit)) continue;
      edit->setModified(false);
      emit edit->editingFinished();
    }
  }

  // Qt commits the box itself (editingFinished) while it handles the key or the
  // focus change; afterwards the box follows the desk again.
  void end_later(QLineEdit* edit) {
    QPointer<QLineEdit> box(edit);
    QMetaObject::invokeMethod(
        this,
        [this, box] {
          if (box != nullptr) box->setModified(false);
          refresh_();
        },
        Qt::QueuedConnection);
  }

  std::function<void()> refresh_;
};

}  // namespace

QKeySequence show_file_keys(const std::string& menu_entry) {
  if (menu_entry == "load") return QKeySequence(Qt::CTRL | Qt::Key_O);
  if (menu_entry == "save") return QKeySequence(Qt::CTRL | Qt::Key_S);
  if (menu_entry == "save-as") return QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
  return {};
}

// The main desk carries the keys on its File menu; the other desks answer them
// the same way, as the main desk's menu would.
void DeskApp::add_show_file_keys() {
  for (const auto& window : windows_) {
    if (window->name() != "playback-desk" && window->name() != "sequence-desk") continue;
    for (const char* entry : {"load", "save", "save-as"}) {
      auto* key = new QShortcut(show_file_keys(entry), window->widget());
      QObject::connect(key, &QShortcut::activated, [this, name = std::string(entry)] {
        handle([&] { console_->main_desk().Menu_Click(name); });
      });
    }
  }
}

DeskApp::DeskApp(PlatformServices services) {
  services.scheduler = &scheduler_;
  if (services.dialogs == nullptr) services.dialogs = &dialogs_;
  services.clock = &clock_;
  console_ = std::make_unique<Console>(services);
  windows_ = create_desk_windows(*this);
  main_window_ = static_cast<MainDeskWindow*>(windows_.front().get());
  add_show_file_keys();
  synced_.resize(windows_.size());
  dialogs_.set_parent_provider([] { return QApplication::activeWindow(); });
  scheduler_.set_after_event([this] { after_event(); });
  background_due_.setSingleShot(true);
  QObject::connect(&background_due_, &QTimer::timeout, [this] { flush_background_refresh(); });
  edit_commits_ = std::make_unique<EditCommits>([this] { refresh_windows(); });
  if (QCoreApplication* qt = QCoreApplication::instance()) qt->installEventFilter(edit_commits_.get());
}

// Closing: no event reaches the engine and no window re-syncs while the windows
// go, whatever a box that loses its focus on the way says.
DeskApp::~DeskApp() {
  closing_ = true;
  edit_commits_.reset();
  // A box that loses its focus while its window is destroyed would still
  // signal into the half-destroyed window: from here on no control signals.
  for (const auto& window : windows_) {
    QWidget* widget = window->widget();
    widget->blockSignals(true);
    for (QObject* child : widget->findChildren<QObject*>()) child->blockSignals(true);
  }
  windows_.clear();
}

void DeskApp::start() {
  scheduler_.run_event([this] { console_->start(); });
}

void DeskApp::show_main_window() {
  main_window_->widget()->show();
  refresh_windows();
}

void DeskApp::refresh_windows() { refresh(false); }

void DeskApp::after_event() {
  if (scheduler_.event_was_operator()) {
    background_pending_ = false;
    background_due_.stop();
    refresh(false);
    return;
  }
  const double now = scheduler_.now_ms();
  const double wait = last_background_ms_ + background_interval_ms_ - now;
  if (wait <= 0) {
    last_background_ms_ = now;
    refresh(true);
  } else if (!background_pending_) {
    background_pending_ = true;
    background_due_.start(static_cast<int>(std::ceil(wait)));
  }
}

void DeskApp::flush_background_refresh() {
  if (!background_pending_) return;
  background_pending_ = false;
  background_due_.stop();
  last_background_ms_ = scheduler_.now_ms();
  refresh(true);
}

// A window is walked only while it is shown and not minimised. After an event
// that is not the operator's (a timer's tick, a datagram, a MIDI message, the
// terminal) a part of its walk is skipped when a dry pass finds the values it
// would write unchanged; after the operator's events the walk always runs in
// full, so a widget the operator moved shows the model again even when the
// model refused the move. A box with an edit under way is left alone either way.
void DeskApp::refresh(bool background) {
  if (closing_) return;
  for (std::size_t i = 0; i < windows_.size(); ++i) {
    DeskWindow& window = *windows_[i];
    QWidget* widget = window.widget();
    const bool wanted = window.model().visible();
    std::vector<std::uint64_t>& synced = synced_[i];
    if (wanted && !widget->isMinimized()) {
      const int parts = window.sync_parts();
      fingerprints_.resize(static_cast<std::size_t>(parts));
      for (int part = 0; part < parts; ++part) {
        const sync::DryPass dry;
        window.sync_part(part);
        fingerprints_[static_cast<std::size_t>(part)] = dry.value();
      }
      if (!background || synced.size() != fingerprints_.size()) {
        window.sync();
        ++walks_;
      } else if (synced != fingerprints_) {
        for (int part = 0; part < parts; ++part) {
          const auto at = static_cast<std::size_t>(part);
          if (synced[at] != fingerprints_[at]) window.sync_part(part);
        }
        ++walks_;
      }
      synced = fingerprints_;
    } else {
      synced.clear();
    }
    if (wanted != widget->isVisible()) {
      widget->setVisible(wanted);
      if (wanted) widget->raise();
    }
  }
}

}  // namespace lumaris
