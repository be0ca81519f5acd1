#include "net/art_net_node.h"

#include "core/console.h"

namespace lumaris {

D_ArtNet::D_ArtNet(Console& console) : console_(console) {}

}  // namespace lumaris
