#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

// The E1.31 (sACN) data packet as E1.31-2018 lays it out: a root layer, a
// framing layer and a DMP layer carrying start code 0 and 512 slots. Every byte
// offset lives here; the output and its tests go through these names.
namespace lumaris::sacn {

inline constexpr std::uint16_t kPort = 5568;
inline constexpr int kMinUniverse = 1;
inline constexpr int kMaxUniverse = 63999;
inline constexpr int kMaxPriority = 200;
inline constexpr int kDefaultPriority = 100;
inline constexpr std::size_t kSlots = 512;
inline constexpr std::size_t kCidSize = 16;
inline constexpr std::size_t kSourceNameSize = 64;  // UTF-8, NUL-terminated
// A stream ends with this many packets carrying the Stream_Terminated option.
inline constexpr int kTerminationPackets = 3;

// Every PDU's first two bytes: the flags (0x7) in the high nibble, then the
// length of the PDU from that field to the end of the packet.
inline constexpr std::uint16_t kFlags = 0x7000;

namespace root {
inline constexpr std::size_t kPreambleSize = 0;   // 0x0010, high byte first
inline constexpr std::size_t kPostambleSize = 2;  // 0x0000
inline constexpr std::size_t kPacketId = 4;       // 12 bytes, kPacketIdentifier
inline constexpr std::size_t kFlagsLength = 16;
inline constexpr std::size_t kVector = 18;  // 4 bytes, VECTOR_ROOT_E131_DATA
inline constexpr std::size_t kCid = 22;     // 16 bytes
inline constexpr std::uint16_t kPreamble = 0x0010;
inline constexpr std::uint32_t kVectorData = 0x00000004;
}  // namespace root

namespace framing {
inline constexpr std::size_t kFlagsLength = 38;
inline constexpr std::size_t kVector = 40;  // 4 bytes, VECTOR_E131_DATA_PACKET
inline constexpr std::size_t kSourceName = 44;
inline constexpr std::size_t kPriority = 108;
inline constexpr std::size_t kSyncAddress = 109;  // 2 bytes, 0: not synchronised
inline constexpr std::size_t kSequence = 111;
inline constexpr std::size_t kOptions = 112;
inline constexpr std::size_t kUniverse = 113;  // high byte first
inline constexpr std::uint32_t kVectorDataPacket = 0x00000002;
inline constexpr std::uint8_t kOptionPreview = 0x80;
inline constexpr std::uint8_t kOptionStreamTerminated = 0x40;
inline constexpr std::uint8_t kOptionForceSync = 0x20;
}  // namespace framing

namespace dmp {
inline constexpr std::size_t kFlagsLength = 115;
inline constexpr std::size_t kVector = 117;  // VECTOR_DMP_SET_PROPERTY
inline constexpr std::size_t kAddressDataType = 118;
inline constexpr std::size_t kFirstAddress = 119;    // 2 bytes, 0x0000
inline constexpr std::size_t kAddressIncrement = 121; // 2 bytes, 0x0001
inline constexpr std::size_t kValueCount = 123;       // 2 bytes: start code + slots
inline constexpr std::size_t kStartCode = 125;
inline constexpr std::size_t kSlotData = 126;
inline constexpr std::uint8_t kVectorSetProperty = 0x02;
inline constexpr std::uint8_t kAddressDataTypeValue = 0xA1;
}  // namespace dmp

inline constexpr std::size_t kPacketSize = dmp::kSlotData + kSlots;  // 638

inline constexpr std::array<std::uint8_t, 12> kPacketIdentifier = {
    'A', 'S', 'C', '-', 'E', '1', '.', '1', '7', 0, 0, 0};

using Cid = std::array<std::uint8_t, kCidSize>;
using DataPacket = std::array<std::uint8_t, kPacketSize>;

struct StreamFields {
  Cid cid{};
  std::string source_name;  // cut to 63 bytes
  std::uint8_t priority = kDefaultPriority;
  std::uint16_t universe = 1;
  std::uint8_t sequence = 0;
  bool terminated = false;  // the Stream_Terminated option
};

DataPacket build_data(const StreamFields& fields, std::span<const std::uint8_t, kSlots> slots);

// 239.255.hi.lo: where a universe's multicast goes.
std::string multicast_address(int universe);

// A CID as text (8-4-4-4-12 hex digits) and back; nothing for malformed text.
std::string cid_text(const Cid& cid);
bool parse_cid(const std::string& text, Cid& cid);

}  // namespace lumaris::sacn
