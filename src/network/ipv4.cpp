#include "network/ipv4.h"

#include <QHostAddress>

namespace Ipv4 {

HostRange hostRange(quint32 address, quint32 mask)
{
    const quint32 network = address & mask;
    return {network + 1, (~mask | network) - 1};
}

bool isHostOf(quint32 address, quint32 subnetAddress, quint32 mask)
{
    if ((address & mask) != (subnetAddress & mask))
        return false;
    const quint32 host = address & ~mask;
    return host != 0 && host != ~mask;
}

void toNetworkBytes(quint32 hostOrder, std::uint8_t (&bytes)[4])
{
    for (int i = 0; i < 4; ++i)
        bytes[i] = std::uint8_t(hostOrder >> (24 - 8 * i));
}

quint32 fromNetworkBytes(const std::uint8_t (&bytes)[4])
{
    return quint32(bytes[0]) << 24 | quint32(bytes[1]) << 16 | quint32(bytes[2]) << 8 | quint32(bytes[3]);
}

quint32 fromText(const QString& text)
{
    QHostAddress address;
    if (!address.setAddress(text) || address.protocol() != QAbstractSocket::IPv4Protocol)
        return 0;
    return address.toIPv4Address();
}

QString text(quint32 hostOrder)
{
    return QHostAddress(hostOrder).toString();
}

bool isContiguousMask(quint32 mask)
{
    return mask != 0 && (~mask & (~mask + 1)) == 0;
}

} // namespace Ipv4
