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

  void Pannel_Dec_Click();
  void Pannel_Inc_Click();
  // The operator typed into entry i; `text` is the box's whole new text.
  void Text1_Change(int i, const std::string& text);
  void Update_Click();
  void Clear_Click();
  void Close_Click();
  // Double click or right-button press on entry i.
  void Text1_Open(int i);

  int page() const { return page_; }
  int slot_of(int i) const { return page_ * kPageStep + i; }
  const std::string& Label1(int i) const { return label1_[i]; }
  const std::string& Text1(int i) const { return text1_[i]; }
  const std::string& Text1_tooltip(int i) const { return tooltips_[i]; }
  const std::string& Label4() const { return label4_; }
  bool Pannel_Dec_enabled() const { return page_ > 0; }
  bool Pannel_Inc_enabled() const { return page_ < kLastPage; }

 private:
  void draw_entries();

  DeskContext& context_;
  int page_ = 0;
  std::array<std::string, kEntries> label1_{};
  std::array<std::string, kEntries> text1_{};
  std::array<std::string, kEntries> tooltips_{};
  std::string label4_;
};

}  // namespace lumaris
