#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/window.h"

namespace lumaris {

// One Qt window of the console: it renders its engine model and forwards the
// operator's events to it. sync() re-reads the model and writes only what changed.
class DeskWindow {
 public:
  virtual ~DeskWindow() = default;
  virtual QWidget* widget() = 0;
  virtual Window& model() = 0;
  // The name the desks open it by, which is also its screenshot's file name.
  virtual std::string name() const = 0;
  virtual void sync() = 0;
  // A window whose shown values change often splits sync() into parts that can
  // be walked alone, sync() walking them all; after a timer's tick only the parts
  // whose values changed are walked.
  virtual int sync_parts() const { return 1; }
  virtual void sync_part(int /*part*/) { sync(); }
  // Opens the window the way the operator would before its screenshot is taken.
  virtual void prepare_screenshot() { model().Show(); }
  // Further states worth a screenshot: a name suffix and the operator action that
  // leads there, run in order after the first screenshot.
  using ScreenshotVariant = std::pair<std::string, std::function<void()>>;
  virtual std::vector<ScreenshotVariant> screenshot_variants() { return {}; }
};

}  // namespace lumaris
