#pragma once

#include <string>

#include "base/colour.h"
#include "core/window.h"

namespace lumaris {

class DeskContext;
class OlaOutput;

// "OLA Output": the olad universe the frame goes to and the Enable button.
class OlaSetup : public Window {
 public:
  static constexpr const char* kCaption = "OLA Output";

  OlaSetup(DeskContext& context, OlaOutput& output);

  void Form_Load();
  void Universe_Change(const std::string& text) { universe_ = text; }
  // Applies the universe typed (a bad number: a message, nothing changes).
  void Universe_Set_Click();
  void Enable_Click();
  void Close_Click() { Hide(); }

  const std::string& Universe() const { return universe_; }
  const std::string& Enable_Caption() const { return caption_; }
  Paint Enable_Colour() const { return colour_; }
  std::string Status() const;

 private:
  void refresh();
  void complain(const std::string& text);

  DeskContext& context_;
  OlaOutput& output_;
  std::string universe_;
  std::string caption_;
  Paint colour_;
};

}  // namespace lumaris
