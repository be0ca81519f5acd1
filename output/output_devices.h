#pragma once

namespace lumaris {

class Console;

// Hands each finished frame to the selected adapter.
class OutputDevices {
 public:
  explicit OutputDevices(Console& console);
  void Send_Frame() {}
  void USB_Close_If_Open() {}

 private:
  Console& console_;
};

}  // namespace lumaris
