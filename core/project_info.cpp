#include "core/project_info.h"

#include <cstdio>

#include "core/desk_context.h"
#include "platform/clock.h"

namespace lumaris {

namespace {
constexpr const char* kCaption = "Project Information";
}

std::string date_text(int year, int month, int day) {
  char text[32];
  std::snprintf(text, sizeof text, "%02d/%02d/%04d", day, month, year);
  return text;
}

ProjectInfo::ProjectInfo(DeskContext& context) : Window(kCaption), context_(context) {}

void ProjectInfo::Form_Load() {
  const Store& store = context_.store();
  project_text_ = store.Project_Text;
  prj_name_ = store.Project_Name;
  if (store.Project_Date.empty()) {
    const CalendarDate today = context_.clock().today();
    prj_date_ = date_text(today.year, today.month, today.day);
  } else {
    prj_date_ = store.Project_Date;
  }
  prj_version_ = store.Project_Version == 0 ? "1" : std::to_string(store.Project_Version);
}

void ProjectInfo::OKButton_Click() {
  Store& store = context_.store();
  store.Project_Text = project_text_;
  store.Project_Name = prj_name_;
  store.Project_Changed = true;
  Hide();
}

void ProjectInfo::CancelButton_Click() { Hide(); }

}  // namespace lumaris
