#pragma once

#include <string>

#include "core/window.h"

namespace lumaris {

class DeskContext;

// Project information: name, text, date and version of the show. Only the name
// and the text are edited here; the date and version boxes are for reading.
class ProjectInfo : public Window {
 public:
  explicit ProjectInfo(DeskContext& context);
  bool available() const { return true; }

  // Opening: fills the boxes from the project header.
  void Form_Load();

  void project_text_changed(const std::string& text) { project_text_ = text; }
  void Prj_Name_Change(const std::string& text) { prj_name_ = text; }
  void OKButton_Click();
  void CancelButton_Click();

  const std::string& project_text() const { return project_text_; }
  const std::string& Prj_Name() const { return prj_name_; }
  const std::string& Prj_Date() const { return prj_date_; }
  const std::string& Prj_Version() const { return prj_version_; }

 private:
  DeskContext& context_;
  std::string project_text_;
  std::string prj_name_;
  std::string prj_date_;
  std::string prj_version_;
};

// A date as the desk writes it: dd/mm/yyyy.
std::string date_text(int year, int month, int day);

}  // namespace lumaris
