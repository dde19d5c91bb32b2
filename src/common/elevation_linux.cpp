#include "common/elevation.h"

#include <unistd.h>

namespace Elevation {

bool isElevated()
{
    return geteuid() == 0;
}

} // namespace Elevation
