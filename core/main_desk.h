#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "base/colour.h"
#include "core/desk_context.h"
#include "core/window.h"

namespace lumaris {

// One channel strip of the main desk panel: fader, level box, name box and the
// Max/Min buttons. Strip i stands for desk channel index Fader_Page * 32 + i.
struct ChannelStrip {
  int fader = 255;  // 0 at the top: level = 255 - value
  std::string level_box = "0";
  Paint level_box_colour;  // nothing: the default box colour
  std::string name_box;
  Paint name_box_colour;
  std::string fader_tooltip;
  std::string level_box_tooltip;
  std::string name_box_tooltip;
  std::string max_button_tooltip;
  std::string min_button_tooltip;
};

struct MenuEntry {
  std::string menu;     // the menu it sits in, e.g. "&File"
  std::string name;     // the entry's control name, e.g. "load"
  std::string caption;  // e.g. "&Load"
  bool enabled = true;
};

// The main desk window: 64 channel faders on two pages, the masters, the
// submix controls, the status line and the menus that open every other window.
class MainDesk : public Window {
 public:
  static constexpr int kStrips = 32;

  explicit MainDesk(DeskContext& context);

  // Start-up of the desk (the window's load).
  void Form_Load();

  // Channel strips
  void channel_fader_changed(int i, int value);
  void max_clicked(int i);
  void min_clicked(int i);
  void Open_Channel_Properties(int i);  // double click on a box, right button on fader or name
  void Inc_Channel_Click();
  void Dec_Channels_Click();
  void Clearall_Click();

  // Masters: slider values, 0 at the top = full.
  void channels_Change(int value);
  void Submix_Master_Change(int value);
  void Main_Change(int value);

  // Submixes
  void Submix_Plus_Click();
  void Submix_Minus_Click();
  void Submix_Prog_Click();
  void Submix_Recal_Click();
  void Sub_colour_Click();
  void Submix_Text_Change(const std::string& text);

  // Every key-down on the window goes to the command line.
  void Key_Down(int key_code);

  // The buttons that open the other desks, and the menu entries by their names.
  void sequence_desk_clicked();   // "Sequence Desk"
  void playback_desk_clicked();   // "Playback Desk"
  void output_monitor_clicked();  // "Output Monitor"
  void Menu_Click(const std::string& name);
  // File -> Recent shows: the shows last loaded or saved here, newest first.
  std::vector<std::string> recent_shows() const;
  void open_recent_show(const std::string& path);
  void resetdesk_Click();
  // Both return true when the program is to end; the exit path has then run.
  bool exit_clicked();
  bool Form_Unload();
  bool exit_requested() const { return exit_requested_; }

  void Refresh_Desk_Panel();

  // State of the controls.
  const std::array<ChannelStrip, kStrips>& strips() const { return strips_; }
  int channels_value() const { return channels_; }
  int submix_master_value() const { return submix_master_; }
  int main_value() const { return main_; }
  int current_submix() const { return current_submix_; }
  const std::string& submix_number() const { return submix_number_; }
  const std::string& Submix_Text() const { return submix_text_; }
  Paint Sub_colour() const { return sub_colour_; }
  bool Inc_Channel_enabled() const { return inc_channel_enabled_; }
  bool Dec_Channels_enabled() const { return dec_channels_enabled_; }
  Rgb dmx_lamp() const { return dmx_lamp_; }
  // The DMX indicator's tip: what it shows, and why the adapter fails when it does.
  const std::string& dmx_lamp_tooltip() const { return dmx_lamp_tooltip_; }
  Paint art_net_lamp() const { return art_net_lamp_; }
  bool Art_Label_enabled() const { return art_label_enabled_; }
  // The Art-Net indicator's tip: what it shows, and why sending fails when it does.
  const std::string& art_net_lamp_tooltip() const { return art_net_lamp_tooltip_; }
  // Where Art-Net packets go when that is one node rather than the automatic
  // broadcast address; empty otherwise. Shown next to the Art-Net indicator.
  const std::string& Art_Destination() const { return art_destination_; }
  const std::string& Art_Destination_ToolTipText() const { return art_destination_tooltip_; }
  const std::string& Status() const;
  // The window's title: the caption, the show's file name and " *" while it has unsaved changes.
  std::string title() const;
  std::vector<MenuEntry> menu_entries() const;
  // A desk button by the window it opens ("sequence-desk", "playback-desk").
  bool button_enabled(const std::string& name) const;

  // Set by the output cycle and the Art-Net node.
  void set_dmx_lamp(Rgb colour, std::string tooltip = kDmxLampToolTip) {
    dmx_lamp_ = colour;
    dmx_lamp_tooltip_ = std::move(tooltip);
  }
  static constexpr const char* kDmxLampToolTip = "DMX output";
  // An output lamp held amber: the output is chosen but does not reach the light.
  static constexpr Rgb kTroubleLamp{255, 176, 0};
  void set_art_net_lamp(Paint colour) { art_net_lamp_ = colour; }
  void set_Art_Label_enabled(bool enabled) { art_label_enabled_ = enabled; }
  void set_art_net_lamp_tooltip(std::string text) { art_net_lamp_tooltip_ = std::move(text); }
  static constexpr const char* kArtNetLampToolTip = "Art-Net output";
  void set_Art_Destination(std::string text, std::string tooltip) {
    art_destination_ = std::move(text);
    art_destination_tooltip_ = std::move(tooltip);
  }
  void set_main_caption(std::string caption) { set_caption(std::move(caption)); }

  // The command line's key handler; keys go nowhere until it is set.
  void set_cli_key_handler(std::function<void(int)> handler) { cli_key_ = std::move(handler); }

 private:
  int channel_of(int strip) const;
  void set_level(int strip, int level);
  void send_page_to_surface();
  void show_submix();
  void reset_masters();
  void draw_strip_names(int i);
  void draw_start_up_panel();
  bool confirm_exit();

  DeskContext& context_;
  std::array<ChannelStrip, kStrips> strips_{};
  int channels_ = 0;
  int submix_master_ = 255;
  int main_ = 0;
  int current_submix_ = 0;
  std::string submix_number_ = "1";
  std::string submix_text_ = " ";
  Paint sub_colour_;
  bool inc_channel_enabled_ = true;
  bool dec_channels_enabled_ = false;
  Rgb dmx_lamp_ = kBlack;
  std::string dmx_lamp_tooltip_ = kDmxLampToolTip;
  Paint art_net_lamp_;
  bool art_label_enabled_ = false;
  std::string art_net_lamp_tooltip_ = kArtNetLampToolTip;
  std::string art_destination_;
  std::string art_destination_tooltip_;
  bool exit_requested_ = false;
  std::function<void(int)> cli_key_;
};

}  // namespace lumaris
