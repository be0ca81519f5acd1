#include "platform/headless_dialogs.h"

namespace lumaris {

MessageResult HeadlessDialogs::message(const MessageBoxSpec& spec) {
  out_ << "[" << spec.title << "] " << spec.text << std::endl;
  return spec.default_button;
}

}  // namespace lumaris
