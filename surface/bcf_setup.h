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
  void connect_clicked();
  void control_clicked();  // shows "BCF2000 Control"
  void close_clicked();

  const std::string& connection_box() const { return connection_box_; }
  void set_connection_box(std::string text) { connection_box_ = std::move(text); }

 private:
  DeskContext& context_;
  BCF& surface_;
  std::string connection_box_;
};

}  // namespace lumaris
