// Prints what the simulated driver offers right after it started, so that a
// test can see how the start-up environment variables act on a fresh process.
//   simdriver_probe                    API version and camera count
//   simdriver_probe comport <number>   installs device 0's COM port and prints its path
#include <cirro_api.h>
#include <pvsim.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <sys/stat.h>

namespace {

int installComPort(std::uint32_t number)
{
    const std::int32_t result =
        pv_CameraCommand(0 | PV_DEVICE_ID_FLAG, PV_CAMCMD_COMPORT_INSTALL, &number, sizeof number);
    pv_ComPortInfo info{};
    pv_DeviceInfo(0 | PV_DEVICE_ID_FLAG, PV_DEVINFO_COMPORT, &info, sizeof info);
    struct stat link {};
    const bool linked = lstat(info.devicePath, &link) == 0 && S_ISLNK(link.st_mode);
    std::printf("result=%d linked=%d path=%s\n", result, linked ? 1 : 0, info.devicePath);
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc == 3 && std::strcmp(argv[1], "comport") == 0)
        return installComPort(std::uint32_t(std::strtoul(argv[2], nullptr, 10)));
    std::int32_t count = -1;
    const std::int32_t result = pv_GetNumberOfCameras(&count);
    std::printf("api=0x%08x cameras=%d result=%d\n", static_cast<unsigned>(pv_QueryApiVersion()), count, result);
    char error[1024] = {};
    std::uint32_t required = 0;
    const std::int32_t asked = pvsim_GetStartScenarioError(error, sizeof error, &required);
    std::printf("startError=%d:%s\n", asked, error);
    return 0;
}
