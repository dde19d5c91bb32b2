#include "network/ethtooldriverinfo_linux.h"

#include "network/ethtoolrequest_linux.h"
#include "network/networklogging.h"

#include <linux/ethtool.h>

#include <cstring>

namespace {

QString fixedText(const char* text, std::size_t size)
{
    return QString::fromUtf8(text, int(strnlen(text, size)));
}

} // namespace

AdapterDriverInfo EthtoolDriverInfo::query(const QString& interfaceName)
{
    ethtool_drvinfo info{};
    info.cmd = ETHTOOL_GDRVINFO;
    if (const int error = ethtoolRequest(interfaceName, &info); error != 0) {
        qCDebug(lcNetwork) << "no driver info for" << interfaceName << std::strerror(error);
        return {};
    }
    AdapterDriverInfo driver;
    driver.driver = fixedText(info.driver, sizeof info.driver);
    driver.version = fixedText(info.version, sizeof info.version);
    driver.busInfo = fixedText(info.bus_info, sizeof info.bus_info);
    return driver;
}
