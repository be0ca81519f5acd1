#pragma once

#include <string>

namespace lumaris {

// The file name (without .png) of a window's screenshot: what an operator calls
// the window, then the window's own name, e.g. "main-desk_Hoofdblad". A window
// without a known label is named after its caption.
std::string screenshot_file_name(const std::string& window_name, const std::string& caption);

}  // namespace lumaris
