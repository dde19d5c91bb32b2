#include "network/ethtoolrequest_linux.h"

#include <linux/sockios.h>
#include <net/if.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

int ethtoolRequest(const QString& interfaceName, void* data)
{
    const QByteArray name = interfaceName.toUtf8();
    if (name.isEmpty() || name.size() >= IFNAMSIZ)
        return ENODEV;
    // Any socket will do for the request; this one never sends anything.
    const int fd = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return errno;
    ifreq request{};
    std::memcpy(request.ifr_name, name.constData(), std::size_t(name.size()));
    request.ifr_data = static_cast<char*>(data);
    const int result = ::ioctl(fd, SIOCETHTOOL, &request);
    const int error = result < 0 ? errno : 0;
    ::close(fd);
    return error;
}
