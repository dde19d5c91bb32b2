#include "network/networkadapters.h"

#include "common/kernelmodules.h"
#include "network/adapterdescription_linux.h"
#include "network/ethtooldriverinfo_linux.h"
#include "network/networkadapters_p.h"
#include "network/networkmanagerclient_linux.h"
#include "network/sysfsnetdevice_linux.h"

QString hostAdapterDescription(const QString& interfaceName)
{
    return AdapterDescription::system().describe(interfaceName, EthtoolDriverInfo::query(interfaceName).driver);
}

AdapterDriverInfo hostAdapterDriverInfo(const QString& interfaceName)
{
    AdapterDriverInfo info = EthtoolDriverInfo::query(interfaceName);
    const QString module = SysfsNetDevice(QStringLiteral("/sys"), interfaceName).driverModule();
    info.date = KernelModules::running().buildDate(module.isEmpty() ? info.driver : module);
    return info;
}

std::optional<bool> managedDhcpState(const QString& interfaceName)
{
    const std::optional<NetworkManagerClient> manager = NetworkManagerClient::managing(interfaceName);
    return manager ? manager->dhcpEnabled(interfaceName) : std::nullopt;
}
