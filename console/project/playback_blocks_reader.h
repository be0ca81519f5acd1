#pragma once

#include "console/project/block_fields.h"
#include "console/project/project_reader.h"
#include "core/store.h"

namespace lumaris::show_reading {

// The playback desk's blocks. Each stores its block and returns true when it is
// sound; otherwise it returns false and stores nothing.

// <Button>: the function of a playback button.
bool read_button(BlockFields& f, Store& store, LoadReport& report);
// <Fader>: the function of a playback fader.
bool read_fader(BlockFields& f, Store& store, LoadReport& report);
// <Screen>: a recorded screen; `last_screen` rises to the highest one read.
bool read_screen(BlockFields& f, Store& store, LoadReport& report, int& last_screen);
// <Page>: a playback page's name, text and colour.
bool read_page(BlockFields& f, Store& store, LoadReport& report);

}  // namespace lumaris::show_reading
