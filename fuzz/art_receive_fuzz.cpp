// Any datagram at all reaching the Art-Net node: it must never crash, what it
// answers is always one whole ArtPollReply, and nothing that arrives changes an
// output level or a setting (the node only listens; levels come from the desk).
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>

#include "console/output_cycle.h"
#include "core/main_desk.h"
#include "net/art_net_node.h"
#include "net/art_net_setup.h"
#include "tests/support/fake_udp.h"
#include "tests/support/memory_settings.h"
#include "tests/support/test_console.h"

namespace {

// Settings that abort on any change.
class WatchedSettings final : public lumaris::Settings {
 public:
  std::optional<std::string> read(const std::string& key) const override { return kept_.read(key); }
  void write(const std::string& key, const std::string& value) override {
    if (armed) std::abort();
    kept_.write(key, value);
  }
  void remove(const std::string& key) override {
    if (armed) std::abort();
    kept_.remove(key);
  }
  bool armed = false;

 private:
  lumaris::MemorySettings kept_;
};

struct Node {
  lumaris::FakeUdp udp;
  WatchedSettings settings;
  lumaris::TestConsole desk;
  Node() {
    settings.write(lumaris::ArtNetNode::kDestinationSetting, "192.168.1.30");
    desk.services.art_socket = &udp;
    desk.services.settings = &settings;
    desk.build();
    desk.console->art_net_setup().Form_Load();
    desk.console->art_net_setup().enable_button_clicked(2);
    desk.console->main_desk().channel_fader_changed(0, 255 - 100);
    desk.console->output_cycle().output_tick();
    settings.armed = true;
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Node node;  // one desk for the whole run, like the real program
  lumaris::Console& console = *node.desk.console;
  const lumaris::Store& store = console.context().store();
  const auto levels = store.Desk_Level;
  const auto frame = store.DMX_Out;
  const auto rows = store.Art_Universes;
  const std::string destination = console.art_net().destination_in_force();
  const std::string interface_address = console.art_net().interface_in_force();

  node.udp.clear_sent();
  // The first byte picks the sender: one of the node's own networks, or another.
  const char* sender = size > 0 && (data[0] & 1) ? "203.0.113.9" : "192.168.1.20";
  node.udp.deliver(std::vector<std::uint8_t>(data, data + size), sender);
  node.desk.scheduler.run_posted();
  console.output_cycle().output_tick();
  for (const auto& sent : node.udp.sent()) {
    if (sent.bytes.size() != 239) std::abort();
  }
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].Enable != store.Art_Universes[i].Enable || rows[i].Universe != store.Art_Universes[i].Universe) {
      std::abort();
    }
  }
  if (levels != store.Desk_Level || frame != store.DMX_Out) std::abort();
  if (destination != console.art_net().destination_in_force()) std::abort();
  if (interface_address != console.art_net().interface_in_force()) std::abort();
  return 0;
}
