#pragma once

#include <string>
#include <vector>

#include "core/store.h"

namespace lumaris {

// The items the show file carries that differ between two stores, by name
// ("Submix 3", "Button 17"). A button or fader the writer leaves out (Off or
// Cue) only has to be Off in `loaded`.
std::vector<std::string> saved_item_differences(const Store& saved, const Store& loaded);

}  // namespace lumaris
