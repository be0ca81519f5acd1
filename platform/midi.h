#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace lumaris {

// One MIDI input port and one MIDI output port, as a control surface needs them.
class Midi {
 public:
  // A message as it arrived: status byte first, then its data bytes.
  using MessageHandler = std::function<void(std::vector<std::uint8_t>)>;
  // Code 0 is a warning and code 8 a message dropped on a full input queue:
  // neither loses the port. Any other code means the input can no longer be trusted.
  using ErrorHandler = std::function<void(int code, std::string description)>;
  static constexpr int kWarning = 0;
  static constexpr int kDroppedMessage = 8;

  virtual ~Midi() = default;

  // The ports present now, in their order; empty when the MIDI system is absent.
  virtual std::vector<std::string> input_names() = 0;
  virtual std::vector<std::string> output_names() = 0;

  // Opens the port at `index` of the last listing, closing the one that was open.
  // Returns why it could not be opened, nothing on success.
  virtual std::optional<std::string> open_input(int index) = 0;
  virtual std::optional<std::string> open_output(int index) = 0;
  virtual void close_input() = 0;
  virtual void close_output() = 0;
  virtual bool input_open() const = 0;
  virtual bool output_open() const = 0;

  // One Control Change on channel 1 (status 0xB0). Does nothing while no output is open.
  virtual void send_control_change(int controller, int value) = 0;

  // Both handlers may be called on any thread; the receiver posts to its own.
  virtual void on_message(MessageHandler handler) = 0;
  virtual void on_error(ErrorHandler handler) = 0;
};

}  // namespace lumaris
