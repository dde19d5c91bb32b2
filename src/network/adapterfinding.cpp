#include "network/adapterfinding.h"

#include <utility>

namespace {

QString checkName(AdapterFinding::Check check)
{
    switch (check) {
    case AdapterFinding::Check::Link:
        return AdapterFinding::tr("Link");
    case AdapterFinding::Check::Address:
        return AdapterFinding::tr("IPv4 address");
    case AdapterFinding::Check::Route:
        return AdapterFinding::tr("Route to the cameras");
    case AdapterFinding::Check::PacketSize:
        return AdapterFinding::tr("Packet size");
    case AdapterFinding::Check::ReversePathFilter:
        return AdapterFinding::tr("Reverse-path filtering");
    case AdapterFinding::Check::LinkLocal:
        return AdapterFinding::tr("Link-local address");
    case AdapterFinding::Check::ReceiveBuffer:
        return AdapterFinding::tr("Receive buffer size");
    }
    return {};
}

QString bufferSize(qint64 bytes)
{
    return bytes % (1024 * 1024) == 0 ? AdapterFinding::tr("%1 MiB").arg(bytes / (1024 * 1024))
                                      : AdapterFinding::tr("%1 KiB").arg(bytes / 1024);
}

} // namespace

AdapterFinding::AdapterFinding(Severity severity, Check check, QString problem, QString remedy, QString summary)
    : m_severity(severity)
    , m_check(check)
    , m_problem(std::move(problem))
    , m_remedy(std::move(remedy))
    , m_summary(std::move(summary))
{
}

bool AdapterFinding::isMoreImportant(const AdapterFinding& a, const AdapterFinding& b)
{
    if (a.m_severity != b.m_severity)
        return a.m_severity > b.m_severity;
    return a.m_check < b.m_check;
}

AdapterFinding AdapterFinding::notChecked(Check check, const QString& why)
{
    const QString text = tr("%1 not checked: %2").arg(checkName(check), why);
    return {Severity::Info, check, text, {}, text};
}

AdapterFinding AdapterFinding::switchedOff(const QString& adapter)
{
    return {Severity::Error, Check::Link, tr("The adapter %1 is switched off.").arg(adapter),
            tr("Switch it on: ip link set dev %1 up").arg(adapter),
            tr("The adapter %1 is switched off: switch it on.").arg(adapter)};
}

AdapterFinding AdapterFinding::noLink(const QString& adapter)
{
    return {Severity::Error, Check::Link, tr("The adapter %1 has no link.").arg(adapter),
            tr("Check the cable, the switch and the cameras' power supply."),
            tr("The adapter %1 has no link: check the cable, the switch and the cameras' power supply.").arg(adapter)};
}

AdapterFinding AdapterFinding::noAddress(const QString& adapter, bool dhcp)
{
    const QString problem = dhcp ? tr("The adapter %1 has no IPv4 address: no DHCP server gave it one.").arg(adapter)
                                 : tr("The adapter %1 has no IPv4 address.").arg(adapter);
    return {Severity::Error, Check::Address, problem,
            tr("Give %1 a static IPv4 address in the cameras' subnet.").arg(adapter),
            tr("The adapter %1 has no IPv4 address: give it a static address in the cameras' subnet.").arg(adapter)};
}

AdapterFinding AdapterFinding::routedElsewhere(const QString& adapter, const QHostAddress& destination,
                                               const QString& otherAdapter, const QString& sharedSubnet)
{
    const QString target = destination.toString();
    if (!sharedSubnet.isEmpty()) {
        return {Severity::Error, Check::Route,
                tr("Traffic to %1 leaves through %2, which has an address in the same subnet %3, not through %4.")
                    .arg(target, otherAdapter, sharedSubnet, adapter),
                tr("Give %1 and %2 addresses in different subnets, or remove the address of the one that serves no "
                   "cameras.")
                    .arg(adapter, otherAdapter),
                tr("Traffic to %1 leaves through %2 instead of %3: give the two adapters different subnets.")
                    .arg(target, otherAdapter, adapter)};
    }
    return {Severity::Error, Check::Route,
            tr("The system routes traffic to %1 through %2, not through %3.").arg(target, otherAdapter, adapter),
            tr("Remove the route that sends %1 to %2 (see: ip route get %1).").arg(target, otherAdapter),
            tr("Traffic to %1 leaves through %2 instead of %3: remove the route that sends it there.")
                .arg(target, otherAdapter, adapter)};
}

AdapterFinding AdapterFinding::mtuTooSmall(const QString& adapter, int mtu, bool hostCommand)
{
    QString remedy = tr("Set the MTU of %1 to %2, or to at least %3 where the adapter takes no jumbo frames.")
                         .arg(adapter)
                         .arg(jumboMtu)
                         .arg(minimumMtu);
    if (hostCommand)
        remedy += QLatin1Char(' ') + tr("For example: ip link set dev %1 mtu %2").arg(adapter).arg(jumboMtu);
    return {Severity::Error, Check::PacketSize,
            tr("The MTU of %1 is %2 bytes, too small for the cameras' 2 KB packets, which need %3.")
                .arg(adapter)
                .arg(mtu)
                .arg(minimumMtu),
            remedy,
            tr("The MTU of %1 (%2) is too small for 2 KB packets: set it to %3, or at least %4.")
                .arg(adapter)
                .arg(mtu)
                .arg(jumboMtu)
                .arg(minimumMtu)};
}

AdapterFinding AdapterFinding::jumboPacketsOff(const QString& adapter)
{
    return {Severity::Error, Check::PacketSize,
            tr("The camera driver sends no 2 KB packets on %1, so the cameras there can't be reached.").arg(adapter),
            tr("Switch on 2 KB packets for %1 in the ETH service's adapter settings.").arg(adapter),
            tr("The driver sends no 2 KB packets on %1: switch them on in the ETH service's adapter settings.")
                .arg(adapter)};
}

AdapterFinding AdapterFinding::strictReversePathFilter(const QString& adapter, bool fromAll)
{
    QString sysctlName = adapter;
    // sysctl writes the dots of an interface name (eth0.100) as slashes.
    sysctlName.replace(QLatin1Char('.'), QLatin1Char('/'));
    const QString interfaceSetting = QStringLiteral("net.ipv4.conf.%1.rp_filter").arg(sysctlName);
    // The kernel filters by the larger of the two values, so 2 on the
    // interface is enough whatever "all" holds.
    const QString setting = fromAll ? QStringLiteral("net.ipv4.conf.all.rp_filter") : interfaceSetting;
    return {Severity::Warning, Check::ReversePathFilter,
            tr("Strict reverse-path filtering (%1 = 1) drops camera replies on %2 whose sender the system would "
               "reach through another adapter.")
                .arg(setting, adapter),
            // 0 on the interface would leave the 1 of "all" in force.
            fromAll ? tr("Set %1 to 2 (loose): sysctl -w %1=2").arg(interfaceSetting)
                    : tr("Set %1 to 2 (loose) or 0: sysctl -w %1=2").arg(interfaceSetting),
            tr("Strict reverse-path filtering on %1 drops camera replies: set %2 to 2.").arg(adapter, interfaceSetting)};
}

AdapterFinding AdapterFinding::linkLocalAddress(const QString& adapter, const QHostAddress& address)
{
    return {Severity::Warning, Check::LinkLocal,
            tr("The adapter %1 has only the link-local address %2; cameras with a fixed address in another "
               "subnet can't be reached.")
                .arg(adapter, address.toString()),
            tr("Give %1 a static IPv4 address in the cameras' subnet.").arg(adapter),
            tr("The adapter %1 has only the link-local address %2: give it a static address in the cameras' "
               "subnet.")
                .arg(adapter, address.toString())};
}

AdapterFinding AdapterFinding::smallReceiveBuffer(qint64 bytes)
{
    const QString wanted = bufferSize(minimumReceiveBuffer);
    return {Severity::Warning, Check::ReceiveBuffer,
            tr("Sockets may take at most %1 of receive buffer (net.core.rmem_max); image streams need %2, which "
               "hold about 67 ms of a 1 Gbit/s stream, so that no packets are lost while the receiver is busy.")
                .arg(bufferSize(bytes), wanted),
            tr("Raise it: sysctl -w net.core.rmem_max=%1, and keep it in a file below /etc/sysctl.d.")
                .arg(minimumReceiveBuffer),
            tr("The largest receive buffer (%1) is too small for image streams: raise net.core.rmem_max to %2.")
                .arg(bufferSize(bytes), wanted)};
}
