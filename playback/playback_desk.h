#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/main_desk.h"
#include "core/window.h"

namespace lumaris {

class DeskContext;
class ScreenTable;
class ScreenPanel;
class PageControls;
class PlaybackPanel;
class PlaybackChases;
class CueEditor;
class ButtonSetup;
class FaderSetup;
class RunMode;
class InstantCues;

// The playback desk `PlaybackDesk`: the screen panel, the pages, the programmable
// buttons and faders, the Main and Preset masters, Clear All and Clear, the
// status line and the menus. The parts are models of their own; this class
// builds them, wires them to each other and to the desks around it.
class PlaybackDesk : public Window {
 public:
  PlaybackDesk(DeskContext& context, MainDesk& main_desk);
  ~PlaybackDesk() override;

  // A Cue button pressed in run mode takes to its screen: Autotake(screen), which
  // run mode provides. Until it is set such a press does nothing.
  void set_autotake(std::function<void(int)> autotake) { autotake_ = std::move(autotake); }
  bool available() const { return true; }

  // The window's load, run once at the main desk's start-up.
  void Form_Load();
  void Show() override;

  // Masters: slider values, 0 at the top = full. Main stays equal to the main
  // desk's grand master.
  int main_value() const { return main_; }
  int preset_value() const { return preset_; }
  void Main_Change(int value);
  void Preset_Change(int value);

  // The screen panel, the page controls and the buttons and faders of the page
  // on show read the store again.
  void Refresh_Playback_Panel();
  void Compute_Live_Output();
  void Clear_All();     // "Clear all Buttons on Desk"
  void Submix_Clear();  // "Clear Sub Mixes Faders"
  void set_reset_caption();

  void Open_Button_Setup(int b);
  void Open_Fader_Setup(int f);
  void Open_Cue_Editor(int screen = 0);

  std::vector<MenuEntry> menu_entries() const;
  void Menu_Click(const std::string& name);
  const std::string& Status() const;

  ScreenTable& table() { return *table_; }
  ScreenPanel& screens() { return *screens_; }
  const ScreenPanel& screens() const { return *screens_; }
  PageControls& pages() { return *pages_; }
  const PageControls& pages() const { return *pages_; }
  PlaybackPanel& panel() { return *panel_; }
  const PlaybackPanel& panel() const { return *panel_; }
  PlaybackChases& chases() { return *chases_; }
  CueEditor& cue_editor() { return *cue_editor_; }
  ButtonSetup& button_setup() { return *button_setup_; }
  FaderSetup& fader_setup() { return *fader_setup_; }
  RunMode& run_mode() { return *run_mode_; }
  const RunMode& run_mode() const { return *run_mode_; }
  InstantCues& instant_cues() { return *instant_; }
  // `Instant_screens` ("Instant Cues"): opens the instant cue window.
  void Instant_screens_Click();
  // The output cycle's interval, which paces automatic takes.
  void set_output_interval(std::function<int()> interval);

 private:
  void cue_pressed(int screen);
  // After a change of the page, the functions or the live state: the desk
  // redraws and the live output is recomputed.
  void redraw();

  DeskContext& context_;
  MainDesk& main_desk_;
  std::function<void(int)> autotake_;
  bool loaded_ = false;
  int main_ = 0;
  int preset_ = 0;
  std::unique_ptr<ScreenTable> table_;
  std::unique_ptr<PlaybackChases> chases_;
  std::unique_ptr<PlaybackPanel> panel_;
  std::unique_ptr<ScreenPanel> screens_;
  std::unique_ptr<PageControls> pages_;
  std::unique_ptr<CueEditor> cue_editor_;
  std::unique_ptr<ButtonSetup> button_setup_;
  std::unique_ptr<FaderSetup> fader_setup_;
  std::unique_ptr<RunMode> run_mode_;
  std::unique_ptr<InstantCues> instant_;
};

}  // namespace lumaris
