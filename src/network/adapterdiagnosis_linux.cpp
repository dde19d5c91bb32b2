#include "network/adapterdiagnosis.h"

#include "common/sysfsnode.h"
#include "network/ethservicebindings.h"
#include "network/networkadapters_p.h"
#include "network/rtnetlinksocket_linux.h"

#include <QFile>
#include <QNetworkAddressEntry>
#include <QNetworkInterface>
#include <QtAlgorithms>

#include <net/if.h>

#include <algorithm>
#include <cstring>
#include <optional>

namespace {

// The kernel's limit, and nothing that leads out of /proc/sys/net/ipv4/conf.
bool isInterfaceName(const QString& name)
{
    return !name.isEmpty() && name.toLocal8Bit().size() < IFNAMSIZ && !name.contains(QLatin1Char('/'))
           && name != QLatin1String(".") && name != QLatin1String("..");
}

std::optional<QNetworkAddressEntry> firstIpv4Entry(const QNetworkInterface& interface)
{
    for (const QNetworkAddressEntry& entry : interface.addressEntries()) {
        if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol)
            return entry;
    }
    return std::nullopt;
}

// Also of the interfaces that Qt takes for down, unlike allAddresses().
QList<quint32> localIpv4Addresses()
{
    QList<quint32> addresses;
    for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces()) {
        for (const QNetworkAddressEntry& entry : interface.addressEntries()) {
            if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol)
                addresses.append(entry.ip().toIPv4Address());
        }
    }
    return addresses;
}

QString subnetText(quint32 network, quint32 mask)
{
    return QStringLiteral("%1/%2").arg(QHostAddress(network).toString()).arg(qPopulationCount(mask));
}

// What the route check asks the kernel for: the camera's address when it is a
// host of the subnet, else the subnet's first address that no local interface
// holds (a local one would be routed to the loopback interface).
std::optional<quint32> routeDestination(quint32 address, quint32 mask, const QHostAddress& cameraAddress)
{
    const QList<quint32> local = localIpv4Addresses();
    const quint32 network = address & mask;
    const quint32 last = network | ~mask;
    // /31 links have no network or broadcast address.
    const bool pointToPoint = ~mask <= 1;
    const quint32 first = pointToPoint ? network : network + 1;
    const quint32 end = pointToPoint ? last : last - 1;
    if (cameraAddress.protocol() == QAbstractSocket::IPv4Protocol) {
        const quint32 camera = cameraAddress.toIPv4Address();
        if (camera >= first && camera <= end && !local.contains(camera))
            return camera;
    }
    for (quint32 candidate = first; candidate <= end && candidate - first < 4096; ++candidate) {
        if (!local.contains(candidate))
            return candidate;
    }
    return std::nullopt;
}

// The subnet that the other interface shares with address/mask, or empty.
QString sharedSubnet(const QNetworkInterface& other, quint32 address, quint32 mask)
{
    for (const QNetworkAddressEntry& entry : other.addressEntries()) {
        if (entry.ip().protocol() != QAbstractSocket::IPv4Protocol)
            continue;
        const quint32 otherAddress = entry.ip().toIPv4Address();
        const quint32 otherMask = entry.netmask().toIPv4Address();
        if ((otherAddress & mask) == (address & mask))
            return subnetText(address & mask, mask);
        if ((address & otherMask) == (otherAddress & otherMask))
            return subnetText(otherAddress & otherMask, otherMask);
    }
    return {};
}

QString errnoText(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

// Asks the kernel where traffic to the adapter's subnet leaves.
std::optional<AdapterFinding> routeFinding(const QNetworkInterface& interface, const QNetworkAddressEntry& ipv4,
                                           const QHostAddress& cameraAddress)
{
    const quint32 address = ipv4.ip().toIPv4Address();
    const quint32 mask = ipv4.netmask().toIPv4Address();
    const std::optional<quint32> destination = routeDestination(address, mask, cameraAddress);
    // A /32 address has nobody else on its subnet.
    if (!destination)
        return std::nullopt;
    const QHostAddress target(*destination);
    RtnetlinkSocket socket;
    if (socket.openError() != 0) {
        return AdapterFinding::notChecked(
            AdapterFinding::Check::Route,
            AdapterDiagnosis::tr("the system's routes can't be read: %1").arg(errnoText(socket.openError())));
    }
    int outgoing = 0;
    if (const int error = socket.routeInterface(*destination, &outgoing)) {
        return AdapterFinding::notChecked(
            AdapterFinding::Check::Route,
            AdapterDiagnosis::tr("the route lookup for %1 failed: %2").arg(target.toString(), errnoText(error)));
    }
    if (outgoing == interface.index())
        return std::nullopt;
    const QNetworkInterface other = QNetworkInterface::interfaceFromIndex(outgoing);
    const QString otherName = other.isValid() ? other.name() : AdapterDiagnosis::tr("interface %1").arg(outgoing);
    return AdapterFinding::routedElsewhere(interface.name(), target, otherName, sharedSubnet(other, address, mask));
}

// An integer setting, or the reason why there is none.
struct Setting
{
    std::optional<qint64> value;
    QString why;
};

Setting readInteger(const AdapterDiagnosis::SettingReader& read, const QString& path)
{
    QByteArray contents;
    const Result result = read(path, &contents);
    if (!result.isSuccess())
        return {std::nullopt, result.text()};
    bool ok = false;
    const qint64 value = contents.trimmed().toLongLong(&ok);
    if (!ok) {
        return {std::nullopt, AdapterDiagnosis::tr("/proc/sys/%1 holds no number: \"%2\"")
                                  .arg(path, QString::fromLocal8Bit(contents.trimmed().left(40)))};
    }
    return {value, {}};
}

} // namespace

Result AdapterDiagnosis::readKernelSetting(const QString& path, QByteArray* contents)
{
    QFile file(QStringLiteral("/proc/sys/") + path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {file.exists() ? HostError::PermissionDenied : HostError::NotSupported,
                tr("%1 can't be read: %2").arg(file.fileName(), file.errorString())};
    }
    *contents = file.readAll();
    return {};
}

AdapterDiagnosis AdapterDiagnosis::diagnoseHost(const QString& interfaceName, const QHostAddress& cameraAddress,
                                                const SettingReader& readSetting)
{
    // interfaceFromName() also takes an interface index written as a number.
    const QNetworkInterface interface =
        isInterfaceName(interfaceName) ? QNetworkInterface::interfaceFromName(interfaceName) : QNetworkInterface();
    if (!interface.isValid() || interface.name() != interfaceName)
        return unknown(interfaceName);

    Facts facts;
    facts.name = interfaceName;
    const SysfsNode sysfs(QStringLiteral("/sys/class/net/") + interfaceName);
    // Qt takes an adapter that is up without a carrier for one that is down.
    const std::optional<uint> flags = sysfs.hex(QStringLiteral("flags"));
    facts.switchedOn = flags ? (*flags & IFF_UP) != 0 : interface.flags().testFlag(QNetworkInterface::IsUp);
    // The kernel's own rule for IFF_RUNNING, which sysfs leaves out of flags;
    // loopback and some virtual interfaces say "unknown".
    const QString operstate = sysfs.text(QStringLiteral("operstate")).value_or(QString());
    facts.linkUp = facts.switchedOn
                   && (operstate == QLatin1String("up") || operstate == QLatin1String("unknown")
                       || (operstate.isEmpty() && interface.flags().testFlag(QNetworkInterface::IsRunning)));
    facts.linkSpeed = std::max(0, sysfs.decimal(QStringLiteral("speed")).value_or(0));
    facts.mtu = interface.maximumTransmissionUnit();
    const std::optional<QNetworkAddressEntry> ipv4 = firstIpv4Entry(interface);
    if (ipv4) {
        facts.ipv4Address = ipv4->ip();
        facts.ipv4Netmask = ipv4->netmask();
    }
    // A leased address expires; a configured one is permanent.
    facts.dhcp = managedDhcpState(interfaceName).value_or(ipv4 && !ipv4->isPermanent());
    facts.bound = EthServiceBindings::isBound(interfaceName);
    AdapterDiagnosis diagnosis = fromFacts(facts, cameraAddress, true);

    // A switched-off adapter has no route of its own to be compared with.
    if (ipv4 && facts.switchedOn) {
        if (std::optional<AdapterFinding> finding = routeFinding(interface, *ipv4, cameraAddress))
            diagnosis.add(*finding);
    }

    const Setting own = readInteger(readSetting, QStringLiteral("net/ipv4/conf/%1/rp_filter").arg(interfaceName));
    const Setting all = readInteger(readSetting, QStringLiteral("net/ipv4/conf/all/rp_filter"));
    if (!own.value || !all.value) {
        diagnosis.add(AdapterFinding::notChecked(AdapterFinding::Check::ReversePathFilter,
                                                 own.value ? all.why : own.why));
    } else if (std::max(*own.value, *all.value) == 1) {
        // The kernel filters by the larger of the two values.
        diagnosis.add(AdapterFinding::strictReversePathFilter(interfaceName, *own.value != 1));
    }

    const Setting receiveBuffer = readInteger(readSetting, QStringLiteral("net/core/rmem_max"));
    if (!receiveBuffer.value)
        diagnosis.add(AdapterFinding::notChecked(AdapterFinding::Check::ReceiveBuffer, receiveBuffer.why));
    else if (*receiveBuffer.value < AdapterFinding::minimumReceiveBuffer)
        diagnosis.add(AdapterFinding::smallReceiveBuffer(*receiveBuffer.value));

    diagnosis.sort();
    return diagnosis;
}
