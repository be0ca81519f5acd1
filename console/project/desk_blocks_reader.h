#pragma once

#include "console/project/block_fields.h"
#include "console/project/project_reader.h"
#include "core/store.h"

namespace lumaris::show_reading {

// The main desk's blocks. Each stores its block and returns true when it is
// sound; otherwise it returns false and stores nothing.

// <Submix>: a submix's name, colour and channel levels.
bool read_submix(BlockFields& f, Store& store, LoadReport& report);
// <FaderName>: a desk channel's description, short name, colour and follow flags.
bool read_fader_name(BlockFields& f, Store& store, LoadReport& report);
// The content of <Patch>: "slot:channel" pairs separated by commas.
bool read_patch(BlockFields& f, Store& store, LoadReport& report);

}  // namespace lumaris::show_reading
