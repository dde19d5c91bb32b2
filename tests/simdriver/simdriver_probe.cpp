// Prints what the simulated driver offers right after it started, so that a
// test can see how the start-up environment variables act on a fresh process.
#include <cirro_api.h>
#include <pvsim.h>

#include <cstdint>
#include <cstdio>

int main()
{
    std::int32_t count = -1;
    const std::int32_t result = pv_GetNumberOfCameras(&count);
    std::printf("api=0x%08x cameras=%d result=%d\n", static_cast<unsigned>(pv_QueryApiVersion()), count, result);
    char error[1024] = {};
    std::uint32_t required = 0;
    const std::int32_t asked = pvsim_GetStartScenarioError(error, sizeof error, &required);
    std::printf("startError=%d:%s\n", asked, error);
    return 0;
}
