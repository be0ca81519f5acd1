#pragma once

#include <optional>
#include <string>

#include "base/colour.h"

namespace lumaris {

enum class MessageIcon { None, Exclamation, Question, Information, Critical };
// SaveDiscardCancel asks what becomes of unsaved changes before the show goes.
enum class MessageButtons { Ok, OkCancel, SaveDiscardCancel };
enum class MessageResult { Ok, Cancel, Save, Discard };

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
  // "*.xml" when nothing was chosen before; a name without a folder is
  // proposed in the user's documents folder.
  std::string initial_name;
};

// Dialogs for the operator. A message box with only OK is a notice: it returns
// at once and stays on screen until the operator closes it, so a notice raised
// by a timer (an adapter failing mid-show) never holds up the show. A box that
// asks (OK/Cancel, Save/Discard/Cancel) and the file and colour dialogs wait for the answer; the
// show's timers keep running meanwhile. A file dialog returns an empty text when
// cancelled; a colour dialog returns nothing when cancelled.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  virtual MessageResult message(const MessageBoxSpec& request) = 0;
  virtual std::string open_file(const FileDialogSpec& request) = 0;
  virtual std::string save_file(const FileDialogSpec& request) = 0;
  virtual std::optional<Rgb> choose_colour(const std::string& title, std::optional<Rgb> initial) = 0;
};

}  // namespace lumaris
