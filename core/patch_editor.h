#pragma once

#include <array>
#include <string>

#include "core/window.h"

namespace lumaris {

class DeskContext;

// The patch editor: one box per DMX slot holding the desk channel that feeds it.
// 128 entries are shown at a time; each page moves the view by 32 slots.
class PatchEditor : public Window {
 public:
  static constexpr int kEntries = 128;
  static constexpr int kPageStep = 32;
  static constexpr int kLastPage = 12;  // shows slots 385..512

  explicit PatchEditor(DeskContext& context);
  bool available() const { return true; }

  // Opening: draws the entries of the current page from the patch.
  void Form_Load();

  void previous_page_clicked();
  void next_page_clicked();
  // The operator typed into entry i; `text` is the box's whole new text.
  void channel_box_changed(int i, const std::string& text);
  void Update_Click();
  void Clear_Click();
  void Close_Click();
  // Double click or right-button press on entry i: the channel it names opens in
  // the channel properties.
  void open_channel(int i);

  int page() const { return page_; }
  int slot_of(int i) const { return page_ * kPageStep + i; }
  const std::string& slot_label(int i) const { return slot_labels_[i]; }
  const std::string& channel_box(int i) const { return channel_boxes_[i]; }
  const std::string& channel_box_tooltip(int i) const { return channel_box_tooltips_[i]; }
  const std::string& range_label() const { return range_label_; }
  bool previous_page_enabled() const { return page_ > 0; }
  bool next_page_enabled() const { return page_ < kLastPage; }

 private:
  void draw_entries();

  DeskContext& context_;
  int page_ = 0;
  std::array<std::string, kEntries> slot_labels_{};
  std::array<std::string, kEntries> channel_boxes_{};
  std::array<std::string, kEntries> channel_box_tooltips_{};
  std::string range_label_;
};

}  // namespace lumaris
