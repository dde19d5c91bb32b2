#include "network/adapteripconfig.h"

#include "network/networklogging.h"
#include "network/networkmanagerclient_linux.h"
#include "network/rtnetlinksocket_linux.h"

#include <net/if.h>

#include <cerrno>
#include <cstring>

namespace {

// Adds the wanted address before removing the others, so that the interface
// is never left without one.
int replaceIpv4Addresses(int interfaceIndex, const RtnetlinkSocket::Ipv4Address& wanted)
{
    RtnetlinkSocket socket;
    if (const int error = socket.addIpv4(interfaceIndex, wanted))
        return error;
    QVector<RtnetlinkSocket::Ipv4Address> present;
    if (const int error = socket.ipv4Addresses(interfaceIndex, &present))
        return error;
    for (const RtnetlinkSocket::Ipv4Address& old : qAsConst(present)) {
        if (old.address == wanted.address && old.prefixLength == wanted.prefixLength)
            continue;
        if (const int error = socket.deleteIpv4(interfaceIndex, old))
            return error;
    }
    return 0;
}

} // namespace

Result AdapterIpConfig::applyStatic(const QString& interfaceName, const QHostAddress& address,
                                           int prefixLength)
{
    if (const std::optional<NetworkManagerClient> manager = NetworkManagerClient::managing(interfaceName))
        return manager->setStaticIpv4(interfaceName, address, prefixLength);

    const int index = int(::if_nametoindex(interfaceName.toUtf8().constData()));
    const int error = index == 0 ? ENODEV : replaceIpv4Addresses(index, {address.toIPv4Address(), prefixLength});
    if (error == 0)
        return {};

    qCWarning(lcNetwork) << "setting" << address << "on" << interfaceName << "failed:" << std::strerror(error);
    if (error == EPERM || error == EACCES) {
        return {HostError::PermissionDenied,
                tr("Changing the address of %1 needs administrator rights.").arg(interfaceName)};
    }
    if (error == ENODEV)
        return NetworkFailure::unknownInterface(interfaceName);
    return {HostError::SystemCallFailed, tr("Setting the address of %1 failed: %2")
                                                 .arg(interfaceName, QString::fromLocal8Bit(std::strerror(error)))};
}

Result AdapterIpConfig::applyDhcp(const QString& interfaceName)
{
    if (const std::optional<NetworkManagerClient> manager = NetworkManagerClient::managing(interfaceName))
        return manager->enableDhcp(interfaceName);
    return {HostError::NotSupported,
            tr("Switching %1 to DHCP is not supported without NetworkManager.").arg(interfaceName)};
}
