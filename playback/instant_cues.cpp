#include "playback/instant_cues.h"

#include "core/desk_context.h"

namespace lumaris {

namespace {

constexpr const char* kCaption = "Instant Cues";

}  // namespace

InstantCues::InstantCues(DeskContext& context, Desk desk)
    : Window(kCaption), context_(context), desk_(std::move(desk)) {}

void InstantCues::Show() {
  Refresh_Instant_Panel();
  Window::Show();
}

void InstantCues::Refresh_Instant_Panel() {
  const Store& store = context_.store();
  std::size_t j = 0;
  for (int k = 1; k < store.Screen_Count && k < kScreens && j < kSlots; ++k) {
    const Screen& screen = store.Screens[k];
    if (!screen.Instant) continue;
    instant_map_[j] = static_cast<std::int16_t>(k);
    Slot& slot = slots_[j];
    slot.caption = screen.Name;
    slot.tooltip = std::to_string(j + 1) + ", Screen " + std::to_string(k) + " " + screen.Name;
    slot.colour = colour_from_text(screen.Colour);
    slot.visible = true;
    ++j;
  }
  for (; j < kSlots; ++j) {
    slots_[j] = Slot{};
    instant_map_[j] = 0;
  }
}

void InstantCues::Screen_sel_Click(int slot, MouseButton button) {
  if (slot < 0 || slot >= kSlots || !slots_[static_cast<std::size_t>(slot)].visible) return;
  const int screen = instant_map_[static_cast<std::size_t>(slot)];
  if (button == MouseButton::Left) {
    if (desk_.autotake) desk_.autotake(screen);
  } else if (desk_.open_cue_editor) {
    desk_.open_cue_editor(screen);
  }
}

}  // namespace lumaris
