#include "network/adapteripconfig.h"

#include <QNetworkAddressEntry>
#include <QNetworkInterface>

namespace {

// -1 unless netmask is an IPv4 mask of contiguous ones.
int prefixLengthOf(const QHostAddress& netmask)
{
    if (netmask.protocol() != QAbstractSocket::IPv4Protocol)
        return -1;
    QNetworkAddressEntry entry;
    entry.setIp(QHostAddress(QHostAddress::AnyIPv4));
    entry.setNetmask(netmask);
    return entry.prefixLength();
}

// A host address: no network, broadcast, loopback, multicast or reserved one.
bool isHostAddress(const QHostAddress& address, int prefixLength)
{
    if (address.protocol() != QAbstractSocket::IPv4Protocol || address.isLoopback())
        return false;
    const quint32 value = address.toIPv4Address();
    const quint8 firstOctet = quint8(value >> 24);
    if (firstOctet == 0 || firstOctet >= 224)
        return false;
    if (prefixLength >= 31)
        return true;
    const quint32 hostBits = ~quint32(0) >> prefixLength;
    return (value & hostBits) != 0 && (value & hostBits) != hostBits;
}

} // namespace

Result AdapterIpConfig::enableStatic(const QString& interfaceName, const QHostAddress& address,
                                            const QHostAddress& netmask)
{
    const int prefixLength = prefixLengthOf(netmask);
    if (prefixLength < 1)
        return {HostError::InvalidNetmask, tr("%1 is not a valid subnet mask.").arg(netmask.toString())};
    if (!isHostAddress(address, prefixLength)) {
        return {HostError::InvalidAddress,
                tr("%1 is not a valid address for a host in a subnet with mask %2.")
                    .arg(address.toString(), netmask.toString())};
    }
    if (!QNetworkInterface::interfaceFromName(interfaceName).isValid())
        return NetworkFailure::unknownInterface(interfaceName);
    return applyStatic(interfaceName, address, prefixLength);
}

Result AdapterIpConfig::enableDhcp(const QString& interfaceName)
{
    if (!QNetworkInterface::interfaceFromName(interfaceName).isValid())
        return NetworkFailure::unknownInterface(interfaceName);
    return applyDhcp(interfaceName);
}
