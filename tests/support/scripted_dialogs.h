#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/dialogs.h"

namespace lumaris {

// Records every dialog the console opens and answers from a script. With no
// scripted answer a message box takes its default button, a file dialog is
// cancelled and a colour dialog is cancelled. As on screen, a notice (OK only)
// returns at once; a box that asks waits, and work scheduled for it runs inside.
class ScriptedDialogs final : public Dialogs {
 public:
  MessageResult message(const MessageBoxSpec& request) override;
  std::string open_file(const FileDialogSpec& request) override;
  std::string save_file(const FileDialogSpec& request) override;
  std::optional<Rgb> choose_colour(const std::string& title, std::optional<Rgb> initial) override;

  void answer_message(MessageResult result) { message_answers_.push_back(result); }
  void answer_file(std::string name) { file_answers_.push_back(std::move(name)); }
  void answer_colour(std::optional<Rgb> colour) { colour_answers_.push_back(colour); }
  // Runs inside the next box that waits for an answer, as events do inside its
  // event loop (typically scheduler.advance: the operator takes time to answer).
  void during_next_message(std::function<void()> work) { during_message_ = std::move(work); }

  const std::vector<MessageBoxSpec>& messages() const { return messages_; }
  const std::vector<FileDialogSpec>& file_dialogs() const { return file_dialogs_; }
  const std::vector<std::string>& colour_titles() const { return colour_titles_; }
  void clear() { messages_.clear(); file_dialogs_.clear(); colour_titles_.clear(); }

 private:
  std::deque<MessageResult> message_answers_;
  std::deque<std::string> file_answers_;
  std::deque<std::optional<Rgb>> colour_answers_;
  std::function<void()> during_message_;
  std::vector<MessageBoxSpec> messages_;
  std::vector<FileDialogSpec> file_dialogs_;
  std::vector<std::string> colour_titles_;
};

}  // namespace lumaris
