#include "surface/bcf.h"

#include <algorithm>

#include "base/number_text.h"
#include "core/desk_context.h"
#include "core/main_desk.h"
#include "platform/dialogs.h"
#include "platform/midi.h"
#include "platform/scheduler.h"
#include "playback/playback_chases.h"
#include "playback/playback_desk.h"
#include "surface/bcf_setup.h"

namespace lumaris {

namespace {

constexpr const char* kCaption = "BCF2000 Control";
constexpr const char* kSurfaceName = "BCF2000";
constexpr std::array<const char*, 7> kModeNames = {
    " Not Connected", " Main Desk", " Playback Desk", " Chase Desk",
    " Channel Set",   " Submix Set", " User Config"};
constexpr const char* kConnectingStatus = " Connecting to BCF2000";
constexpr const char* kNotFoundText = " No BCF2000 Found";
constexpr const char* kMadeConnection = " BCF2000 Connection Made ";
constexpr const char* kMadeSetup = " Connection Made";
constexpr const char* kMadeStatus = " BCF2000 Connection Made";
constexpr const char* kGroupStatus = " BCF Fader Group ";
constexpr const char* kOutputTitle = "Open MIDI Output port";
constexpr const char* kOutputText = "Cannot open MIDI Output port";
constexpr const char* kInputErrorTitle = " MIDI Input Error";
constexpr const char* kOn = " On";
constexpr const char* kOff = " Off";

constexpr int kPressed = 64;          // a value from here up is "on"
constexpr int kLedOn = 127;
constexpr int kFirstPushButton = 33;  // encoder pushes 33..64
constexpr int kLastPushButton = 64;
constexpr int kLastButton = 80;
constexpr int kLastFader = 88;
constexpr int kLastGroup = 92;
constexpr int kFirstSwitch = 93;      // two further switches 93..94
constexpr int kLastSwitch = 94;
// An input port that will not open is reported as an input error that loses the port.
constexpr int kInputOpenFailed = Midi::kDroppedMessage + 1;

int last_match(const std::vector<std::string>& names) {
  int found = BCF::kNotFound;
  for (int i = 0; i < static_cast<int>(names.size()); ++i) {
    if (is_bcf2000_port(names[i])) found = i;  // the last match wins
  }
  return found;
}

}  // namespace

bool is_bcf2000_port(const std::string& name) {
  const std::string client = name.substr(0, name.find(':'));
  return client == kSurfaceName;
}

BCF::BCF(DeskContext& context, Midi* midi, MainDesk& main_desk, PlaybackDesk& playback_desk)
    : Window(kCaption), context_(context), midi_(midi), main_desk_(main_desk), playback_desk_(playback_desk) {
  if (midi_ == nullptr) return;
  // The MIDI system calls from its own thread: each message and error becomes a
  // desk event of its own before it touches anything.
  Scheduler& scheduler = context_.scheduler();
  const std::weak_ptr<bool> alive = alive_;
  midi_->on_message([this, &scheduler, alive](std::vector<std::uint8_t> message) {
    scheduler.post([this, alive, message = std::move(message)] {
      if (alive.lock()) midi_input_message(message);
    });
  });
  midi_->on_error([this, &scheduler, alive](int code, std::string description) {
    scheduler.post([this, alive, code, description = std::move(description)] {
      if (alive.lock()) midi_input_error(code, description);
    });
  });
}

BCF::~BCF() {
  alive_.reset();
  if (midi_ == nullptr) return;
  midi_->on_message(nullptr);
  midi_->on_error(nullptr);
  close_ports();
}

void BCF::Form_Load() {
  if (loaded_) return;
  loaded_ = true;
  BCF_Show_Mode();
}

void BCF::Form_Unload() { close_ports(); }

void BCF::close_ports() {
  if (midi_ == nullptr) return;
  if (midi_->input_open()) midi_->close_input();
  if (midi_->output_open()) midi_->close_output();
}

int BCF::mode() const { return context_.store().BCF_Mode; }

void BCF::set_mode(int mode) { context_.store().BCF_Mode = static_cast<std::int16_t>(mode); }

void BCF::BCF_Connect() {
  Form_Load();
  context_.status().show(kConnectingStatus, kConnectingStatus);
  out_device_ = in_device_ = kNotFound;
  out_name_.clear();
  in_name_.clear();
  if (midi_ != nullptr) {
    const std::vector<std::string> outputs = midi_->output_names();
    out_device_ = last_match(outputs);
    if (out_device_ != kNotFound) out_name_ = outputs[out_device_];
    const std::vector<std::string> inputs = midi_->input_names();
    in_device_ = last_match(inputs);
    if (in_device_ != kNotFound) in_name_ = inputs[in_device_];
  }
  if (out_device_ == kNotFound || in_device_ == kNotFound) {
    close_ports();
    connection_box_ = kNotFoundText;
    if (setup_ != nullptr) setup_->set_connection_box(kNotFoundText);
    context_.status().show(kNotFoundText, kNotFoundText);
    set_mode(kSurfaceNotConnected);
    BCF_Show_Mode();
    return;
  }

  close_ports();
  const std::optional<std::string> input_error = midi_->open_input(in_device_);
  midi_->open_output(out_device_);
  if (!midi_->output_open()) {
    context_.dialogs().message({kOutputTitle, kOutputText, MessageIcon::Exclamation});
  }
  connection_box_ = kMadeConnection;
  if (setup_ != nullptr) setup_->set_connection_box(kMadeSetup);
  context_.status().show(kMadeStatus, kMadeStatus);
  set_mode(kSurfaceMainMode);
  BCF_Show_Mode();
  fader_group_ = 0;
  fader_moved_.fill(false);
  send_faders();  // the motor faders take the desk's levels at once
  if (input_error) midi_input_error(kInputOpenFailed, *input_error);
}

void BCF::Start_From_Show(int saved_mode) {
  BCF_Connect();
  if (mode() != kSurfaceMainMode || saved_mode <= kSurfaceMainMode || saved_mode > kSurfaceUserConfigMode) {
    return;
  }
  set_mode(saved_mode);
  arrive_in_mode();
  BCF_Show_Mode();
}

void BCF::BCF_Send_CC(int controller, int value) {
  if (midi_ != nullptr && midi_->output_open()) midi_->send_control_change(controller, value);
}

void BCF::BCF_Fader_Update(SurfaceStrip strip, int level) { move_motor_fader(strip.index(), level); }

void BCF::BCF_Fader_Update(PlaybackElement fader, int level) { move_motor_fader(fader.number(), level); }

// Position 0..31 across the fader groups: only the group on show has motors there.
void BCF::move_motor_fader(int position, int level) {
  const int first = fader_group_ * kFaders;
  if (position < first || position > first + kFaders - 1) return;
  const int f = position - first;
  if (!fader_moved_[f]) BCF_Send_CC(kFirstFader + f, std::clamp(level, 0, 255) / 2);
  fader_moved_[f] = false;
}

void BCF::BCF_Button_Update(PlaybackElement button, bool state) {
  const int index = button.number();
  int controller = 0;
  if (fader_group_ == 0 && index >= 0 && index <= 15) {
    controller = kFirstButton + index;
  } else if (fader_group_ == 1 && index >= 16 && index <= 32) {
    controller = index + 57;
  } else if (fader_group_ == 2 && index >= 32 && index <= 48) {
    controller = index + 49;
  } else {
    return;
  }
  BCF_Send_CC(controller, state ? kLedOn : 0);
}

void BCF::BCF_Show_Mode() {
  const int m = mode();
  mode_box_ = m >= 0 && m < static_cast<int>(kModeNames.size()) ? kModeNames[m] : "";
  previous_mode_enabled_ = m != kSurfaceMainMode;
  next_mode_enabled_ = m != kSurfaceUserConfigMode;
}

void BCF::next_mode_clicked() {
  if (mode() < kSurfaceUserConfigMode) {
    set_mode(mode() + 1);
    arrive_in_mode();
  }
  BCF_Show_Mode();
}

void BCF::previous_mode_clicked() {
  if (mode() > kSurfaceMainMode) {
    set_mode(mode() - 1);
    arrive_in_mode();
  }
  BCF_Show_Mode();
}

void BCF::arrive_in_mode() {
  if (mode() == kSurfaceMainMode || mode() == kSurfacePlaybackMode) send_faders();
}

// The level shown by surface fader index (0..31) in the current mode.
int BCF::fader_level(int index) const {
  const Store& store = context_.store();
  if (mode() == kSurfacePlaybackMode) return store.Playback_Fader_Level[index];
  return store.Desk_Level[store.Fader_Page * MainDesk::kStrips + index];
}

void BCF::send_faders() {
  for (int f = 0; f < kFaders; ++f) {
    BCF_Send_CC(kFirstFader + f, fader_level(fader_group_ * kFaders + f) / 2);
  }
}

void BCF::choose_group(int group) {
  fader_group_ = group;
  for (int i = 0; i < kGroups; ++i) {
    if (i != group) BCF_Send_CC(kFirstGroup + i, 0);
  }
  send_faders();
  context_.status().show_main(kGroupStatus + str_number(group));
}

void BCF::show_monitor(int number, bool on) { monitor_box_ = str_number(number) + (on ? kOn : kOff); }

void BCF::midi_input_message(const std::vector<std::uint8_t>& message) {
  // Only controller messages carry a controller and a value; their type and
  // channel are not checked. A data byte with its top bit set is no MIDI at all.
  if (message.size() < 3 || message[1] > 127 || message[2] > 127) return;
  const int controller = message[1];
  const int value = message[2];
  if (mode() == kSurfaceMainMode) {
    main_desk_message(controller, value);
  } else if (mode() == kSurfacePlaybackMode) {
    playback_desk_message(controller, value);
  }
}

void BCF::midi_input_error(int code, const std::string& description) {
  if (code == Midi::kWarning || code == Midi::kDroppedMessage) return;
  context_.dialogs().message({kInputErrorTitle, description, MessageIcon::Exclamation});
  set_mode(kSurfaceNotConnected);
  BCF_Show_Mode();
}

void BCF::main_desk_message(int controller, int value) {
  const bool on = value >= kPressed;
  if (controller >= kFirstFader && controller <= kLastFader) {
    const int f = controller - kFirstFader;
    fader_moved_[f] = true;
    // The strip moves as under the operator's hand; its echo back to the surface
    // is the one Fader_Moved holds back.
    main_desk_.channel_fader_changed(fader_group_ * kFaders + f, 255 - value * 2);
    fader_moved_[f] = false;
  } else if (controller >= kFirstButton && controller <= kLastButton) {
    show_monitor(controller - kFirstButton, on);
  } else {
    group_or_monitor_message(controller, on);
  }
}

void BCF::playback_desk_message(int controller, int value) {
  const bool on = value >= kPressed;
  if (controller >= kFirstButton && controller <= kLastButton) {
    playback_button(controller - kFirstButton, on);
  } else if (controller >= kFirstFader && controller <= kLastFader) {
    const int f = controller - kFirstFader;
    fader_moved_[f] = true;
    playback_fader(fader_group_ * kFaders + f, value * 2);
    fader_moved_[f] = false;
  } else {
    group_or_monitor_message(controller, on);
  }
}

// Both desk modes read these alike: a group button chooses the eight strips the
// faders show, and an encoder push or one of the two switches is only shown in
// the monitor box.
void BCF::group_or_monitor_message(int controller, bool on) {
  if (controller >= kFirstGroup && controller <= kLastGroup) {
    if (on) choose_group(controller - kFirstGroup);
    show_monitor(controller - kFirstGroup, on);
  } else if ((controller >= kFirstPushButton && controller <= kLastPushButton) ||
             (controller >= kFirstSwitch && controller <= kLastSwitch)) {
    show_monitor(controller - kFirstPushButton, on);
  }
}

void BCF::playback_button(int b, bool on) {
  Store& store = context_.store();
  store.Playback_Button_State[b] = on;
  show_monitor(b, on);
  const ButtonFunction& button = store.Button_Functions[b];
  if (button.Function == kFunctionSequence) {
    PlaybackChases& chases = playback_desk_.chases();
    if (on) {
      chases.set_Seq_Speed(button.Value, 100);
      chases.set_Seq_Level(button.Value, button.Level);
      chases.Start_Sequence(button.Value);
    } else {
      chases.Stop_Sequence(button.Value);
      chases.set_Seq_Level(button.Value, 0);
    }
  }
  playback_desk_.Refresh_Playback_Panel();
  playback_desk_.Compute_Live_Output();
}

void BCF::playback_fader(int index, int level) {
  Store& store = context_.store();
  store.Playback_Fader_Level[index] = static_cast<std::int16_t>(level);
  const FaderFunction& fader = store.Fader_Functions[index];
  if (fader.Function == kFunctionSequence) {
    playback_desk_.chases().Set_Sequence_Level(fader.Value, level);
  }
  playback_desk_.Refresh_Playback_Panel();
  playback_desk_.Compute_Live_Output();
}

}  // namespace lumaris
