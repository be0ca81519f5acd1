#include "core/project_info.h"

#include "core/console.h"

namespace lumaris {

ProjectText::ProjectText(Console& console) : Window("Project Information"), console_(console) {}

void ProjectText::Form_Load() {}

}  // namespace lumaris
