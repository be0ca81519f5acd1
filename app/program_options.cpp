#include "app/program_options.h"

#include "net/ipv4_address.h"

namespace lumaris {

std::string usage_text() {
  return "Usage: lumaris [options] [SHOW]\n"
         "  SHOW                    a show file (.xml) to load at start\n"
         "  --headless [SHOW]       run without a window: output cycle, adapters and Art-Net;\n"
         "                          standard input is the keypad (keys 0-9 . / * + - c, Backspace,\n"
         "                          Enter): printf '5.50\\n' | lumaris --headless SHOW sets\n"
         "                          channel 5 to 50 %; each line is answered with its lamp and status\n"
         "  --screenshot DIR [SHOW] render every window to DIR/<window>.png and exit\n"
         "  --check SHOW            load SHOW (or a .fxt fixture file) into a fresh desk and report what it holds\n"
         "  --resave IN OUT         load IN into a fresh desk and save it whole as OUT (a .fxt as single or all)\n"
         "  --run                   with a show: enter run mode at start, so Auto screens play by themselves\n"
         "  --artnet-target ADDR    this run only: send Art-Net to ADDR instead of the broadcast\n"
         "                          address (\"\" = broadcast); Art-Net Setup keeps a lasting one\n"
         "  --artnet-bind ADDR      this run only: send Art-Net from and listen on this computer's\n"
         "                          address ADDR; Art-Net Setup keeps a lasting one\n"
         "  --sacn-target ADDR      this run only: send the sACN rows (or universe 1) to ADDR\n"
         "  --ola-universe N        this run only: send the frame to universe N of the local olad\n"
         "  --smooth                this run only: smooth output (fades at every frame, Art-Net every frame)\n"
         "  --refresh-ms N          this run only: output refresh every N ms (10-750; 23 = 44 frames/s)\n"
         "  --verbose               print the Art-Net log to stderr\n"
         "  --help                  show this text\n"
         "  --version               show the version\n";
}

std::string artnet_target_not_an_address(const std::string& target) {
  return "--artnet-target needs an IPv4 address such as 127.0.0.1, not \"" + target + "\"";
}

std::string artnet_target_broadcast(const std::string& target) {
  return "--artnet-target " + target +
         " is a broadcast address, not one node; give the node's own address, or leave the "
         "option out to broadcast";
}

ProgramOptions parse_program_options(const std::vector<std::string>& args) {
  ProgramOptions line;
  auto fail = [&line](std::string error) {
    line.mode = ProgramOptions::Mode::Error;
    line.error = std::move(error);
    return line;
  };
  std::vector<std::string> plain;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    auto next = [&]() -> std::optional<std::string> {
      if (i + 1 >= args.size()) return std::nullopt;
      return args[++i];
    };
    if (arg == "--help" || arg == "-h") {
      line.mode = ProgramOptions::Mode::Help;
      return line;
    } else if (arg == "--version") {
      line.mode = ProgramOptions::Mode::Version;
      return line;
    } else if (arg == "--headless") {
      line.mode = ProgramOptions::Mode::Headless;
    } else if (arg == "--run") {
      line.run = true;
    } else if (arg == "--smooth") {
      line.smooth = true;
    } else if (arg == "--refresh-ms") {
      const auto ms = next();
      const bool digits = ms && !ms->empty() && ms->size() <= 3 &&
                          ms->find_first_not_of("0123456789") == std::string::npos;
      if (!digits || std::stoi(*ms) < 10 || std::stoi(*ms) > 750) {
        return fail("--refresh-ms needs a number of milliseconds 10-750, not \"" +
                    ms.value_or("") + "\"");
      }
      line.refresh_ms = std::stoi(*ms);
    } else if (arg == "--verbose") {
      line.verbose = true;
    } else if (arg == "--screenshot") {
      const auto dir = next();
      if (!dir) return fail("--screenshot needs a folder");
      line.mode = ProgramOptions::Mode::Screenshot;
      line.screenshot_dir = *dir;
    } else if (arg == "--check") {
      const auto show = next();
      if (!show) return fail("--check needs a show file");
      line.mode = ProgramOptions::Mode::Check;
      line.show = *show;
    } else if (arg == "--resave") {
      const auto in = next();
      const auto out = next();
      if (!in || !out) return fail("--resave needs an input and an output file");
      line.mode = ProgramOptions::Mode::Resave;
      line.show = *in;
      line.resave_out = *out;
    } else if (arg == "--artnet-target") {
      const auto target = next();
      if (!target) return fail("--artnet-target needs an IPv4 address");
      if (is_known_broadcast(*target)) return fail(artnet_target_broadcast(*target));
      if (!target->empty() && !is_unicast_target(*target)) {
        return fail(artnet_target_not_an_address(*target));
      }
      line.artnet_target = *target;
    } else if (arg == "--artnet-bind") {
      const auto address = next();
      if (!address || !is_unicast_target(*address)) {
        return fail("--artnet-bind needs an IPv4 address of this computer such as 127.0.0.1, not \"" +
                    address.value_or("") + "\"");
      }
      line.artnet_bind = *address;
    } else if (arg == "--sacn-target") {
      const auto target = next();
      if (!target || !is_unicast_target(*target)) {
        return fail("--sacn-target needs an IPv4 address such as 127.0.0.1, not \"" +
                    target.value_or("") + "\"");
      }
      line.sacn_target = *target;
    } else if (arg == "--ola-universe") {
      const auto universe = next();
      const bool digits = universe && !universe->empty() && universe->size() <= 10 &&
                          universe->find_first_not_of("0123456789") == std::string::npos;
      if (!digits || std::stoull(*universe) > 0xFFFFFFFFull) {
        return fail("--ola-universe needs an OLA universe number 0-4294967295, not \"" +
                    universe.value_or("") + "\"");
      }
      line.ola_universe = static_cast<std::uint32_t>(std::stoull(*universe));
    } else if (arg.size() > 1 && arg[0] == '-') {
      return fail("unknown option " + arg);
    } else {
      plain.push_back(arg);
    }
  }
  if (plain.size() > 1) return fail("only one show file can be given");
  if (!plain.empty()) {
    if (line.mode == ProgramOptions::Mode::Check || line.mode == ProgramOptions::Mode::Resave) {
      return fail("unexpected argument " + plain.front());
    }
    line.show = plain.front();
  }
  return line;
}

}  // namespace lumaris
