#include "network/hostarpprober.h"

#include "network/arppacketsocket_linux.h"
#include "network/neighbourresolver_linux.h"
#include "network/networkfailure.h"
#include "network/networklogging.h"
#include "network/rtnetlinksocket_linux.h"

#include <QScopeGuard>
#include <QtAlgorithms>

#include <net/if.h>
#include <net/if_arp.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace {

struct InterfaceFacts
{
    int index = 0;
    short flags = 0;
    unsigned short hardwareType = 0;
    QByteArray mac;
};

// What the kernel says about the interface, or an errno value.
int readInterface(const QByteArray& name, InterfaceFacts* facts)
{
    if (name.isEmpty() || name.size() >= IFNAMSIZ || name.contains('/'))
        return ENODEV;
    const int fd = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return errno;
    const auto closeSocket = qScopeGuard([fd] { ::close(fd); });

    ifreq request{};
    std::memcpy(request.ifr_name, name.constData(), std::size_t(name.size()));
    if (::ioctl(fd, SIOCGIFINDEX, &request) < 0)
        return errno;
    facts->index = request.ifr_ifindex;
    if (::ioctl(fd, SIOCGIFFLAGS, &request) < 0)
        return errno;
    facts->flags = request.ifr_flags;
    if (::ioctl(fd, SIOCGIFHWADDR, &request) < 0)
        return errno;
    facts->hardwareType = request.ifr_hwaddr.sa_family;
    facts->mac = QByteArray(request.ifr_hwaddr.sa_data, 6);
    return 0;
}

} // namespace

HostArpProber::HostArpProber(const QString& interfaceName, const QHostAddress& adapterIp,
                             const QHostAddress& adapterMask, std::chrono::milliseconds timeout)
    : ArpProber(interfaceName, adapterIp, adapterMask, timeout)
{
}

HostArpProber::~HostArpProber() = default;

ArpProber::ProbeResult HostArpProber::ask(quint32 target)
{
    const QByteArray name = adapterName().toUtf8();
    InterfaceFacts interface;
    if (const int error = readInterface(name, &interface))
        return failure(target, error);
    if (!(interface.flags & IFF_UP))
        return {{HostError::InterfaceDown, tr("The network adapter %1 is not up.").arg(adapterName())}, {}};
    // Without a link every request goes nowhere, and every address would
    // look free.
    if (!(interface.flags & IFF_RUNNING))
        return {{HostError::InterfaceDown, tr("The network adapter %1 has no link.").arg(adapterName())}, {}};
    if (interface.hardwareType != ARPHRD_ETHER) {
        return {{HostError::NotSupported, tr("The network adapter %1 does not use ARP.").arg(adapterName())}, {}};
    }

    // Requests carry the adapter's address as their sender; an address that
    // the adapter no longer holds would teach the other hosts a wrong one.
    QVector<RtnetlinkSocket::Ipv4Address> addresses;
    if (const int error = RtnetlinkSocket().ipv4Addresses(interface.index, &addresses))
        return failure(target, error);
    const int prefixLength = int(qPopulationCount(adapterMask()));
    const bool holdsAddress = std::any_of(addresses.cbegin(), addresses.cend(), [&](const auto& held) {
        return held.address == adapterIp() && held.prefixLength == prefixLength;
    });
    if (!holdsAddress) {
        return {{HostError::NoAdapterAddress, tr("The network adapter %1 does not hold the address %2/%3.")
                                                  .arg(adapterName(), addressText(adapterIp()))
                                                  .arg(prefixLength)},
                {}};
    }

    const auto deadline = std::chrono::steady_clock::now() + timeout();
    QByteArray mac;
    int error = 0;
    if (!m_packetSocketDenied) {
        // The interface may have been replaced by one of the same name.
        if (!m_packetSocket || m_packetSocket->interfaceIndex() != interface.index)
            m_packetSocket = std::make_unique<ArpPacketSocket>(interface.index);
        error = m_packetSocket->openError();
        if (error == EPERM || error == EACCES) {
            qCDebug(lcNetwork) << "no packet socket on" << adapterName()
                               << "- the kernel's neighbour resolution answers instead";
            m_packetSocketDenied = true;
            m_packetSocket.reset();
        } else if (error == 0) {
            error = m_packetSocket->ask(interface.mac, adapterIp(), target, deadline, &mac);
        } else {
            m_packetSocket.reset();
        }
    }
    if (m_packetSocketDenied)
        error = NeighbourResolver(name, interface.index, adapterIp()).resolve(target, deadline, &mac);

    if (error)
        return failure(target, error);
    if (mac.size() != 6)
        return noAnswer(target);
    return answered(reinterpret_cast<const quint8*>(mac.constData()));
}

ArpProber::ProbeResult HostArpProber::failure(quint32 target, int error) const
{
    if (error == ENODEV || error == ENXIO)
        return {NetworkFailure::unknownInterface(adapterName()), {}};
    if (error == ENETDOWN)
        return {{HostError::InterfaceDown, tr("The network adapter %1 is not up.").arg(adapterName())}, {}};
    const QString reason = QString::fromLocal8Bit(std::strerror(error));
    qCWarning(lcNetwork) << "ARP probe for" << addressText(target) << "on" << adapterName() << "failed:" << reason;
    if (error == EPERM || error == EACCES) {
        return {{HostError::PermissionDenied, tr("Asking for %1 on the network adapter %2 was not permitted: %3")
                                                  .arg(addressText(target), adapterName(), reason)},
                {}};
    }
    return {{HostError::SystemCallFailed, tr("The ARP request for %1 on the network adapter %2 failed: %3")
                                              .arg(addressText(target), adapterName(), reason)},
            {}};
}
