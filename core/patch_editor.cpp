#include "core/patch_editor.h"

#include <cmath>
#include <optional>

#include "core/desk_context.h"
#include "core/window_opener.h"
#include "base/number_text.h"
#include "platform/dialogs.h"

namespace lumaris {

namespace {
constexpr const char* kCaption = "Edit patchlist ";
constexpr const char* kPatchErrorTitle = " Patch Error";
constexpr const char* kPatchErrorText = " Not a valid Patch Number must be 1 - 64";
constexpr const char* kUpdatedStatus = " Patches Updated";
constexpr const char* kClearedStatus = " Patches All Cleared";

bool is_blank(const std::string& text) {
  return text.find_first_not_of(" \t") == std::string::npos;
}

// The desk channel a box names: a whole number 0..64, nothing for anything else.
// An empty box is unpatched.
std::optional<int> channel_in(const std::string& text) {
  if (is_blank(text)) return 0;
  const std::optional<double> number = parse_number(text);
  if (!number || *number != std::floor(*number) || *number < 0 || *number > kDeskChannels) {
    return std::nullopt;
  }
  return static_cast<int>(*number);
}

}  // namespace

PatchEditor::PatchEditor(DeskContext& context) : Window(kCaption), context_(context) {
  draw_entries();
}

void PatchEditor::draw_entries() {
  const Store& store = context_.store();
  for (int i = 0; i < kEntries; ++i) {
    const int s = slot_of(i);
    const std::string dmx = std::to_string(s + 1);
    slot_labels_[i] = "DMX ch " + dmx;
    channel_box_tooltips_[i] = " Select Desh Channel for DMX ch" + dmx;
    channel_boxes_[i] = std::to_string(store.Patch[s]);
  }
  range_label_ = "DMX Lights ( " + std::to_string(slot_of(0) + 1) + " - " +
            std::to_string(slot_of(kEntries - 1) + 1) + " )";
}

void PatchEditor::Form_Load() {
  set_caption(kCaption);
  draw_entries();
}

void PatchEditor::previous_page_clicked() {
  if (page_ == 0) return;
  --page_;
  draw_entries();
}

void PatchEditor::next_page_clicked() {
  if (page_ == kLastPage) return;
  ++page_;
  draw_entries();
}

void PatchEditor::channel_box_changed(int i, const std::string& text) {
  if (i < 0 || i >= kEntries) return;
  channel_boxes_[i] = text;
  if (channel_in(text)) return;
  context_.dialogs().message(
      {kPatchErrorTitle, kPatchErrorText, MessageIcon::Exclamation, MessageButtons::Ok});
  channel_boxes_[i] = "0";
}

void PatchEditor::Update_Click() {
  Store& store = context_.store();
  for (int i = 0; i < kEntries; ++i) {
    // Typing refuses anything else, so a box that is not a channel only stays
    // unpatched rather than guessing.
    store.Patch[slot_of(i)] = static_cast<std::int16_t>(channel_in(channel_boxes_[i]).value_or(0));
  }
  context_.status().show_both(kUpdatedStatus);
  store.Project_Changed = true;
}

void PatchEditor::Clear_Click() {
  Store& store = context_.store();
  for (int i = 0; i < kEntries; ++i) store.Patch[slot_of(i)] = 0;
  draw_entries();
  context_.status().show_both(kClearedStatus);
  store.Project_Changed = true;
}

void PatchEditor::Close_Click() { Hide(); }

void PatchEditor::open_channel(int i) {
  if (i < 0 || i >= kEntries) return;
  const std::optional<int> channel = channel_in(channel_boxes_[i]);
  if (!channel || *channel < 1) return;
  context_.store().Edit_Channel = static_cast<std::int16_t>(*channel - 1);
  context_.windows().open("channel-properties");
}

}  // namespace lumaris
