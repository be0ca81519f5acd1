#pragma once

#include <cstdint>
#include <string>

#include "core/store.h"

namespace lumaris {

// Stores that tests, benchmarks and fuzz targets start from. Each begins from a
// fresh desk's store.

// The show that tests/data/full_show.xml holds (before saving: version 6).
void build_full_show(Store& store);
// Every section as full as the desk allows: 200 screens, 32 chases of 32 steps,
// every button and fader, a full patch.
void build_maximal_show(Store& store);
// A random show within the desk's ranges, so that whatever the writer writes
// reads back the same.
void build_random_show(Store& store, std::uint32_t seed);

// The bytes of a file, or empty when it cannot be read.
std::string file_contents(const std::string& path);
// A file under tests/data.
std::string test_data(const std::string& name);

}  // namespace lumaris
