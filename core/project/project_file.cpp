#include "core/project/project_file.h"

#include "core/console.h"

namespace lumaris {

ProjectFile::ProjectFile(Console& console) : console_(console) {}

}  // namespace lumaris
