#pragma once

#include "core/window.h"

namespace lumaris {

class Console;

// Channel properties: description, short name, colour and follow flags of Edit_Channel.
class ChannelNames : public Window {
 public:
  explicit ChannelNames(Console& console);
  void Refresh();

 private:
  Console& console_;
};

}  // namespace lumaris
