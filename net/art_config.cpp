#include "net/art_config.h"

#include "core/console.h"

namespace lumaris {

Art_Config::Art_Config(Console& console) : Window("Art Net Setup"), console_(console) {}

}  // namespace lumaris
