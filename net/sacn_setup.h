#pragma once

#include <array>
#include <string>

#include "base/colour.h"
#include "core/window.h"

namespace lumaris {

class DeskContext;
class SacnOutput;

// "sACN Setup": eight rows, each a universe with its Enable/Disable button, and
// the stream's settings (source name, priority, destination, interface), applied
// together with one button. Bad input shows a message and changes nothing.
class SacnSetup : public Window {
 public:
  static constexpr int kRows = 8;
  static constexpr const char* kCaption = "sACN Setup";

  SacnSetup(DeskContext& context, SacnOutput& output);

  // Opening the window: every field shows what the output has.
  void Form_Load();
  void Universe_Change(int i, const std::string& text);
  // Enables the row on the universe typed, or disables it.
  void Enable_Click(int i);
  void Source_Name_Change(const std::string& text) { source_name_ = text; }
  void Priority_Change(const std::string& text) { priority_ = text; }
  void Destination_Change(const std::string& text) { destination_ = text; }
  void Interface_Change(const std::string& text) { interface_ = text; }
  void Apply_Click();
  void Close_Click() { Hide(); }

  const std::string& Universe(int i) const { return rows_[static_cast<std::size_t>(i)].universe; }
  const std::string& Enable_Caption(int i) const { return rows_[static_cast<std::size_t>(i)].caption; }
  Paint Enable_Colour(int i) const { return rows_[static_cast<std::size_t>(i)].colour; }
  const std::string& Source_Name() const { return source_name_; }
  const std::string& Priority() const { return priority_; }
  const std::string& Destination() const { return destination_; }
  const std::string& Interface() const { return interface_; }
  // What the output does now, for the operator.
  std::string Status() const;

 private:
  struct Row {
    std::string universe;
    std::string caption;
    Paint colour;
  };
  void refresh_rows();
  void refresh_fields();
  void complain(const std::string& text);

  DeskContext& context_;
  SacnOutput& output_;
  std::array<Row, kRows> rows_{};
  std::string source_name_;
  std::string priority_;
  std::string destination_;
  std::string interface_;
};

}  // namespace lumaris
