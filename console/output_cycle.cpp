#include "console/output_cycle.h"

#include <stdexcept>
#include <string>
#include <utility>

#include "base/rounding.h"
#include "core/desk_context.h"
#include "core/main_desk.h"
#include "core/output_monitor.h"
#include "platform/scheduler.h"
#include "playback/playback_desk.h"

namespace lumaris {

namespace {

double master_factor(int slider_value) { return (255 - slider_value) / 255.0; }

// Ends the tick when a source delivered a level the frame cannot hold.
class TickFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace

OutputCycle::OutputCycle(DeskContext& context, Timer& output_timer, MainDesk& main_desk,
                         OutputMonitor& monitor, PlaybackDesk& playback_desk,
                         std::vector<OutputSink*> sinks)
    : context_(context),
      output_timer_(output_timer),
      main_desk_(main_desk),
      monitor_(monitor),
      playback_desk_(playback_desk),
      sinks_(std::move(sinks)) {
  output_timer_.on_tick([this] { output_tick(); });
}

void OutputCycle::start() {
  for (OutputSink* sink : sinks_) sink->start();
  if (output_timer_.interval() == 0) output_timer_.set_interval(kDefaultInterval);
  output_timer_.set_enabled(true);
}

void OutputCycle::stop() {
  output_timer_.set_enabled(false);
  for (OutputSink* sink : sinks_) sink->stop();
}

int OutputCycle::mix_normal(int i, double channels_main, double sub_main,
                            int& submix_entry) const {
  const Store& store = context_.store();
  const SubmixRec& submix = store.Submix[main_desk_.current_submix()];
  int m = round_half_even(store.Desk_Level[i] * channels_main);
  if (store.Chase_Out[i] > m) m = store.Chase_Out[i];
  if (submix_entry <= kDeskChannels && submix.Chan[submix_entry] - 1 == i) {
    const double v = submix.Level[submix_entry] * sub_main;
    if (m < v) m = round_half_even(v);
    ++submix_entry;
  }
  if (store.Playback_Seq_Out[i] > m) m = store.Playback_Seq_Out[i];
  if (store.Playback_Live_Out[i] > m) m = store.Playback_Live_Out[i];
  return m;
}

int OutputCycle::mix_run_mode(int i) const {
  const Store& store = context_.store();
  if (store.Run_Screen < 0 || store.Run_Screen >= kScreens) throw TickFailure("run screen");
  const Screen& screen = store.Screens[store.Run_Screen];
  const int p = 255 - playback_desk_.preset_value();
  const int x = store.Crossfade_Level;
  int m = 0;
  if (store.Autotake_Running || store.Take_Manual) {
    if (!store.Fader_Names[i].Cross_F && context_.output_timing().smooth()) {
      // Both looks in one sum, rounded once: two separately rounded terms step
      // a rising channel back by one and wobble one that both looks hold alike.
      const double looks = static_cast<double>(store.Desk_Level[i]) * (255 - x) * p +
                           static_cast<double>(screen.Preset[i]) * x * screen.Preset_l;
      m = round_half_even(looks / (255.0 * 255.0));
      const int buttons = store.Playback_Live_Out[i] * (255 - x) + store.Playback_Run_Out[i] * x;
      const int f = round_half_even(buttons / 255.0);
      if (f > m) m = f;
    } else if (!store.Fader_Names[i].Cross_F) {
      m = Level_Scale(store.Desk_Level[i], 255 - x, p, 0, 3) +
          Level_Scale(screen.Preset[i], x, screen.Preset_l, 0, 3);
      const int f = Level_Scale(store.Playback_Live_Out[i], 255 - x, 0, 0, 2) +
                    Level_Scale(store.Playback_Run_Out[i], x, 0, 0, 2);
      if (f > m) m = f;
    } else {
      m = Level_Scale(screen.Preset[i], screen.Preset_l, 0, 0, 2);
      if (store.Playback_Run_Out[i] > m) m = store.Playback_Run_Out[i];
    }
  } else {
    m = round_half_even(p * store.Desk_Level[i] / 255.0);
    if (store.Playback_Live_Out[i] > m) m = store.Playback_Live_Out[i];
  }
  if (store.Playback_Seq_Out[i] > m) m = store.Playback_Seq_Out[i];
  return m;
}

void OutputCycle::mix_channels() {
  const Store& store = context_.store();
  const MainDesk& desk = main_desk_;
  const double channels_main = master_factor(desk.channels_value());
  const double sub_main = master_factor(desk.submix_master_value());
  const double main_factor = master_factor(playback_desk_.main_value());
  int submix_entry = 0;
  for (int i = 0; i < kDeskChannels; ++i) {
    int m = store.Run_Mode ? mix_run_mode(i) : mix_normal(i, channels_main, sub_main, submix_entry);
    if (!store.Fader_Names[i].Main_F) m = round_half_even(m * main_factor);
    if (m > 255) m = 255;
    channel_mix_[i] = m;
  }
  channel_mix_[kDeskChannels] = 0;
}

// Runs every tick for 512 slots: it walks the arrays by pointer so that even an
// unoptimised build keeps a virtual day of ticks quick to test.
void OutputCycle::build_frame() {
  Store& store = context_.store();
  OutputMonitor& monitor = monitor_;
  const bool monitor_shown = monitor.visible();
  const auto* patch = store.Patch.data();
  const int* mix = channel_mix_.data();
  std::uint8_t* out = store.DMX_Out.data();
  for (int s = 0; s < kDmxSlots; ++s) {
    const int channel = patch[s];
    int level = 0;
    if (channel != 0) {
      if (channel < 1 || channel > kDeskChannels + 1) throw TickFailure("patch out of range");
      level = mix[channel - 1];
      if (level < 0) throw TickFailure("negative level");
    }
    out[s] = static_cast<std::uint8_t>(level);
    if (monitor_shown && s >= store.Realout_First && s <= store.Realout_Last) {
      monitor.set_bar(s - store.Realout_First, level);
    }
  }
}

void OutputCycle::output_tick() {
  // A modal dialog opened inside a tick runs an event loop; the next tick must
  // not start inside this one.
  if (in_tick_) return;
  in_tick_ = true;
  bool built = false;
  try {
    if (context_.output_timing().smooth()) {
      const double now = context_.scheduler().now_ms();
      for (const FadeSample& sample : fades_) sample(now);
    }
    mix_channels();
    build_frame();
    built = true;
    for (OutputSink* sink : sinks_) sink->take_frame(context_.store().DMX_Out);
    last_tick_failed_ = false;
  } catch (const std::exception&) {
    last_tick_failed_ = true;
  }
  show_dmx_lamp(built);
  in_tick_ = false;
}

// Green: the output ticks and every sink that can tell takes its frames. Amber,
// with the reason as the tip: a frame was built but the chosen adapter does not
// take it. Black: no frame left the desk.
void OutputCycle::show_dmx_lamp(bool built) {
  MainDesk& desk = main_desk_;
  if (built) {
    for (const OutputSink* sink : sinks_) {
      if (std::string why = sink->fault(); !why.empty()) {
        desk.set_dmx_lamp(MainDesk::kTroubleLamp, std::move(why));
        return;
      }
    }
  }
  desk.set_dmx_lamp(last_tick_failed_ ? kBlack : kGreen);
}

}  // namespace lumaris
