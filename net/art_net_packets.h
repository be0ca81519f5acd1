#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

// The Art-Net wire layouts this node speaks. Every byte offset of a packet lives
// here; the node and its tests go through these names and builders.
namespace lumaris::artnet {

inline constexpr std::uint16_t kPort = 6454;
inline constexpr std::array<std::uint8_t, 8> kId = {'A', 'r', 't', '-', 'N', 'e', 't', 0};
inline constexpr std::uint8_t kProtocolVersion = 14;

inline constexpr std::uint16_t kOpPoll = 0x2000;
inline constexpr std::uint16_t kOpPollReply = 0x2100;
inline constexpr std::uint16_t kOpDmx = 0x5000;

// Every Art-Net packet starts with the ID and a little-endian opcode.
namespace header {
inline constexpr std::size_t kId = 0;
inline constexpr std::size_t kOpCode = 8;  // low byte first
inline constexpr std::size_t kSize = 10;
}  // namespace header

namespace dmx {
inline constexpr std::size_t kProtVerHi = 10;
inline constexpr std::size_t kProtVerLo = 11;
inline constexpr std::size_t kSequence = 12;
inline constexpr std::size_t kPhysical = 13;
inline constexpr std::size_t kUniverse = 14;  // low byte first
inline constexpr std::size_t kLength = 16;    // high byte first
inline constexpr std::size_t kData = 18;
inline constexpr std::size_t kSlots = 512;
inline constexpr std::size_t kSize = kData + kSlots;  // 530
}  // namespace dmx

namespace poll {
inline constexpr std::size_t kSize = 14;  // ID, OpCode, ProtVer (2), TalkToMe, Priority
}  // namespace poll

namespace poll_reply {
inline constexpr std::size_t kAddress = 10;  // IPv4 address (4) then port (2)
inline constexpr std::size_t kAddressSize = 6;
inline constexpr std::size_t kVersInfoH = 16;
inline constexpr std::size_t kVersInfo = 17;
inline constexpr std::size_t kSubSwitchH = 18;
inline constexpr std::size_t kSubSwitch = 19;
inline constexpr std::size_t kOem = 20;  // high byte first
inline constexpr std::size_t kUbeaVersion = 22;
inline constexpr std::size_t kStatus = 23;
inline constexpr std::size_t kEstaMan = 24;
inline constexpr std::size_t kShortName = 26;
inline constexpr std::size_t kShortNameSize = 18;
inline constexpr std::size_t kLongName = 44;
inline constexpr std::size_t kLongNameSize = 64;
inline constexpr std::size_t kNodeReport = 108;
inline constexpr std::size_t kNodeReportSize = 64;
inline constexpr std::size_t kNumPortsHi = 172;
inline constexpr std::size_t kNumPorts = 173;
inline constexpr std::size_t kPortTypes = 174;  // 4 ports
inline constexpr std::size_t kGoodInput = 178;  // 4 ports
inline constexpr std::size_t kGoodOutput = 182; // 4 ports
inline constexpr std::size_t kSwIn = 186;       // 4 ports
inline constexpr std::size_t kSwOut = 190;      // 4 ports
inline constexpr std::size_t kSwVideo = 194;
inline constexpr std::size_t kSwMacro = 195;
inline constexpr std::size_t kSwRemote = 196;
inline constexpr std::size_t kSpare = 197;  // 3 bytes
inline constexpr std::size_t kStyle = 200;
inline constexpr std::size_t kMac = 201;  // 6 bytes
inline constexpr std::size_t kSize = 239;

inline constexpr std::uint16_t kOemCode = 0x00FF;
inline constexpr std::uint8_t kPortOutputsDmx = 0x80;
}  // namespace poll_reply

using DmxPacket = std::array<std::uint8_t, dmx::kSize>;
using PollReplyPacket = std::array<std::uint8_t, poll_reply::kSize>;

// One ArtDmx carrying the first 512 levels of `frame` on `universe`, sequencing off.
DmxPacket build_dmx(std::uint8_t universe, std::span<const std::uint8_t, dmx::kSlots> frame);

struct PollReplyFields {
  std::array<std::uint8_t, poll_reply::kAddressSize> node_address{};
  std::string short_name;
  std::string long_name;
  std::string node_report;
  std::uint32_t node_universe = 0;
};

// The reply to an ArtPoll: one output port; names padded with blanks.
PollReplyPacket build_poll_reply(const PollReplyFields& fields);

// Reading a received datagram; callers check the sizes first.
bool has_id(std::span<const std::uint8_t> packet);
std::uint16_t opcode(std::span<const std::uint8_t> packet);           // needs header::kSize
std::uint16_t dmx_universe(std::span<const std::uint8_t> packet);     // needs dmx::kSize
// How many bytes a packet with this opcode must have to be read at all.
std::size_t minimum_size(std::uint16_t opcode);

}  // namespace lumaris::artnet
