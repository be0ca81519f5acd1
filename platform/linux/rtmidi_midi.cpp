#include "platform/linux/rtmidi_midi.h"

#include <RtMidi.h>

#include <utility>

namespace lumaris {

namespace {

constexpr const char* kClientName = "Lumaris";
constexpr const char* kInputPortName = "Lumaris Input";
constexpr const char* kOutputPortName = "Lumaris Output";
constexpr unsigned char kControlChange = 0xB0;  // channel 1
// RtMidi's own error types are reported above the two codes that keep the port.
constexpr int kRtMidiCodeBase = 16;

int code_of(RtMidiError::Type type) {
  if (type == RtMidiError::WARNING || type == RtMidiError::DEBUG_WARNING) return Midi::kWarning;
  return kRtMidiCodeBase + static_cast<int>(type);
}

void on_rtmidi_message(double /*stamp*/, std::vector<unsigned char>* message, void* user) {
  if (message == nullptr || user == nullptr) return;
  static_cast<RtMidiMidi*>(user)->deliver(std::vector<std::uint8_t>(message->begin(), message->end()));
}

void on_rtmidi_error(RtMidiError::Type type, const std::string& text, void* user) {
  if (user != nullptr) static_cast<RtMidiMidi*>(user)->report(code_of(type), text);
}

}  // namespace

RtMidiMidi::RtMidiMidi() = default;

RtMidiMidi::~RtMidiMidi() {
  if (in_) {
    in_->cancelCallback();
    in_->closePort();
  }
  if (out_) out_->closePort();
}

bool RtMidiMidi::ready() {
  if (in_ && out_) return true;
  try {
    // ALSA only: RtMidi would otherwise try JACK first and wait on a server.
    auto in = std::make_unique<RtMidiIn>(RtMidi::LINUX_ALSA, kClientName);
    auto out = std::make_unique<RtMidiOut>(RtMidi::LINUX_ALSA, kClientName);
    in->setErrorCallback(&on_rtmidi_error, this);
    out->setErrorCallback(&on_rtmidi_error, this);
    in->ignoreTypes(true, true, true);  // system exclusive, timing, active sensing
    in_ = std::move(in);
    out_ = std::move(out);
    unavailable_.clear();
    return true;
  } catch (const RtMidiError& error) {
    unavailable_ = error.getMessage();
  } catch (const std::exception& error) {
    unavailable_ = error.what();
  }
  return false;
}

template <typename Work>
std::optional<std::string> RtMidiMidi::call(Work&& work) {
  calling_thread_ = std::this_thread::get_id();
  call_error_.reset();
  try {
    work();
  } catch (const RtMidiError& error) {
    call_error_ = error.getMessage();
  }
  calling_thread_ = std::thread::id{};
  return std::exchange(call_error_, std::nullopt);
}

std::vector<std::string> RtMidiMidi::input_names() {
  std::vector<std::string> names;
  if (!ready()) return names;
  call([&] {
    const unsigned int count = in_->getPortCount();
    for (unsigned int i = 0; i < count; ++i) names.push_back(in_->getPortName(i));
  });
  return names;
}

std::vector<std::string> RtMidiMidi::output_names() {
  std::vector<std::string> names;
  if (!ready()) return names;
  call([&] {
    const unsigned int count = out_->getPortCount();
    for (unsigned int i = 0; i < count; ++i) names.push_back(out_->getPortName(i));
  });
  return names;
}

std::optional<std::string> RtMidiMidi::open_input(int index) {
  if (!ready()) return unavailable_;
  if (index < 0) return "no such MIDI input port";
  close_input();
  auto error = call([&] {
    in_->setCallback(&on_rtmidi_message, this);
    in_->openPort(static_cast<unsigned int>(index), kInputPortName);
  });
  if (!error && !in_->isPortOpen()) error = "the MIDI input port did not open";
  return error;
}

std::optional<std::string> RtMidiMidi::open_output(int index) {
  if (!ready()) return unavailable_;
  if (index < 0) return "no such MIDI output port";
  close_output();
  auto error = call([&] { out_->openPort(static_cast<unsigned int>(index), kOutputPortName); });
  if (!error && !out_->isPortOpen()) error = "the MIDI output port did not open";
  return error;
}

void RtMidiMidi::close_input() {
  if (!in_) return;
  call([&] {
    in_->closePort();
    in_->cancelCallback();
  });
}

void RtMidiMidi::close_output() {
  if (out_) call([&] { out_->closePort(); });
}

bool RtMidiMidi::input_open() const { return in_ && in_->isPortOpen(); }
bool RtMidiMidi::output_open() const { return out_ && out_->isPortOpen(); }

void RtMidiMidi::send_control_change(int controller, int value) {
  if (!output_open()) return;
  const unsigned char message[3] = {kControlChange, static_cast<unsigned char>(controller & 0x7F),
                                    static_cast<unsigned char>(value & 0x7F)};
  const auto error = call([&] { out_->sendMessage(message, sizeof message); });
  if (error) report(kRtMidiCodeBase + static_cast<int>(RtMidiError::DRIVER_ERROR), *error);
}

void RtMidiMidi::on_message(MessageHandler handler) {
  const std::lock_guard lock(handlers_mutex_);
  message_handler_ = std::move(handler);
}

void RtMidiMidi::on_error(ErrorHandler handler) {
  const std::lock_guard lock(handlers_mutex_);
  error_handler_ = std::move(handler);
}

void RtMidiMidi::deliver(std::vector<std::uint8_t> message) {
  MessageHandler handler;
  {
    const std::lock_guard lock(handlers_mutex_);
    handler = message_handler_;
  }
  if (handler) handler(std::move(message));
}

void RtMidiMidi::report(int code, const std::string& text) {
  if (calling_thread_ == std::this_thread::get_id()) {
    if (code != kWarning && !call_error_) call_error_ = text;
    return;
  }
  ErrorHandler handler;
  {
    const std::lock_guard lock(handlers_mutex_);
    handler = error_handler_;
  }
  if (handler) handler(code, text);
}

}  // namespace lumaris
