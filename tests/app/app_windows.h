#pragma once

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "app/desk_app.h"

namespace lumaris {

// The Qt window that shows the desk window model `name`.
template <typename W>
W& window_named(DeskApp& app, const std::string& name) {
  for (const auto& window : app.windows()) {
    if (window->name() == name) return dynamic_cast<W&>(*window);
  }
  throw std::logic_error("no window " + name);
}

// A desktop console, started, with its main desk shown.
class DeskAppTest : public ::testing::Test {
 protected:
  DeskAppTest() {
    app.set_background_refresh_interval(0);
    app.start();
    app.show_main_window();
  }
  Store& store() { return app.console().store(); }
  DeskApp app;
};

}  // namespace lumaris
