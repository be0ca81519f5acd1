#pragma once

#include <cstdint>
#include <optional>

#include "core/store.h"

namespace lumaris {

// The control surface's modes, kept in the store as BCF_Mode.
enum SurfaceMode : std::int16_t {
  kSurfaceNotConnected = 0,
  kSurfaceMainMode = 1,
  kSurfacePlaybackMode = 2,
  kSurfaceChaseMode = 3,
  kSurfaceChannelSetMode = 4,
  kSurfaceSubmixSetMode = 5,
  kSurfaceUserConfigMode = 6,
};

// Playback mode shows playback faders and buttons 0..32 on the surface.
inline constexpr int kSurfaceElements = 33;

// A fader of the surface in main desk mode: strip 0..31 of the fader page on
// show. It is made from the page and a desk channel, never from a bare number,
// so a channel cannot be taken for a strip.
class SurfaceStrip {
 public:
  // The strip that shows desk channel `channel` (0-based, as Desk_Level counts)
  // on fader page `fader_page`; none when the channel is on another page.
  static constexpr std::optional<SurfaceStrip> of_channel(int fader_page, int channel) {
    const int strip = channel - fader_page * kFadersPerPage;
    if (strip < 0 || strip >= kFadersPerPage) return std::nullopt;
    return SurfaceStrip(strip);
  }
  constexpr int index() const { return index_; }

 private:
  explicit constexpr SurfaceStrip(int index) : index_(index) {}
  int index_;
};

// A playback fader or button (0-based, as the store counts them) as playback
// mode shows it on the surface.
class PlaybackElement {
 public:
  explicit constexpr PlaybackElement(int number) : number_(number) {}
  constexpr int number() const { return number_; }

 private:
  int number_;
};

// Feedback to the control surface: motor faders and button LEDs follow the
// desks. The main desk, the playback desk and the command line call it, each
// guarded by the surface mode it concerns. Does nothing until a surface is there.
class SurfaceFeedback {
 public:
  virtual ~SurfaceFeedback() = default;
  // A main desk channel shown on a strip of the page on show took a level.
  virtual void BCF_Fader_Update(SurfaceStrip /*strip*/, int /*level*/) {}
  // A channel with no strip (it is on another page) has no fader on the surface.
  void BCF_Fader_Update(std::optional<SurfaceStrip> strip, int level) {
    if (strip) BCF_Fader_Update(*strip, level);
  }
  // A playback fader took a level.
  virtual void BCF_Fader_Update(PlaybackElement /*fader*/, int /*level*/) {}
  // A playback button went on or off.
  virtual void BCF_Button_Update(PlaybackElement /*button*/, bool /*state*/) {}
};

}  // namespace lumaris
