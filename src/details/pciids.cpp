#include "details/pciids.h"

#include <QFile>
#include <QTextStream>

#include <optional>

namespace {

constexpr int noVendor = -1;

quint32 deviceKey(quint16 vendor, quint16 device)
{
    return quint32(vendor) << 16 | device;
}

// "8086  Intel Corporation" gives the id and the name; other shapes no id.
std::optional<quint16> idAndName(const QString& entry, QString& name)
{
    bool ok = false;
    const uint id = entry.leftRef(4).toUInt(&ok, 16);
    if (!ok || id > 0xffff || entry.size() < 6 || !entry.at(4).isSpace())
        return std::nullopt;
    name = entry.mid(5).trimmed();
    return quint16(id);
}

} // namespace

PciIds::PciIds(const QString& path, const QSet<quint16>& vendors)
    : m_wanted(vendors)
{
    QFile file(path);
    if (path.isEmpty() || m_wanted.isEmpty() || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    QTextStream stream(&file);
    int vendor = noVendor;
    QString line;
    // The device classes that follow the vendors start with "C ".
    while (stream.readLineInto(&line) && !line.startsWith(QLatin1String("C ")))
        parseLine(line, vendor);
}

void PciIds::parseLine(const QString& line, int& vendor)
{
    if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
        return;
    QString name;
    if (!line.startsWith(QLatin1Char('\t'))) {
        const std::optional<quint16> id = idAndName(line, name);
        vendor = id && m_wanted.contains(*id) ? *id : noVendor;
        if (vendor != noVendor)
            m_vendors.insert(*id, name);
        return;
    }
    // Subsystem lines start with two tabs and are not needed.
    if (vendor == noVendor || line.startsWith(QLatin1String("\t\t")))
        return;
    if (const std::optional<quint16> id = idAndName(line.mid(1), name))
        m_devices.insert(deviceKey(quint16(vendor), *id), name);
}

QString PciIds::describe(quint16 vendor, quint16 device) const
{
    const QString vendorName = m_vendors.value(vendor);
    const QString deviceName = m_devices.value(deviceKey(vendor, device));
    const QString deviceNumber = QStringLiteral("%1").arg(device, 4, 16, QLatin1Char('0'));
    if (vendorName.isEmpty())
        return QStringLiteral("%1:%2").arg(vendor, 4, 16, QLatin1Char('0')).arg(deviceNumber);
    if (deviceName.isEmpty())
        return QStringLiteral("%1 Device %2").arg(vendorName, deviceNumber);
    return vendorName + QLatin1Char(' ') + deviceName;
}
