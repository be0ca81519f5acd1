// The sACN output: the packet layout byte for byte, the streams a row starts and
// ends, the run-only target, and what bad input does (nothing).
#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>
#include <vector>

#include "console/output_cycle.h"
#include "net/sacn_setup.h"
#include "net/sacn_output.h"
#include "net/sacn_packets.h"
#include "tests/support/fake_udp.h"
#include "tests/support/memory_settings.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

const sacn::Cid kCid = {0x12, 0x34, 0x56, 0x78, 0x9a, 0xbc, 0x4d, 0xef,
                        0x80, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0x77};

// Everything before the slots of a data packet on universe 0x0107, priority
// 100, sequence 0x2a, source "Lumaris"; bytes not set here are zero.
std::vector<std::uint8_t> data_header() {
  std::vector<std::uint8_t> h(126, 0);
  const auto put = [&h](std::size_t at, std::initializer_list<std::uint8_t> bytes) {
    std::copy(bytes.begin(), bytes.end(), h.begin() + static_cast<std::ptrdiff_t>(at));
  };
  put(0, {0x00, 0x10});                                  // preamble size; post-amble size 0
  put(4, {'A', 'S', 'C', '-', 'E', '1', '.', '1', '7'});  // ACN packet identifier, NUL padded
  put(16, {0x72, 0x6e, 0, 0, 0, 0x04});                  // flags 7, root length 622, VECTOR_ROOT_E131_DATA
  std::copy(kCid.begin(), kCid.end(), h.begin() + 22);
  put(38, {0x72, 0x58, 0, 0, 0, 0x02});                  // flags 7, framing length 600, VECTOR_E131_DATA_PACKET
  put(44, {'L', 'u', 'm', 'a', 'r', 'i', 's'});          // source name, 64 bytes NUL padded
  put(108, {0x64, 0, 0, 0x2a, 0x00, 0x01, 0x07});        // priority, no sync address, sequence, options, universe
  // flags 7, DMP length 523, SET_PROPERTY, address and data type, first address 0,
  // increment 1, 513 values; then start code 0
  put(115, {0x72, 0x0b, 0x02, 0xa1, 0, 0, 0, 1, 2, 1});
  return h;
}

std::array<std::uint8_t, sacn::kSlots> ramp() {
  std::array<std::uint8_t, sacn::kSlots> slots{};
  for (std::size_t i = 0; i < slots.size(); ++i) slots[i] = static_cast<std::uint8_t>(i * 3);
  return slots;
}

TEST(SacnPackets, PacketsAreLaidOutByteForByteNamesAreCutAndUniversesMapToTheirMulticastGroup) {
  sacn::StreamFields fields;
  fields.cid = kCid;
  fields.source_name = "Lumaris";
  fields.universe = 263;
  fields.sequence = 0x2a;
  const auto slots = ramp();
  const auto data = sacn::build_data(fields, slots);
  ASSERT_EQ(data.size(), 638u);
  EXPECT_EQ(std::vector<std::uint8_t>(data.begin(), data.begin() + 126), data_header());
  EXPECT_TRUE(std::equal(slots.begin(), slots.end(), data.begin() + 126));

  fields.terminated = true;
  const auto end = sacn::build_data(fields, slots);
  std::vector<std::uint8_t> expected = data_header();
  expected[112] = 0x40;  // options: Stream_Terminated
  EXPECT_EQ(std::vector<std::uint8_t>(end.begin(), end.begin() + 126), expected);

  fields.source_name = std::string(80, 'x');
  const auto named = sacn::build_data(fields, slots);
  EXPECT_EQ(named[sacn::framing::kSourceName + 62], 'x');
  EXPECT_EQ(named[sacn::framing::kSourceName + 63], 0);  // always NUL-terminated

  EXPECT_EQ(sacn::multicast_address(1), "239.255.0.1");
  EXPECT_EQ(sacn::multicast_address(63999), "239.255.249.255");
  sacn::Cid back{};
  ASSERT_TRUE(sacn::parse_cid(sacn::cid_text(kCid), back));
  EXPECT_EQ(back, kCid);
  EXPECT_FALSE(sacn::parse_cid("12345678-9abc-4def-8011-2233445566zz", back));
}

struct SacnDesk : ::testing::Test {
  FakeUdp socket;
  MemorySettings settings;
  TestConsole desk;

  Console& build(std::optional<std::string> target = std::nullopt) {
    desk.services.sacn_socket = &socket;
    desk.services.settings = &settings;
    desk.services.sacn_target = std::move(target);
    return desk.build();
  }
  SacnOutput& output() { return desk.console->sacn_output(); }
  SacnSetup& window() { return desk.console->sacn_setup(); }
  void tick() { desk.console->output_cycle().output_tick(); }
  static int universe_of(const FakeUdp::Sent& sent) {
    return sent.bytes[sacn::framing::kUniverse] * 256 + sent.bytes[sacn::framing::kUniverse + 1];
  }
  static bool terminated(const FakeUdp::Sent& sent) {
    return (sent.bytes[sacn::framing::kOptions] & sacn::framing::kOptionStreamTerminated) != 0;
  }
};

TEST_F(SacnDesk, AnEnabledRowMulticastsEveryFrameEndsWithThreeTerminationsAndComesBackWithTheNextRun) {
  build();
  desk.store().Desk_Level[0] = 200;
  tick();
  EXPECT_TRUE(socket.sent().empty()) << "nothing leaves before the operator enables a row";

  window().Universe_Change(2, "263");
  window().Enable_Click(2);
  tick();
  ASSERT_EQ(socket.sent().size(), 1u);
  const auto sent = socket.sent()[0];
  EXPECT_EQ(std::tie(sent.host, sent.port), std::tuple("239.255.1.7", sacn::kPort));
  EXPECT_EQ(std::tuple(universe_of(sent), sent.bytes[sacn::dmp::kSlotData]), std::tuple(263, 200));

  socket.clear_sent();
  window().Enable_Click(2);  // Disable
  ASSERT_EQ(socket.sent().size(), 3u);
  for (const auto& end : socket.sent()) EXPECT_TRUE(terminated(end));
  tick();
  EXPECT_EQ(socket.sent().size(), 3u) << "a disabled row sends nothing more";

  window().Enable_Click(2);
  ASSERT_FALSE(output().set_priority(7));
  tick();
  const sacn::Cid cid = output().cid();
  socket.clear_sent();
  desk.console->shutdown();
  ASSERT_EQ(socket.sent().size(), 3u) << "stopping the console ends the stream";
  EXPECT_TRUE(terminated(socket.sent()[2]));
  desk.console.reset();
  socket.clear_sent();

  TestConsole next;  // the row, the priority and the CID are kept with the computer
  next.services.sacn_socket = &socket;
  next.services.settings = &settings;
  next.build();
  EXPECT_EQ(next.console->sacn_output().cid(), cid);
  next.console->output_cycle().output_tick();
  ASSERT_EQ(socket.sent().size(), 1u);
  EXPECT_EQ(std::tuple(universe_of(socket.sent()[0]), socket.sent()[0].bytes[sacn::framing::kPriority]),
            std::tuple(263, 7));
  EXPECT_TRUE(std::equal(cid.begin(), cid.end(), socket.sent()[0].bytes.begin() + sacn::root::kCid));
}

TEST_F(SacnDesk, RunTargetSendsUniverseOneOrRedirectsRowsIsNeverSavedAndSequencesCountPerUniverse) {
  build("127.0.0.1");
  for (int i = 0; i < 257; ++i) tick();
  ASSERT_EQ(socket.sent().size(), 257u);
  EXPECT_EQ(std::tuple(socket.sent()[0].host, universe_of(socket.sent()[0])), std::tuple("127.0.0.1", 1));
  const auto sequence = [this](std::size_t i) { return socket.sent()[i].bytes[sacn::framing::kSequence]; };
  EXPECT_EQ(std::tuple(sequence(1), sequence(255), sequence(256)), std::tuple(1, 255, 0)) << "and wraps";

  socket.clear_sent();
  ASSERT_FALSE(output().set_row(0, 9, true));
  tick();
  // Universe 1 ends (three terminations), universe 9 goes to the same target.
  ASSERT_EQ(socket.sent().size(), 4u);
  EXPECT_TRUE(terminated(socket.sent()[0]));
  EXPECT_EQ(std::tuple(universe_of(socket.sent()[3]), socket.sent()[3].host), std::tuple(9, "127.0.0.1"));
  EXPECT_EQ(sequence(3), 0) << "each universe counts on its own";
  EXPECT_FALSE(settings.read(SacnOutput::kDestinationSetting).has_value());
}

TEST_F(SacnDesk, BadInputShowsAMessageAndChangesNothing) {
  build();
  ASSERT_TRUE(settings.read(SacnOutput::kCidSetting)) << "the CID is made once and kept with the computer";

  for (const char* bad : {"0", "64000", "abc", ""}) {
    window().Universe_Change(0, bad);
    window().Enable_Click(0);
    EXPECT_FALSE(output().row(0).enabled) << bad;
  }
  ASSERT_FALSE(output().set_row(1, 5, true));
  window().Universe_Change(0, "5");
  window().Enable_Click(0);
  EXPECT_FALSE(output().row(0).enabled) << "two rows cannot send one universe";

  window().Priority_Change("201");
  window().Destination_Change("10.0.0.9");
  window().Apply_Click();
  EXPECT_EQ(output().priority(), 100);
  EXPECT_EQ(output().destination(), "") << "one bad field applies none";
  window().Priority_Change("150");
  window().Destination_Change("10.0.0.300");
  window().Apply_Click();
  EXPECT_EQ(std::tuple(output().priority(), desk.dialogs.messages().size()), std::tuple(100, 7u));

  window().Priority_Change("150");
  window().Destination_Change("127.0.0.1");
  window().Source_Name_Change("FOH");
  window().Apply_Click();
  EXPECT_EQ(output().priority(), 150);
  tick();
  EXPECT_EQ(std::tuple(socket.sent().back().host, socket.sent().back().bytes[sacn::framing::kPriority]),
            std::tuple("127.0.0.1", 150));
  EXPECT_EQ(settings.read(SacnOutput::kSourceNameSetting), "FOH");
}

}  // namespace
}  // namespace lumaris
