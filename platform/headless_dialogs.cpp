#include "platform/headless_dialogs.h"

namespace lumaris {

MessageResult HeadlessDialogs::message(const MessageBoxSpec& request) {
  out_ << "[" << request.title << "] " << request.text << std::endl;
  return request.default_button;
}

}  // namespace lumaris
