#ifdef LUMARIS_HAVE_RTMIDI

#include "platform/linux/rtmidi_midi.h"

#include <RtMidi.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace lumaris {
namespace {

bool have_sequencer() {
  struct stat info {};
  return ::stat("/dev/snd/seq", &info) == 0;
}

TEST(RtMidiMidi, WithoutASequencerThereAreNoPortsAndNothingOpens) {
  if (have_sequencer()) GTEST_SKIP() << "this computer has an ALSA sequencer";
  RtMidiMidi midi;
  EXPECT_TRUE(midi.input_names().empty());
  EXPECT_TRUE(midi.output_names().empty());
  EXPECT_TRUE(midi.open_input(0).has_value());
  EXPECT_TRUE(midi.open_output(0).has_value());
  EXPECT_FALSE(midi.output_open());
  midi.send_control_change(81, 10);  // nothing open: nothing happens
  EXPECT_FALSE(midi.unavailable_reason().empty());
}

// A BCF2000 played by ALSA virtual ports: what it sends arrives, what we send reaches it.
TEST(RtMidiMidi, AVirtualSurfaceIsFoundPlayedAndFedBack) {
  if (!have_sequencer()) {
    GTEST_SKIP() << "no ALSA sequencer (/dev/snd/seq): the real MIDI layer is not exercised here";
  }
  RtMidiOut surface_out(RtMidi::LINUX_ALSA, "BCF2000");
  surface_out.openVirtualPort("BCF2000 Port 1");
  RtMidiIn surface_in(RtMidi::LINUX_ALSA, "BCF2000");
  surface_in.openVirtualPort("BCF2000 Port 1");

  RtMidiMidi midi;
  std::mutex lock;
  std::condition_variable arrived;
  std::vector<std::uint8_t> received;
  midi.on_message([&](std::vector<std::uint8_t> message) {
    const std::lock_guard guard(lock);
    received = std::move(message);
    arrived.notify_one();
  });
  const auto bcf_port = [](const std::vector<std::string>& names) {
    for (std::size_t i = 0; i < names.size(); ++i) {
      if (names[i].rfind("BCF2000:", 0) == 0) return static_cast<int>(i);
    }
    return -1;
  };
  const int in = bcf_port(midi.input_names());
  const int out = bcf_port(midi.output_names());
  ASSERT_GE(in, 0);
  ASSERT_GE(out, 0);
  ASSERT_FALSE(midi.open_input(in).has_value());
  ASSERT_FALSE(midi.open_output(out).has_value());

  const std::vector<unsigned char> fader{0xB0, 81, 100};  // CC, fader 1, value 100
  surface_out.sendMessage(&fader);
  {
    std::unique_lock guard(lock);
    ASSERT_TRUE(arrived.wait_for(guard, std::chrono::seconds(5), [&] { return !received.empty(); }));
    EXPECT_EQ(received, (std::vector<std::uint8_t>{0xB0, 81, 100}));
  }

  midi.send_control_change(82, 33);
  std::vector<unsigned char> back;
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
  while (back.empty() && std::chrono::steady_clock::now() < deadline) {
    surface_in.getMessage(&back);
    if (back.empty()) std::this_thread::yield();
  }
  EXPECT_EQ(back, (std::vector<unsigned char>{0xB0, 82, 33}));
}

}  // namespace
}  // namespace lumaris

#endif
