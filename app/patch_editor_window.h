#pragma once

#include <array>

#include "app/desk_window.h"
#include "app/widgets/tool_window.h"
#include "core/patch_editor.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace lumaris {

class DeskApp;

// The patch editor: 128 DMX slots with the desk channel feeding each.
class PatchEditorWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit PatchEditorWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "patch-editor"; }
  void sync() override;
  void prepare_screenshot() override;

  QLineEdit* channel_box(int i) const { return channel_boxes_[i]; }
  QPushButton* Update() const { return update_; }
  QPushButton* Clear() const { return clear_; }
  QPushButton* next_page() const { return next_page_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  PatchEditor& editor();

  DeskApp& app_;
  std::array<QLabel*, PatchEditor::kEntries> slot_labels_{};
  std::array<QLineEdit*, PatchEditor::kEntries> channel_boxes_{};
  QLabel* range_label_ = nullptr;
  QPushButton* previous_page_ = nullptr;
  QPushButton* next_page_ = nullptr;
  QPushButton* update_ = nullptr;
  QPushButton* clear_ = nullptr;
};

}  // namespace lumaris
