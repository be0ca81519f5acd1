#pragma once

#include <string>

namespace lumaris {

// What every desk window model shares: a caption and whether it is on screen.
// Windows are created once and kept; closing one only hides it.
class Window {
 public:
  virtual ~Window() = default;
  bool visible() const { return visible_; }
  virtual void Show() { visible_ = true; }
  virtual void Hide() { visible_ = false; }
  const std::string& caption() const { return caption_; }

 protected:
  explicit Window(std::string caption) : caption_(std::move(caption)) {}
  void set_caption(std::string caption) { caption_ = std::move(caption); }

 private:
  std::string caption_;
  bool visible_ = false;
};

}  // namespace lumaris
