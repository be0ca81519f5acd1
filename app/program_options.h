#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lumaris {

// The options of one run of the program; they apply to that run only.
struct ProgramOptions {
  enum class Mode { Desktop, Headless, Screenshot, Check, Resave, Help, Version, Error };
  Mode mode = Mode::Desktop;
  std::string show;             // the show file to load, if any
  std::string screenshot_dir;   // --screenshot DIR
  std::string resave_out;       // --resave IN OUT
  std::optional<std::string> artnet_target;
  std::optional<std::string> artnet_bind;     // --artnet-bind ADDR, this run only
  std::optional<std::string> sacn_target;     // --sacn-target ADDR, this run only
  std::optional<std::uint32_t> ola_universe;  // --ola-universe N, this run only
  bool smooth = false;                  // --smooth, this run only
  std::optional<int> refresh_ms;        // --refresh-ms N, this run only
  bool verbose = false;
  bool run = false;             // --run: enter run mode once the show is loaded
  std::string error;
};

ProgramOptions parse_program_options(const std::vector<std::string>& args);
std::string usage_text();
// Why --artnet-target refuses its address, in one line.
std::string artnet_target_not_an_address(const std::string& target);
std::string artnet_target_broadcast(const std::string& target);

}  // namespace lumaris
