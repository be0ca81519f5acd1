#include "tests/support/fake_midi.h"

namespace lumaris {

std::optional<std::string> FakeMidi::open_input(int index) {
  open_in_.reset();
  ++opens_;
  if (index < 0 || index >= static_cast<int>(inputs_.size())) return "no such MIDI input port";
  open_in_ = index;
  return std::nullopt;
}

std::optional<std::string> FakeMidi::open_output(int index) {
  open_out_.reset();
  ++opens_;
  if (output_refusal_) return output_refusal_;
  if (index < 0 || index >= static_cast<int>(outputs_.size())) return "no such MIDI output port";
  open_out_ = index;
  return std::nullopt;
}

void FakeMidi::send_control_change(int controller, int value) {
  if (!open_out_) return;
  sent_.push_back(0xB0);
  sent_.push_back(static_cast<std::uint8_t>(controller & 0x7F));
  sent_.push_back(static_cast<std::uint8_t>(value & 0x7F));
}

void FakeMidi::deliver(const std::vector<std::uint8_t>& message) {
  if (open_in_ && message_handler_) message_handler_(message);
}

void FakeMidi::fail(int code, const std::string& description) {
  if (error_handler_) error_handler_(code, description);
}

}  // namespace lumaris
