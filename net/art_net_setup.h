#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/colour.h"
#include "core/window.h"

namespace lumaris {

class DeskContext;
class ArtNetNode;
class MainDesk;

// The Art-Net set-up window: eight output rows, each sending the desk's frame on
// its own universe, the node's state in its state box, and where the packets go.
class ArtNetSetup : public Window {
 public:
  static constexpr int kRows = 8;
  static constexpr const char* kDestinationTitle = " Art-Net Destination";

  ArtNetSetup(DeskContext& context, ArtNetNode& node, MainDesk& main_desk);
  bool available() const { return true; }

  // Opening the window: draws the rows from the desk and starts the node unless
  // it is running. A running node is never started again, so every opening
  // can run it; one that failed (another program held the port) is tried again.
  void Form_Load();
  void enable_button_clicked(int index);
  void close_clicked();
  // A loaded show that enables rows starts the node the same way opening the window does.
  void Start_From_Show();

  // The Destination field: typed text, applied with the Set button (or Enter).
  void Destination_Change(const std::string& text) { destination_text_ = text; }
  void Destination_Set_Click();

  // The Interface list: every address (automatic) first, then this computer's
  // addresses as they were when the window opened. Choosing one keeps it with
  // this computer's settings and binds the running node to it at once.
  const std::vector<std::string>& Interface_Items() const { return interface_items_; }
  int Interface_Index() const;
  void Interface_Click(int index);

  // The universe row i sends on: the one in its ArtDmx header while it is enabled,
  // its own index (what enabling it gives) while it is not.
  std::string universe_box(int i) const;
  const std::string& enable_button(int i) const { return rows_[i].caption; }
  Paint enable_button_colour(int i) const { return rows_[i].colour; }
  const std::string& state_box() const { return state_box_; }
  const std::string& Destination() const { return destination_text_; }
  // Where the node sends now, for the operator.
  std::string Destination_Status() const;

 private:
  struct Row {
    std::string caption = "Enable";
    Paint colour;
  };

  void start_node();
  void list_interfaces();
  void Refresh_Buttons();
  void Update_Send_Timer();

  DeskContext& context_;
  ArtNetNode& node_;
  MainDesk& main_desk_;
  std::array<Row, kRows> rows_{};
  std::string state_box_;
  std::string destination_text_;
  std::vector<std::string> interface_items_;
  std::vector<std::string> interface_choices_;  // the address behind each item; "" = every address
};

}  // namespace lumaris
