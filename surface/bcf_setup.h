#pragma once

#include <string>

#include "core/window.h"

namespace lumaris {

class BCF;
class DeskContext;

// "BCF Setup", opened from "&BCF2000 Setup": loads the surface's window (kept
// hidden), connects, and says how the connection went.
class BcfSetup : public Window {
 public:
  BcfSetup(DeskContext& context, BCF& surface);

  void Form_Load();
  void Command1_Click();  // "Connect"
  void Command2_Click();  // shows "BCF2000 Control"
  void Command3_Click();  // "Close"

  const std::string& Text1() const { return text1_; }
  void set_Text1(std::string text) { text1_ = std::move(text); }

 private:
  DeskContext& context_;
  BCF& surface_;
  std::string text1_;
};

}  // namespace lumaris
