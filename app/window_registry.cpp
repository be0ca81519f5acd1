#include "app/desk_app.h"
#include "app/main_desk_window.h"
#include "app/portsetup_window.h"

namespace lumaris {

std::vector<std::unique_ptr<DeskWindow>> create_desk_windows(DeskApp& app) {
  std::vector<std::unique_ptr<DeskWindow>> windows;
  windows.push_back(std::make_unique<MainDeskWindow>(app));
  windows.push_back(std::make_unique<PortsetupWindow>(app));
  return windows;
}

}  // namespace lumaris
