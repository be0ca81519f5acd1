#include "playback/page_controls.h"

#include <algorithm>

#include "core/desk_context.h"

namespace lumaris {

PageControls::PageControls(DeskContext& context, std::function<void()> redraw)
    : context_(context), redraw_(std::move(redraw)) {}

std::string PageControls::default_caption(int page) { return "Page " + std::to_string(page + 1); }

int PageControls::page() const { return std::clamp<int>(context_.store().Playback_Page, 0, kLastPage); }

void PageControls::Inc_Page_Click() {
  std::int16_t& p = context_.store().Playback_Page;
  if (p < kLastPage) ++p;
  redraw_();
}

void PageControls::Dec_Page_Click() {
  std::int16_t& p = context_.store().Playback_Page;
  if (p > 0) --p;
  redraw_();
}

// The enabled state follows the page, which is what the two buttons' own
// enabling comes to; a show load or Reset Desk that moves the page is covered too.
void PageControls::refresh() {
  const int p = page();
  const std::string& name = context_.store().Pages[p].Name;
  page_details_ = name.empty() ? default_caption(p) : name;
  page_number_ = std::to_string(p + 1);
  page_text_ = context_.store().Pages[p].Text;
  inc_enabled_ = p < kLastPage;
  dec_enabled_ = p > 0;
}

void PageControls::Page_Details_Change(const std::string& text) {
  const int p = page();
  page_details_ = text;
  context_.store().Pages[p].Name = text == default_caption(p) ? std::string() : text;
  context_.store().Project_Changed = true;
}

void PageControls::Page_text_Change(const std::string& text) {
  page_text_ = text;
  context_.store().Pages[page()].Text = text;
  context_.store().Project_Changed = true;
}

void PageControls::Page_Text_Enable_Click() {
  text_shown_ = !text_shown_;
  redraw_();
}

}  // namespace lumaris
