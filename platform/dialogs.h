#pragma once

#include <optional>
#include <string>

#include "base/colour.h"

namespace lumaris {

enum class MessageIcon { None, Exclamation, Question, Information, Critical };
enum class MessageButtons { Ok, OkCancel };
enum class MessageResult { Ok, Cancel };

struct MessageBoxSpec {
  std::string title;
  std::string text;
  MessageIcon icon = MessageIcon::None;
  MessageButtons buttons = MessageButtons::Ok;
  MessageResult default_button = MessageResult::Ok;
};

struct FileDialogSpec {
  std::string title;
  std::string filter;        // as the product writes it: "XML|*.xml"
  std::string initial_name;  // "*.xml" when nothing was chosen before
};

// Modal dialogs. A file dialog returns an empty text when cancelled; a colour
// dialog returns nothing when cancelled.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  virtual MessageResult message(const MessageBoxSpec& request) = 0;
  virtual std::string open_file(const FileDialogSpec& request) = 0;
  virtual std::string save_file(const FileDialogSpec& request) = 0;
  virtual std::optional<Rgb> choose_colour(const std::string& title, std::optional<Rgb> initial) = 0;
};

}  // namespace lumaris
