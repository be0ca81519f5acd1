#pragma once

#include <cstdint>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "core/main_desk.h"
#include "console/output_cycle.h"
#include "console/project/project_file.h"
#include "net/art_net_setup.h"
#include "net/art_net_node.h"
#include "tests/support/fake_udp.h"
#include "tests/support/memory_settings.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_console.h"

namespace lumaris {

// A desk with a fake Art-Net socket, settings in memory and the node's log captured.
struct ArtNetDesk {
  FakeUdp udp;
  MemorySettings settings;
  std::ostringstream log;
  TestConsole desk;
  TempFolder folder;

  ArtNetDesk() {
    desk.services.art_socket = &udp;
    desk.services.settings = &settings;
    desk.services.diagnostics = &log;
  }
  Console& build() { return desk.build(); }
  Console& console() { return *desk.console; }
  Store& store() { return desk.store(); }
  ArtNetNode& node() { return console().art_net(); }
  ArtNetSetup& config() { return console().art_net_setup(); }
  MainDesk& main_desk() { return console().main_desk(); }

  // Loads a show whose Project section has one Network row per universe given.
  bool load_show_with_rows(const std::vector<int>& universes) {
    std::string text = "<Lumaris_XML>\r\t<Project>\r\t\t<Version>1</Version>\r"
                       "\t\t<Adapter>0</Adapter>\r";
    for (const int universe : universes) {
      text += "\t\t<Network>\r\t\t\t<Universe>" + std::to_string(universe) +
              "</Universe>\r\t\t</Network>\r";
    }
    text += "\t\t<BCF>0</BCF>\r\t</Project>\r</Lumaris_XML>\r";
    const std::string path = folder.file("rows.xml");
    std::ofstream(path, std::ios::binary) << text;
    return console().project_file().Load_File(path);
  }

  // The operator opens "Art Net Setup" from the main desk's menu.
  void open_setup() { main_desk().Menu_Click("art-net-setup"); }
  // A datagram arrives; it is handled as a desk event of its own.
  void arrive(const std::vector<std::uint8_t>& datagram) {
    udp.deliver(datagram);
    desk.scheduler.run_posted();
  }
};

// "Art-Net", its zero byte and an opcode (low byte first), then `rest`.
inline std::vector<std::uint8_t> art_packet(std::uint16_t opcode, std::size_t size) {
  std::vector<std::uint8_t> packet{'A', 'r', 't', '-', 'N', 'e', 't', 0x00,
                                   static_cast<std::uint8_t>(opcode & 0xFF),
                                   static_cast<std::uint8_t>(opcode >> 8)};
  packet.resize(size, 0);
  return packet;
}

}  // namespace lumaris
