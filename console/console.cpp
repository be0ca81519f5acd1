#include "console/console.h"

#include "core/channel_properties.h"
#include "core/main_desk.h"
#include "console/output_cycle.h"
#include "core/output_monitor.h"
#include "core/patch_editor.h"
#include "console/project/project_file.h"
#include "core/project_info.h"
#include "net/art_config.h"
#include "net/art_net_node.h"
#include "output/output_devices.h"
#include "output/portsetup.h"
#include "platform/posix_file_system.h"
#include "playback/playdesk.h"
#include "sequence/chases.h"

namespace lumaris {

Console::Console(const PlatformServices& services)
    : services_(services), store_(std::make_unique<Store>()) {
  if (services_.file_system == nullptr) {
    own_file_system_ = std::make_unique<PosixFileSystem>();
    services_.file_system = own_file_system_.get();
  }
  reset_store(*store_);
  main_desk_ = std::make_unique<Hoofdblad>(*this);
  output_cycle_ = std::make_unique<OutputCycle>(*this);
  output_monitor_ = std::make_unique<Realout>(*this);
  patch_editor_ = std::make_unique<EditPatchList>(*this);
  channel_properties_ = std::make_unique<ChannelNames>(*this);
  project_info_ = std::make_unique<ProjectText>(*this);
  playback_desk_ = std::make_unique<Playdesk>(*this);
  sequence_desk_ = std::make_unique<Chases>(*this);
  output_devices_ = std::make_unique<OutputDevices>(*this);
  port_setup_ = std::make_unique<Portsetup>(*this);
  art_net_ = std::make_unique<D_ArtNet>(*this);
  art_config_ = std::make_unique<Art_Config>(*this);
  project_file_ = std::make_unique<ProjectFile>(*this);
}

Console::~Console() = default;

void Console::start() {
  main_desk_->Form_Load();
  output_cycle_->start();
}

void Console::shutdown() {
  if (shut_down_) return;
  shut_down_ = true;
  output_devices_->USB_Close_If_Open();
  output_cycle_->Timer1().set_enabled(false);
  output_cycle_->Art_Time().set_enabled(false);
}

}  // namespace lumaris
