#pragma once

#include <QWidget>
#include <functional>

#include "platform/dialogs.h"

namespace lumaris {

// Modal dialogs with Qt: QMessageBox, QFileDialog, QColorDialog.
class QtDialogs final : public Dialogs {
 public:
  // The window that owns the dialogs; asked at each call, since windows come and go.
  void set_parent_provider(std::function<QWidget*()> provider) { parent_ = std::move(provider); }

  MessageResult message(const MessageBoxSpec& request) override;
  std::string open_file(const FileDialogSpec& request) override;
  std::string save_file(const FileDialogSpec& request) override;
  std::optional<Rgb> choose_colour(const std::string& title, std::optional<Rgb> initial) override;

 private:
  QWidget* parent() const { return parent_ ? parent_() : nullptr; }
  std::function<QWidget*()> parent_;
};

}  // namespace lumaris
