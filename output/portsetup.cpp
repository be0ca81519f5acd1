#include "output/portsetup.h"

#include "core/console.h"

namespace lumaris {

Portsetup::Portsetup(Console& console) : Window("Set DMX Output Device"), console_(console) {}

}  // namespace lumaris
