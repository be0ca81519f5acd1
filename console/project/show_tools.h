#pragma once

#include <ostream>
#include <string>

namespace lumaris {

// Operator tools that read a show without starting any output.
// Exit codes: 0 clean, 1 blocks skipped, 2 not a show, unreadable or (resave)
// not written.
int run_show_check(const std::string& show, std::ostream& out, std::ostream& err);
int run_show_resave(const std::string& in, const std::string& out_path, std::ostream& out,
                    std::ostream& err);

}  // namespace lumaris
