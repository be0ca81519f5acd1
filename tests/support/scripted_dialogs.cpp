#include "tests/support/scripted_dialogs.h"

namespace lumaris {

MessageResult ScriptedDialogs::message(const MessageBoxSpec& request) {
  messages_.push_back(request);
  if (request.buttons != MessageButtons::Ok && during_message_) {
    auto work = std::move(during_message_);
    during_message_ = nullptr;
    work();
  }
  if (message_answers_.empty()) return request.default_button;
  const MessageResult answer = message_answers_.front();
  message_answers_.pop_front();
  return answer;
}

std::string ScriptedDialogs::open_file(const FileDialogSpec& request) {
  file_dialogs_.push_back(request);
  if (file_answers_.empty()) return {};
  std::string answer = file_answers_.front();
  file_answers_.pop_front();
  return answer;
}

std::string ScriptedDialogs::save_file(const FileDialogSpec& request) { return open_file(request); }

std::optional<Rgb> ScriptedDialogs::choose_colour(const std::string& title, std::optional<Rgb>) {
  colour_titles_.push_back(title);
  if (colour_answers_.empty()) return std::nullopt;
  const std::optional<Rgb> answer = colour_answers_.front();
  colour_answers_.pop_front();
  return answer;
}

}  // namespace lumaris
