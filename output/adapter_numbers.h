#pragma once

namespace lumaris {

// The adapter numbers the desk keeps in Adapter and the show file, in the order
// of the set-up list.
enum AdapterNumber : int {
  kAdapterNone = 0,
  kAdapterParlex = 1,
  kAdapterOki = 2,
  kAdapterOpenDmx = 3,
  kAdapterManolator = 4,
  kAdapterOksidizer = 5,
};

}  // namespace lumaris
