#include "network/adapterdiagnosis.h"

#include "camera/camera.h"
#include "network/networkfailure.h"
#include "network/simulatedadapters.h"

#include <algorithm>

namespace {

bool isLinkLocal(const QHostAddress& address)
{
    return address.isInSubnet(QHostAddress(QStringLiteral("169.254.0.0")), 16);
}

QString speedText(int mbits)
{
    return mbits >= 1000 && mbits % 1000 == 0 ? AdapterDiagnosis::tr("%1 Gbit/s").arg(mbits / 1000)
                                              : AdapterDiagnosis::tr("%1 Mbit/s").arg(mbits);
}

} // namespace

AdapterDiagnosis AdapterDiagnosis::diagnose(const QString& interfaceName, const QHostAddress& cameraAddress)
{
    const SimulatedAdapters simulated = SimulatedAdapters::current();
    if (simulated.find(interfaceName))
        return diagnoseSimulated(simulated, interfaceName, cameraAddress);
    return diagnoseHost(interfaceName, cameraAddress);
}

AdapterDiagnosis AdapterDiagnosis::diagnoseSimulated(const SimulatedAdapters& driver, const QString& interfaceName,
                                                     const QHostAddress& cameraAddress)
{
    const SimulatedAdapters::Adapter* adapter = driver.find(interfaceName);
    if (!adapter)
        return unknown(interfaceName);
    Facts facts;
    facts.name = adapter->name;
    facts.linkUp = adapter->linkUp;
    facts.linkSpeed = adapter->linkSpeed;
    facts.ipv4Address = adapter->ipv4Address;
    facts.ipv4Netmask = adapter->ipv4Netmask;
    facts.dhcp = adapter->dhcp;
    facts.bound = adapter->bound;
    facts.mtu = adapter->mtu;
    AdapterDiagnosis diagnosis = fromFacts(facts, cameraAddress, false);
    // Large enough frames don't help while the driver itself sends small packets.
    if (!adapter->jumbo2k && adapter->mtu >= AdapterFinding::minimumMtu)
        diagnosis.add(AdapterFinding::jumboPacketsOff(adapter->name));
    diagnosis.sort();
    return diagnosis;
}

QString AdapterDiagnosis::cameraAdvice(const Camera& camera)
{
    if (camera.kind() != Camera::Kind::Eth || camera.adapterName().isEmpty())
        return {};
    const QHostAddress address(camera.currentIp());
    const bool hasAddress = address.protocol() == QAbstractSocket::IPv4Protocol && address.toIPv4Address() != 0;
    const std::optional<AdapterFinding> finding =
        diagnose(camera.adapterName(), hasAddress ? address : QHostAddress()).mostImportant();
    return finding ? finding->summary() : QString();
}

std::optional<AdapterFinding> AdapterDiagnosis::mostImportant() const
{
    if (m_findings.isEmpty() || m_findings.first().severity() == AdapterFinding::Severity::Info)
        return std::nullopt;
    return m_findings.first();
}

AdapterDiagnosis AdapterDiagnosis::unknown(const QString& interfaceName)
{
    AdapterDiagnosis diagnosis;
    diagnosis.m_interfaceName = interfaceName;
    diagnosis.m_result = NetworkFailure::unknownInterface(interfaceName);
    return diagnosis;
}

AdapterDiagnosis AdapterDiagnosis::fromFacts(const Facts& facts, const QHostAddress& cameraAddress, bool hostCommands)
{
    AdapterDiagnosis diagnosis;
    diagnosis.m_interfaceName = facts.name;

    const QString link = !facts.switchedOn ? tr("Switched off")
                         : !facts.linkUp   ? tr("No link")
                         : facts.linkSpeed > 0 ? tr("Link up at %1").arg(speedText(facts.linkSpeed))
                                               : tr("Link up");
    const QString address = facts.ipv4Address.isNull()
                                ? tr("no IPv4 address")
                                : QStringLiteral("%1/%2").arg(facts.ipv4Address.toString(), facts.ipv4Netmask.toString());
    diagnosis.m_status = tr("%1; %2, %3; MTU %4; %5")
                             .arg(link, address, facts.dhcp ? tr("DHCP") : tr("static"))
                             .arg(facts.mtu)
                             .arg(facts.bound ? tr("ETH service bound") : tr("ETH service not bound"));

    if (!facts.switchedOn)
        diagnosis.add(AdapterFinding::switchedOff(facts.name));
    else if (!facts.linkUp)
        diagnosis.add(AdapterFinding::noLink(facts.name));
    if (facts.ipv4Address.isNull())
        diagnosis.add(AdapterFinding::noAddress(facts.name, facts.dhcp));
    // Cameras that sit on link-local addresses themselves are reached.
    else if (isLinkLocal(facts.ipv4Address) && !isLinkLocal(cameraAddress))
        diagnosis.add(AdapterFinding::linkLocalAddress(facts.name, facts.ipv4Address));
    if (facts.mtu < AdapterFinding::minimumMtu)
        diagnosis.add(AdapterFinding::mtuTooSmall(facts.name, facts.mtu, hostCommands));
    return diagnosis;
}

void AdapterDiagnosis::sort()
{
    std::stable_sort(m_findings.begin(), m_findings.end(), &AdapterFinding::isMoreImportant);
}
