#include "sysinfo/generalinformation.h"

#include "network/adapterdiagnosis.h"
#include "network/networkadapters.h"
#include "sysinfo/drivercomponentinventory.h"

namespace {

QString kindText(DriverComponent::Kind kind)
{
    switch (kind) {
    case DriverComponent::Kind::ApiLibrary:
        return GeneralInformation::tr("Camera API library");
    case DriverComponent::Kind::KernelModule:
        return GeneralInformation::tr("Kernel module");
    case DriverComponent::Kind::ServiceUnit:
        break;
    }
    return GeneralInformation::tr("Driver service");
}

InfoNode component(const DriverComponent& part)
{
    InfoNode node(part.name, kindText(part.kind));
    node.addIfKnown(GeneralInformation::tr("Path"), part.path)
        .addIfKnown(GeneralInformation::tr("File version"), part.fileVersion);
    if (part.kind == DriverComponent::Kind::ServiceUnit)
        node.addIfKnown(GeneralInformation::tr("State"), part.productVersion);
    else if (part.kind == DriverComponent::Kind::KernelModule)
        node.addIfKnown(GeneralInformation::tr("Source version"), part.productVersion);
    else
        node.addIfKnown(GeneralInformation::tr("Version"), part.productVersion);
    return node.addIfKnown(GeneralInformation::tr("Date"), part.date);
}

QString driverText(const UsbTopology::DriverInfo& driver)
{
    QStringList parts{driver.name, driver.version, driver.date};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

InfoNode hub(const UsbTopology::Hub& hub);

InfoNode device(int port, const UsbTopology::Device& device)
{
    InfoNode node(GeneralInformation::tr("Port %1").arg(port),
                  device.description.isEmpty() ? device.driverKey : device.description);
    node.addIfKnown(GeneralInformation::tr("Device"), device.driverKey)
        .addIfKnown(GeneralInformation::tr("Instance"), device.instanceId)
        .addIfKnown(GeneralInformation::tr("Driver"), driverText(device.driver));
    if (device.speedMbits > 0)
        node.children << InfoNode(GeneralInformation::tr("Speed"),
                                  GeneralInformation::tr("%1 Mbit/s").arg(device.speedMbits));
    if (device.hub)
        node.children << hub(*device.hub);
    return node;
}

InfoNode hub(const UsbTopology::Hub& hub)
{
    InfoNode node(hub.description.isEmpty() ? hub.name : hub.description,
                  GeneralInformation::tr("%n port(s)", nullptr, int(hub.ports.size())));
    for (const UsbTopology::Port& port : hub.ports) {
        if (port.device)
            node.children << device(port.number, *port.device);
    }
    return node;
}

InfoNode controller(const UsbTopology::HostController& controller)
{
    InfoNode node(controller.description.isEmpty() ? controller.name : controller.description,
                  UsbTopology::controllerTypeText(controller.type));
    node.addIfKnown(GeneralInformation::tr("Name"), controller.name)
        .addIfKnown(GeneralInformation::tr("PCI identity"), controller.pciIdentity)
        .addIfKnown(GeneralInformation::tr("Driver"), driverText(controller.driver));
    for (const UsbTopology::Hub& root : controller.rootHubs)
        node.children << hub(root);
    return node;
}

QString addressText(const NetworkAdapter& adapter)
{
    if (adapter.ipv4Address.isNull())
        return GeneralInformation::tr("no IPv4 address");
    return QStringLiteral("%1 / %2 (%3)")
        .arg(adapter.ipv4Address.toString(), adapter.ipv4Netmask.toString(),
             adapter.dhcp ? GeneralInformation::tr("DHCP") : GeneralInformation::tr("static"));
}

InfoNode adapter(const NetworkAdapter& adapter, const QString& status)
{
    const QString name = adapter.humanReadableName == adapter.interfaceName
                             ? adapter.interfaceName
                             : QStringLiteral("%1 (%2)").arg(adapter.humanReadableName, adapter.interfaceName);
    InfoNode node(name, adapter.description);
    node.addIfKnown(GeneralInformation::tr("MAC address"), adapter.hardwareAddress)
        .addIfKnown(GeneralInformation::tr("IPv4 address"), addressText(adapter))
        .addIfKnown(GeneralInformation::tr("Driver version"), adapter.driverVersion)
        .addIfKnown(GeneralInformation::tr("Driver date"), adapter.driverDate)
        .addIfKnown(GeneralInformation::tr("Checks for GigE cameras"), status);
    return node;
}

} // namespace

GeneralInformation GeneralInformation::gather(const ServiceManager& services)
{
    GeneralInformation info = gatherHost();
    info.drivers = DriverComponentInventory::collect(services);
    return info;
}

GeneralInformation GeneralInformation::gatherHost()
{
    GeneralInformation info;
    info.about = AboutInformation::collect();
    info.topology = UsbTopology::build();
    info.adapters = getNetworkAdapters();
    for (const NetworkAdapter& adapter : info.adapters) {
        const bool loopback = adapter.flags.testFlag(QNetworkInterface::IsLoopBack);
        info.adapterStatus << (loopback ? QString() : AdapterDiagnosis::diagnose(adapter.interfaceName).status());
    }
    info.hostRead = true;
    return info;
}

QList<InfoNode> GeneralInformation::pages() const
{
    if (!hostRead)
        return {about.outline(), driversPage(drivers), InfoNode(tr("USB controllers"), tr("still being read")),
                InfoNode(tr("Network adapters"), tr("still being read"))};
    return {about.outline(), driversPage(drivers), usbControllersPage(topology.get()),
            networkAdaptersPage(adapters, adapterStatus)};
}

InfoNode GeneralInformation::driversPage(const DriverComponentList& components)
{
    InfoNode node(tr("Drivers"));
    for (const DriverComponent& part : components)
        node.children << component(part);
    return node;
}

InfoNode GeneralInformation::usbControllersPage(const UsbTopology* topology)
{
    InfoNode node(tr("USB controllers"));
    if (!topology || topology->controllers().empty()) {
        node.value = tr("No USB host controller was found.");
        return node;
    }
    for (const UsbTopology::HostController& host : topology->controllers())
        node.children << controller(host);
    return node;
}

InfoNode GeneralInformation::networkAdaptersPage(const NetworkAdapterList& adapters, const QList<QString>& status)
{
    InfoNode node(tr("Network adapters"));
    if (adapters.isEmpty())
        node.value = tr("No network adapter was found.");
    for (int i = 0; i < adapters.size(); ++i)
        node.children << adapter(adapters.at(i), status.value(i));
    return node;
}
