#pragma once

#include "common/hardwareids.h"

#include <QString>
#include <QStringList>

// Describes an interface as a user would name it: vendor and product of its
// PCI or USB device, or the kind of a virtual interface ("loopback", "veth",
// "bridge").
class AdapterDescription final
{
public:
    AdapterDescription(const QString& sysfsRoot, const QStringList& pciIdFiles, const QStringList& usbIdFiles);
    Q_DISABLE_COPY_MOVE(AdapterDescription)

    // The live system, with the id lists that pciutils and usbutils read.
    static const AdapterDescription& system();

    // "1" when there is no such interface. Hardware missing from the id lists
    // shows its numbers: "Intel Corporation Device 15f3" or "8086:15f3".
    // driverName names virtual interfaces that sysfs does not classify.
    QString describe(const QString& interfaceName, const QString& driverName) const;

private:
    QString m_sysfsRoot;
    HardwareIds m_pciIds;
    HardwareIds m_usbIds;
};
