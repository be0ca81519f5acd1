#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/midi.h"

namespace lumaris {

// MIDI ports that exist only in the test: it names the ports, plays the surface
// by delivering messages and reads back every byte that left the output port.
class FakeMidi final : public Midi {
 public:
  std::vector<std::string> input_names() override { return inputs_; }
  std::vector<std::string> output_names() override { return outputs_; }
  std::optional<std::string> open_input(int index) override;
  std::optional<std::string> open_output(int index) override;
  void close_input() override { open_in_.reset(); }
  void close_output() override { open_out_.reset(); }
  bool input_open() const override { return open_in_.has_value(); }
  bool output_open() const override { return open_out_.has_value(); }
  void send_control_change(int controller, int value) override;
  void on_message(MessageHandler handler) override { message_handler_ = std::move(handler); }
  void on_error(ErrorHandler handler) override { error_handler_ = std::move(handler); }

  // The test's side.
  void set_ports(std::vector<std::string> inputs, std::vector<std::string> outputs) {
    inputs_ = std::move(inputs);
    outputs_ = std::move(outputs);
  }
  // The next output opens fail with this description.
  void refuse_output(std::string description) { output_refusal_ = std::move(description); }
  // As if the surface sent these bytes (delivered as RtMidi would: maybe on another thread).
  void deliver(const std::vector<std::uint8_t>& message);
  void fail(int code, const std::string& description);
  // Every byte that left the output port, in order; opens and closes counted.
  const std::vector<std::uint8_t>& sent() const { return sent_; }
  void clear_sent() { sent_.clear(); }
  std::optional<int> open_input_index() const { return open_in_; }
  std::optional<int> open_output_index() const { return open_out_; }
  int opens() const { return opens_; }

 private:
  std::vector<std::string> inputs_;
  std::vector<std::string> outputs_;
  std::optional<std::string> output_refusal_;
  std::optional<int> open_in_;
  std::optional<int> open_out_;
  int opens_ = 0;
  MessageHandler message_handler_;
  ErrorHandler error_handler_;
  std::vector<std::uint8_t> sent_;
};

}  // namespace lumaris
