#pragma once

#include "core/store.h"

namespace lumaris {

class DeskContext;

// Edits of the screen table (Screens, Screen_Count) shared by the playback
// desk's Cue menu and the cue editor. Each edit marks the project changed and
// reports on the playback desk's status line.
//
// The table has 200 records and Screen_Count never passes 199, the last screen
// the operator reaches; an insert that would push screen 199 off the end is
// refused with its own status text.
class ScreenTable {
 public:
  static constexpr int kLastScreen = kScreens - 1;

  explicit ScreenTable(DeskContext& context);

  void Copy_Screen(int n);
  void Paste_Screen(int n);
  // Both return whether the table changed.
  bool Insert_Screen(int n);
  bool Delete_Screen(int n);
  void Clear_Screen(int n);

  const Screen& Cue_Clipboard() const { return clipboard_; }

  static bool valid(int n) { return n >= 0 && n <= kLastScreen; }

 private:
  Store& store();
  void changed();

  DeskContext& context_;
  Screen clipboard_;
};

}  // namespace lumaris
