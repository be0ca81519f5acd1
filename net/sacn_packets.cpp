#include "net/sacn_packets.h"

#include <algorithm>
#include <cstdio>

namespace lumaris::sacn {

namespace {
void put16(DataPacket& p, std::size_t at, std::uint16_t value) {
  p[at] = static_cast<std::uint8_t>(value >> 8);
  p[at + 1] = static_cast<std::uint8_t>(value & 0xFF);
}

void put32(DataPacket& p, std::size_t at, std::uint32_t value) {
  for (std::size_t i = 0; i < 4; ++i) p[at + i] = static_cast<std::uint8_t>(value >> (24 - 8 * i));
}

// The flags and the length from `at` to the end of the packet.
void put_flags_length(DataPacket& p, std::size_t at) {
  put16(p, at, static_cast<std::uint16_t>(kFlags | (kPacketSize - at)));
}
}  // namespace

DataPacket build_data(const StreamFields& fields, std::span<const std::uint8_t, kSlots> slots) {
  DataPacket p{};
  put16(p, root::kPreambleSize, root::kPreamble);
  put16(p, root::kPostambleSize, 0);
  std::copy(kPacketIdentifier.begin(), kPacketIdentifier.end(), p.begin() + root::kPacketId);
  put_flags_length(p, root::kFlagsLength);
  put32(p, root::kVector, root::kVectorData);
  std::copy(fields.cid.begin(), fields.cid.end(), p.begin() + root::kCid);

  put_flags_length(p, framing::kFlagsLength);
  put32(p, framing::kVector, framing::kVectorDataPacket);
  const std::size_t name_length = std::min(fields.source_name.size(), kSourceNameSize - 1);
  std::copy_n(fields.source_name.begin(), name_length, p.begin() + framing::kSourceName);
  p[framing::kPriority] = std::min<std::uint8_t>(fields.priority, kMaxPriority);
  put16(p, framing::kSyncAddress, 0);
  p[framing::kSequence] = fields.sequence;
  p[framing::kOptions] = fields.terminated ? framing::kOptionStreamTerminated : 0;
  put16(p, framing::kUniverse, fields.universe);

  put_flags_length(p, dmp::kFlagsLength);
  p[dmp::kVector] = dmp::kVectorSetProperty;
  p[dmp::kAddressDataType] = dmp::kAddressDataTypeValue;
  put16(p, dmp::kFirstAddress, 0);
  put16(p, dmp::kAddressIncrement, 1);
  put16(p, dmp::kValueCount, static_cast<std::uint16_t>(kSlots + 1));
  p[dmp::kStartCode] = 0;
  std::copy(slots.begin(), slots.end(), p.begin() + dmp::kSlotData);
  return p;
}

std::string multicast_address(int universe) {
  return "239.255." + std::to_string((universe >> 8) & 0xFF) + "." + std::to_string(universe & 0xFF);
}

std::string cid_text(const Cid& cid) {
  std::string text;
  char hex[3];
  for (std::size_t i = 0; i < cid.size(); ++i) {
    if (i == 4 || i == 6 || i == 8 || i == 10) text += '-';
    std::snprintf(hex, sizeof hex, "%02x", cid[i]);
    text += hex;
  }
  return text;
}

bool parse_cid(const std::string& text, Cid& cid) {
  if (text.size() != 36) return false;
  Cid parsed{};
  std::size_t byte = 0;
  for (std::size_t i = 0; i < text.size();) {
    if (i == 8 || i == 13 || i == 18 || i == 23) {
      if (text[i] != '-') return false;
      ++i;
      continue;
    }
    auto nibble = [](char c) -> int {
      if (c >= '0' && c <= '9') return c - '0';
      if (c >= 'a' && c <= 'f') return c - 'a' + 10;
      if (c >= 'A' && c <= 'F') return c - 'A' + 10;
      return -1;
    };
    const int high = nibble(text[i]);
    const int low = i + 1 < text.size() ? nibble(text[i + 1]) : -1;
    if (high < 0 || low < 0) return false;
    parsed[byte++] = static_cast<std::uint8_t>(high * 16 + low);
    i += 2;
  }
  if (byte != cid.size()) return false;
  cid = parsed;
  return true;
}

}  // namespace lumaris::sacn
