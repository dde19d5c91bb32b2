#include "network/adapterdescription_linux.h"

#include "network/sysfsnetdevice_linux.h"

#include <net/if_arp.h>

namespace {

// Link types whose kind is not told by DEVTYPE or a driver.
QString linkTypeName(int linkType)
{
    switch (linkType) {
    case ARPHRD_LOOPBACK: return QStringLiteral("loopback");
    case ARPHRD_TUNNEL: return QStringLiteral("ipip");
    case ARPHRD_TUNNEL6: return QStringLiteral("ip6tnl");
    case ARPHRD_SIT: return QStringLiteral("sit");
    case ARPHRD_IPGRE: return QStringLiteral("gre");
    case ARPHRD_NONE: return QStringLiteral("tun");
    default: return QStringLiteral("virtual");
    }
}

QString virtualKind(const SysfsNetDevice& device, const QString& driverName)
{
    const QString deviceType = device.deviceType();
    if (!deviceType.isEmpty())
        return deviceType;
    return driverName.isEmpty() ? linkTypeName(device.linkType()) : driverName;
}

QString hexId(quint16 id)
{
    return QStringLiteral("%1").arg(id, 4, 16, QLatin1Char('0'));
}

} // namespace

AdapterDescription::AdapterDescription(const QString& sysfsRoot, const QStringList& pciIdFiles,
                                       const QStringList& usbIdFiles)
    : m_sysfsRoot(sysfsRoot)
    , m_pciIds(pciIdFiles)
    , m_usbIds(usbIdFiles)
{
}

const AdapterDescription& AdapterDescription::system()
{
    static const AdapterDescription description(
        QStringLiteral("/sys"),
        {QStringLiteral("/usr/share/misc/pci.ids"), QStringLiteral("/usr/share/hwdata/pci.ids")},
        {QStringLiteral("/usr/share/misc/usb.ids"), QStringLiteral("/var/lib/usbutils/usb.ids"),
         QStringLiteral("/usr/share/hwdata/usb.ids")});
    return description;
}

QString AdapterDescription::describe(const QString& interfaceName, const QString& driverName) const
{
    const SysfsNetDevice device(m_sysfsRoot, interfaceName);
    if (!device.exists())
        return QStringLiteral("1");
    if (!device.hasDevice())
        return virtualKind(device, driverName);

    const SysfsNetDevice::HardwareIdentity identity = device.hardwareIdentity();
    if (identity.bus == SysfsNetDevice::Bus::None)
        return driverName;
    const HardwareIds* ids = identity.bus == SysfsNetDevice::Bus::Pci ? &m_pciIds
                           : identity.bus == SysfsNetDevice::Bus::Usb ? &m_usbIds
                                                                      : nullptr;
    const HardwareIds::Names names = ids ? ids->lookup(identity.vendor, identity.device) : HardwareIds::Names{};
    if (!names.device.isEmpty())
        return names.vendor + QLatin1Char(' ') + names.device;
    if (!names.vendor.isEmpty())
        return QStringLiteral("%1 Device %2").arg(names.vendor, hexId(identity.device));
    return hexId(identity.vendor) + QLatin1Char(':') + hexId(identity.device);
}
