#pragma once

#include <ostream>
#include <string>

namespace lumaris {

// --check and --resave for a fixture file (a name ending in .fxt, any case).
// Exit codes as for shows: 0 whole, 1 damaged (nothing is loaded from a damaged
// fixture file, so a resave writes nothing), 2 not a fixture file, unreadable or
// (resave) not written.
int run_fixture_check(const std::string& path, std::ostream& out, std::ostream& err);
int run_fixture_resave(const std::string& in, const std::string& out_path, std::ostream& out,
                       std::ostream& err);

}  // namespace lumaris
