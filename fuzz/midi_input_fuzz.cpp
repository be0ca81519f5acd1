// Any MIDI message at all, of any status and length, reaching the surface in
// any mode: nothing is read or written outside an array, nothing crashes, and
// what goes back to the surface is always whole Control Changes.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "surface/bcf.h"
#include "tests/support/fake_midi.h"
#include "tests/support/test_console.h"

namespace {

struct Surface {
  lumaris::FakeMidi midi;
  lumaris::TestConsole desk;
  Surface() {
    midi.set_ports({"BCF2000"}, {"BCF2000"});
    desk.services.midi = &midi;
    desk.build();
    desk.console->surface().BCF_Connect();
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Surface surface;  // one desk for the whole run, like the real program
  if (size == 0) return 0;
  // The first byte picks the mode (0..6, and some beyond) and the fader page.
  surface.desk.store().BCF_Mode = static_cast<std::int16_t>(data[0] % 8);
  surface.desk.store().Fader_Page = static_cast<std::int16_t>((data[0] >> 3) & 1);
  surface.midi.clear_sent();
  // The rest is cut into messages: a length byte, then that many bytes.
  std::size_t at = 1;
  while (at < size) {
    const std::size_t length = data[at++] % 6;
    std::vector<std::uint8_t> message(data + at, data + std::min(size, at + length));
    at += length;
    surface.midi.deliver(message);
    surface.desk.scheduler.run_posted();
  }
  const auto& sent = surface.midi.sent();
  if (sent.size() % 3 != 0) std::abort();
  for (std::size_t i = 0; i < sent.size(); i += 3) {
    if (sent[i] != 0xB0 || sent[i + 1] > 127 || sent[i + 2] > 127) std::abort();
  }
  return 0;
}
