#include "common/simulateddriver.h"

#include <dlfcn.h>

namespace SimulatedDriver {

void* symbol(const char* name)
{
    return ::dlsym(RTLD_DEFAULT, name);
}

} // namespace SimulatedDriver
