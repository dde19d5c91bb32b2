#include "network/ethtooldriverinfo_linux.h"

#include "network/networklogging.h"

#include <linux/ethtool.h>
#include <linux/sockios.h>
#include <net/if.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace {

QString fixedText(const char* text, std::size_t size)
{
    return QString::fromUtf8(text, int(strnlen(text, size)));
}

} // namespace

AdapterDriverInfo EthtoolDriverInfo::query(const QString& interfaceName)
{
    const QByteArray name = interfaceName.toUtf8();
    if (name.isEmpty() || name.size() >= IFNAMSIZ)
        return {};

    // Any socket will do for the request; this one never sends anything.
    const int fd = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (fd < 0) {
        qCWarning(lcNetwork) << "no socket for the driver query:" << std::strerror(errno);
        return {};
    }
    ethtool_drvinfo info{};
    info.cmd = ETHTOOL_GDRVINFO;
    ifreq request{};
    std::memcpy(request.ifr_name, name.constData(), std::size_t(name.size()));
    request.ifr_data = reinterpret_cast<char*>(&info);
    const int result = ::ioctl(fd, SIOCETHTOOL, &request);
    const int error = errno;
    ::close(fd);
    if (result < 0) {
        qCDebug(lcNetwork) << "no driver info for" << interfaceName << std::strerror(error);
        return {};
    }
    AdapterDriverInfo driver;
    driver.driver = fixedText(info.driver, sizeof info.driver);
    driver.version = fixedText(info.version, sizeof info.version);
    driver.busInfo = fixedText(info.bus_info, sizeof info.bus_info);
    return driver;
}
