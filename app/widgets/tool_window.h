#pragma once

#include <QCloseEvent>
#include <QWidget>
#include <functional>

namespace lumaris {

// A top-level window of the console other than the main desk. Closing it only
// hides it (windows are kept for the life of the program): the close runs `on_close`,
// which hides the model.
class ToolWindow : public QWidget {
 public:
  explicit ToolWindow(std::function<void()> on_close, QWidget* parent = nullptr)
      : QWidget(parent, Qt::Window), on_close_(std::move(on_close)) {}

 protected:
  void closeEvent(QCloseEvent* event) override {
    if (on_close_) on_close_();
    event->accept();
  }

 private:
  std::function<void()> on_close_;
};

}  // namespace lumaris
