/* Compiles the camera API header as C: its layout assertions then hold for C
 * callers too. */
#include <cirro_api.h>

int cirroApiHeaderCompilesAsC(void)
{
    return (int)sizeof(pv_DeviceInformation);
}
