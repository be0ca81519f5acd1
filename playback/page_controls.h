#pragma once

#include <functional>
#include <string>

namespace lumaris {

class DeskContext;

// The page controls of the playback desk: both Inc_Page and Dec_Page pairs, the
// page name box, the page number and the page text shown on the enlarged form.
class PageControls {
 public:
  static constexpr int kLastPage = 4;
  static constexpr int kFormHeight = 11340;          // twips
  static constexpr int kFormHeightWithText = 15270;  // twips, with the page text box

  // `redraw` redraws the playback panel for the page on show.
  PageControls(DeskContext& context, std::function<void()> redraw);

  void Inc_Page_Click();
  void Dec_Page_Click();
  void Page_Details_Change(const std::string& text);
  void Page_text_Change(const std::string& text);
  void Page_Text_Enable_Click();
  // Reads the page on show into the controls.
  void refresh();

  // The name box's caption of a page whose Name is empty: "Page 1".."Page 5".
  static std::string default_caption(int page);

  const std::string& Page_Details() const { return page_details_; }
  const std::string& Page_Number() const { return page_number_; }
  const std::string& Page_text() const { return page_text_; }
  bool Inc_Page_enabled() const { return inc_enabled_; }
  bool Dec_Page_enabled() const { return dec_enabled_; }
  bool Page_Text_Shown() const { return text_shown_; }
  int form_height() const { return text_shown_ ? kFormHeightWithText : kFormHeight; }

 private:
  int page() const;

  DeskContext& context_;
  std::function<void()> redraw_;
  std::string page_details_;
  std::string page_number_ = "1";
  std::string page_text_;
  bool inc_enabled_ = true;
  bool dec_enabled_ = false;
  bool text_shown_ = false;
};

}  // namespace lumaris
