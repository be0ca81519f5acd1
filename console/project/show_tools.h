#pragma once

#include <ostream>
#include <string>

namespace lumaris {

// Operator tools that read a show without starting any output.
// Exit codes: 0 whole, 1 damaged but loaded (cut short, blocks skipped or values
// clamped), 2 not a show, unreadable or (resave) not written.
int run_show_check(const std::string& show, std::ostream& out, std::ostream& err);
int run_show_resave(const std::string& in, const std::string& out_path, std::ostream& out,
                    std::ostream& err);

}  // namespace lumaris
