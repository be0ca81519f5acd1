#include "net/art_net_packets.h"

#include <algorithm>

namespace lumaris::artnet {

namespace {

template <std::size_t N>
void put_id_and_opcode(std::array<std::uint8_t, N>& packet, std::uint16_t op) {
  std::copy(kId.begin(), kId.end(), packet.begin() + header::kId);
  packet[header::kOpCode] = static_cast<std::uint8_t>(op & 0xFF);
  packet[header::kOpCode + 1] = static_cast<std::uint8_t>(op >> 8);
}

// Left-aligned text in a fixed field, the rest blanks; longer text is cut.
template <std::size_t N>
void put_padded(std::array<std::uint8_t, N>& packet, std::size_t offset, std::size_t size,
                const std::string& text) {
  for (std::size_t i = 0; i < size; ++i) {
    packet[offset + i] = i < text.size() ? static_cast<std::uint8_t>(text[i]) : ' ';
  }
}

}  // namespace

DmxPacket build_dmx(std::uint8_t universe, std::span<const std::uint8_t, dmx::kSlots> frame) {
  DmxPacket packet{};
  put_id_and_opcode(packet, kOpDmx);
  packet[dmx::kProtVerHi] = 0;
  packet[dmx::kProtVerLo] = kProtocolVersion;
  packet[dmx::kSequence] = 0;
  packet[dmx::kPhysical] = 0;
  packet[dmx::kUniverse] = universe;
  packet[dmx::kUniverse + 1] = 0;
  packet[dmx::kLength] = static_cast<std::uint8_t>(dmx::kSlots >> 8);
  packet[dmx::kLength + 1] = static_cast<std::uint8_t>(dmx::kSlots & 0xFF);
  std::copy(frame.begin(), frame.end(), packet.begin() + dmx::kData);
  return packet;
}

PollReplyPacket build_poll_reply(const PollReplyFields& fields) {
  using namespace poll_reply;
  PollReplyPacket packet{};
  put_id_and_opcode(packet, kOpPollReply);
  std::copy(fields.node_address.begin(), fields.node_address.end(), packet.begin() + kAddress);
  packet[kVersInfoH] = 0;
  packet[kVersInfo] = kProtocolVersion;
  packet[kOem] = static_cast<std::uint8_t>(kOemCode >> 8);
  packet[kOem + 1] = static_cast<std::uint8_t>(kOemCode & 0xFF);
  put_padded(packet, kShortName, kShortNameSize, fields.short_name);
  put_padded(packet, kLongName, kLongNameSize, fields.long_name);
  put_padded(packet, kNodeReport, kNodeReportSize, fields.node_report);
  packet[kNumPortsHi] = 0;
  packet[kNumPorts] = 1;
  packet[kPortTypes] = kPortOutputsDmx;
  packet[kSwOut] = static_cast<std::uint8_t>(fields.node_universe & 0xFF);
  return packet;
}

bool has_id(std::span<const std::uint8_t> packet) {
  return packet.size() >= kId.size() && std::equal(kId.begin(), kId.end(), packet.begin());
}

std::uint16_t opcode(std::span<const std::uint8_t> packet) {
  return static_cast<std::uint16_t>(packet[header::kOpCode] | (packet[header::kOpCode + 1] << 8));
}

std::uint16_t dmx_universe(std::span<const std::uint8_t> packet) {
  return static_cast<std::uint16_t>(packet[dmx::kUniverse] | (packet[dmx::kUniverse + 1] << 8));
}

std::size_t minimum_size(std::uint16_t op) { return op == kOpDmx ? dmx::kSize : header::kSize; }

}  // namespace lumaris::artnet
