#pragma once

#include <QString>

#include <cstdint>

// IPv4 numbers in host order (first octet in the most significant byte) and
// the byte blocks of the camera API, which hold addresses in network order.
namespace Ipv4 {

// The first and the last host address of the subnet of address / mask.
struct HostRange
{
    quint32 first = 0;
    quint32 last = 0;
};
HostRange hostRange(quint32 address, quint32 mask);

// Whether the address is a host of the subnet (not its network or broadcast address).
bool isHostOf(quint32 address, quint32 subnetAddress, quint32 mask);

void toNetworkBytes(quint32 hostOrder, std::uint8_t (&bytes)[4]);
quint32 fromNetworkBytes(const std::uint8_t (&bytes)[4]);

// The number from a dotted text; 0 for anything that is not an IPv4 address.
quint32 fromText(const QString& text);
QString text(quint32 hostOrder);

// A contiguous run of one bits from the top ("255.255.252.0"), not zero.
bool isContiguousMask(quint32 mask);

} // namespace Ipv4
