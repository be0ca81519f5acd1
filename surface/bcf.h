#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/surface_feedback.h"
#include "core/window.h"

namespace lumaris {

class DeskContext;
class MainDesk;
class Midi;
class PlaybackDesk;
class BcfSetup;

// A name the MIDI system gives a port belongs to the surface when its client is
// "BCF2000": the whole name, or, as ALSA lists ports ("BCF2000:BCF2000 Port 1
// 20:0"), the part before the first colon.
bool is_bcf2000_port(const std::string& name);

// "BCF2000 Control": finds a BCF2000 among the MIDI ports, turns its controller
// messages into desk changes by mode, and moves its motor faders and lights its
// LEDs from the desks. Fader f (0..7) of the surface is strip Fader_Group x 8 + f
// of the main desk page on show, or that playback fader.
class BCF : public Window, public SurfaceFeedback {
 public:
  static constexpr int kFaders = 8;
  static constexpr int kGroups = 4;
  static constexpr int kFirstFader = 81;  // controllers 81..88
  static constexpr int kFirstGroup = 89;  // controllers 89..92
  static constexpr int kFirstButton = 65;  // controllers 65..80
  static constexpr int kNotFound = -1;

  BCF(DeskContext& context, Midi* midi, MainDesk& main_desk, PlaybackDesk& playback_desk);
  ~BCF() override;
  BCF(const BCF&) = delete;
  BCF& operator=(const BCF&) = delete;

  void set_setup_window(BcfSetup& setup) { setup_ = &setup; }

  void Form_Load();
  // The window goes away for good: the input stops and both ports close.
  void Form_Unload();
  void BCF_Connect();
  // A show with a surface mode was loaded: connect, and come back in its mode.
  void Start_From_Show(int saved_mode);

  void BCF_Send_CC(int controller, int value);
  using SurfaceFeedback::BCF_Fader_Update;
  void BCF_Fader_Update(SurfaceStrip strip, int level) override;
  void BCF_Fader_Update(PlaybackElement fader, int level) override;
  void BCF_Button_Update(PlaybackElement button, bool state) override;
  void BCF_Show_Mode();
  // The step buttons ("Next Channels", "Previous Channels") step through the modes.
  void next_mode_clicked();
  void previous_mode_clicked();

  // The MIDI input's events, on the desk's thread.
  void midi_input_message(const std::vector<std::uint8_t>& message);
  void midi_input_error(int code, const std::string& description);

  const std::string& monitor_box() const { return monitor_box_; }  // the surface's last button
  const std::string& connection_box() const { return connection_box_; }
  const std::string& mode_box() const { return mode_box_; }
  bool previous_mode_enabled() const { return previous_mode_enabled_; }
  bool next_mode_enabled() const { return next_mode_enabled_; }
  int Fader_Group() const { return fader_group_; }
  int BCF_In_Device() const { return in_device_; }
  int BCF_Out_Device() const { return out_device_; }
  const std::string& BCF_In_Name() const { return in_name_; }
  const std::string& BCF_Out_Name() const { return out_name_; }

 private:
  int mode() const;
  void set_mode(int mode);
  void arrive_in_mode();
  void close_ports();
  void choose_group(int group);
  void send_faders();
  void move_motor_fader(int position, int level);
  int fader_level(int index) const;
  void show_monitor(int number, bool on);
  void main_desk_message(int controller, int value);
  void playback_desk_message(int controller, int value);
  void group_or_monitor_message(int controller, bool on);
  void playback_button(int b, bool on);
  void playback_fader(int index, int level);

  DeskContext& context_;
  Midi* midi_;
  MainDesk& main_desk_;
  PlaybackDesk& playback_desk_;
  BcfSetup* setup_ = nullptr;
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
  bool loaded_ = false;

  std::string monitor_box_;
  std::string connection_box_;
  std::string mode_box_;
  bool previous_mode_enabled_ = true;
  bool next_mode_enabled_ = true;
  int fader_group_ = 0;
  std::array<bool, 11> fader_moved_{};  // Fader_Moved(0..10)
  int in_device_ = kNotFound;
  int out_device_ = kNotFound;
  std::string in_name_;
  std::string out_name_;
};

}  // namespace lumaris
