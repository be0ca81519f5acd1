#include "core/channel_properties.h"

#include "core/console.h"

namespace lumaris {

ChannelNames::ChannelNames(Console& console) : Window("Channel Properties"), console_(console) {}

void ChannelNames::Refresh() {}

}  // namespace lumaris
