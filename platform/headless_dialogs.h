#pragma once

#include <ostream>

#include "platform/dialogs.h"

namespace lumaris {

// Dialogs of a console without a window: a message box prints its title and
// text and takes its default button; file and colour dialogs are cancelled.
class HeadlessDialogs final : public Dialogs {
 public:
  explicit HeadlessDialogs(std::ostream& out) : out_(out) {}

  MessageResult message(const MessageBoxSpec& request) override;
  std::string open_file(const FileDialogSpec&) override { return {}; }
  std::string save_file(const FileDialogSpec&) override { return {}; }
  std::optional<Rgb> choose_colour(const std::string&, std::optional<Rgb>) override {
    return std::nullopt;
  }

 private:
  std::ostream& out_;
};

}  // namespace lumaris
