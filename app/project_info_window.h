#pragma once

#include "app/desk_window.h"
#include "app/widgets/tool_window.h"
#include "core/project_info.h"

class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace lumaris {

class DeskApp;

// Project information: name and text edited, date and version shown.
class ProjectInfoWindow final : public ToolWindow, public DeskWindow {
 public:
  explicit ProjectInfoWindow(DeskApp& app);

  QWidget* widget() override { return this; }
  Window& model() override;
  std::string name() const override { return "project-info"; }
  void sync() override;
  void prepare_screenshot() override;

  QLineEdit* Prj_Name() const { return prj_name_; }
  QPushButton* OKButton() const { return ok_; }

 private:
  ProjectInfo& info();

  DeskApp& app_;
  QPlainTextEdit* project_text_ = nullptr;
  QLineEdit* prj_name_ = nullptr;
  QLineEdit* prj_date_ = nullptr;
  QLineEdit* prj_version_ = nullptr;
  QPushButton* ok_ = nullptr;
};

}  // namespace lumaris
