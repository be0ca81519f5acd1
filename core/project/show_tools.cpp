#include "core/project/show_tools.h"

namespace lumaris {

int run_show_check(const std::string&, std::ostream&, std::ostream& err) {
  err << "Show files cannot be read by this build yet.\n";
  return 2;
}

int run_show_resave(const std::string&, const std::string&, std::ostream&, std::ostream& err) {
  err << "Show files cannot be read by this build yet.\n";
  return 2;
}

}  // namespace lumaris
