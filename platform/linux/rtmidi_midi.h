#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/midi.h"

class RtMidiIn;
class RtMidiOut;

namespace lumaris {

// MIDI through RtMidi on the ALSA sequencer. The sequencer is opened on the
// first listing of ports; without one (no /dev/snd/seq) every list is empty and
// nothing opens. The input callback runs on RtMidi's own thread and only hands
// a copy of the message on.
class RtMidiMidi final : public Midi {
 public:
  RtMidiMidi();
  ~RtMidiMidi() override;
  RtMidiMidi(const RtMidiMidi&) = delete;
  RtMidiMidi& operator=(const RtMidiMidi&) = delete;

  std::vector<std::string> input_names() override;
  std::vector<std::string> output_names() override;
  std::optional<std::string> open_input(int index) override;
  std::optional<std::string> open_output(int index) override;
  void close_input() override;
  void close_output() override;
  bool input_open() const override;
  bool output_open() const override;
  void send_control_change(int controller, int value) override;
  void on_message(MessageHandler handler) override;
  void on_error(ErrorHandler handler) override;

  // Why the sequencer could not be opened, empty while it is open or untried.
  const std::string& unavailable_reason() const { return unavailable_; }

  // Called from RtMidi, on its thread or on ours.
  void deliver(std::vector<std::uint8_t> message);
  void report(int code, const std::string& text);

 private:
  bool ready();
  template <typename Work>
  std::optional<std::string> call(Work&& work);

  std::unique_ptr<RtMidiIn> in_;
  std::unique_ptr<RtMidiOut> out_;
  std::string unavailable_;
  mutable std::mutex handlers_mutex_;
  MessageHandler message_handler_;
  ErrorHandler error_handler_;
  // While one of our own calls runs, RtMidi's errors belong to that call.
  std::atomic<std::thread::id> calling_thread_{};
  std::optional<std::string> call_error_;
};

}  // namespace lumaris
