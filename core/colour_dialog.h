#pragma once

namespace lumaris {

// The title of the colour dialog, whichever window asks the operator for a colour.
inline constexpr const char* kColourTitle = " Choose a Colour";

}  // namespace lumaris
