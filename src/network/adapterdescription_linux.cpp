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
    if (identity.bus == SysfsNetDevice::Bus::Pci)
        return m_pciIds.describe(identity.vendor, identity.device);
    if (identity.bus == SysfsNetDevice::Bus::Usb)
        return m_usbIds.describe(identity.vendor, identity.device);
    return HardwareIds::numbers(identity.vendor, identity.device);
}
