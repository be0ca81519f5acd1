#include "console/project/desk_blocks_reader.h"

#include <cstdint>
#include <string>
#include <utility>

namespace lumaris::show_reading {

bool read_submix(BlockFields& f, Store& store, LoadReport& report) {
  const int s = f.index("Num", kSubmixes);
  SubmixRec submix;
  submix.Name = f.text("Name");
  submix.Colour = f.text("Colour");
  int k = 0;
  bool ended = false;
  f.each("Level", [&](std::string_view content) {
    if (ended) return;
    const auto [chan, level] = pair_of(content);
    if (chan == 0 && level == 0) {
      ended = true;
      return;
    }
    if (k >= kDeskChannels) {
      f.fail("more Level lines than a submix holds");
      return;
    }
    submix.Chan[k] = static_cast<std::int16_t>(f.in_range(chan, 0, kDeskChannels, "Level channel"));
    submix.Level[k] = f.clamped(level, 0, 255, "Level");
    ++k;
  });
  if (!f.ok()) return false;
  store.Submix[s] = std::move(submix);
  ++report.submixes;
  return true;
}

bool read_fader_name(BlockFields& f, Store& store, LoadReport& report) {
  const int i = f.index("Num", kDeskChannels - 1);
  if (!f.ok()) return false;
  FaderName& name = store.Fader_Names[i];
  name.Desc = f.text("Desc");
  name.Name = f.text("Name");
  name.Colour = f.text("Colour");
  name.Main_F = f.flag("Main_F");
  name.Cross_F = f.flag("Cross_F");
  ++report.named_channels;
  return true;
}

bool read_patch(BlockFields& f, Store& store, LoadReport& report) {
  auto patch = store.Patch;
  int pairs = 0;
  for (const std::string_view item : split_items(f.whole(), ',')) {
    if (item.find(':') == std::string_view::npos) {
      f.fail("\"" + std::string(item.substr(0, 16)) + "\" is not a slot:channel pair");
      break;
    }
    const auto [slot, channel] = pair_of(item);
    const int s = f.in_range(slot, 0, kDmxSlots, "Slot");
    const int c = f.in_range(channel, 0, kDeskChannels, "Channel");
    if (!f.ok()) break;
    patch[s] = static_cast<std::int16_t>(c);
    ++pairs;
  }
  if (!f.ok()) return false;
  store.Patch = patch;
  report.patch_pairs = pairs;
  return true;
}

}  // namespace lumaris::show_reading
