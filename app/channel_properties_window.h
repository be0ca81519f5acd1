#pragma once

#include <array>

#include "app/desk_window.h"
#include "app/widgets/tool_window.h"
#include "core/channel_properties.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace lumaris {

class DeskApp;
class ColourBox;
class LevelSlider;

// Channel properties of Edit_Channel.
class ChannelPropertiesWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit ChannelPropertiesWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "channel-properties"; }
  void sync() override;
  void prepare_screenshot() override;

  QLineEdit* Show_Name() const { return show_name_; }
  QLineEdit* Show_Channel() const { return show_channel_; }
  QCheckBox* Main_F() const { return main_f_; }
  LevelSlider* level_fader() const { return level_fader_; }

 private:
  ChannelProperties& properties();
  QWidget* build_fields();
  QWidget* build_slots();

  DeskApp& app_;
  QLineEdit* show_channel_ = nullptr;
  QLineEdit* show_name_ = nullptr;
  QLineEdit* description_ = nullptr;
  ColourBox* colour_box_ = nullptr;
  QCheckBox* main_f_ = nullptr;
  QCheckBox* cross_f_ = nullptr;
  QPushButton* previous_channel_ = nullptr;
  QPushButton* next_channel_ = nullptr;
  std::array<QLineEdit*, ChannelProperties::kShownSlots> show_dmx_{};
  LevelSlider* level_fader_ = nullptr;
};

}  // namespace lumaris
