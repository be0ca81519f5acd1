#include "output/output_devices.h"

#include "core/console.h"

namespace lumaris {

OutputDevices::OutputDevices(Console& console) : console_(console) {}

}  // namespace lumaris
