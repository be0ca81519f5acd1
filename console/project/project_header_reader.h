#pragma once

#include "console/project/block_fields.h"
#include "console/project/project_reader.h"
#include "core/store.h"

namespace lumaris::show_reading {

// The show file's <Project> block: the project's name, date, version and text,
// the output adapter, the surface mode and the Art-Net rows. Stores it and
// returns true when it is sound; returns false, storing nothing, otherwise.
bool read_project_header(BlockFields& fields, Store& store, LoadReport& report);

}  // namespace lumaris::show_reading
