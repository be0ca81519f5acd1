#include "sequence/chases.h"

#include "core/console.h"

namespace lumaris {

Chases::Chases(Console& console) : Window("Sequence Desk"), console_(console) {}

}  // namespace lumaris
