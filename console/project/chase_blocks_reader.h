#pragma once

#include "console/project/block_fields.h"
#include "console/project/project_reader.h"
#include "core/store.h"

namespace lumaris::show_reading {

// <Chase>: a chase with its steps. Stores it and returns true when it is sound;
// otherwise returns false and stores nothing.
bool read_chase(BlockFields& block, Store& store, LoadReport& report);

}  // namespace lumaris::show_reading
