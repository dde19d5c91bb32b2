#pragma once

#include <QHash>
#include <QSet>
#include <QString>

// Vendor and device names from a pci.ids database. Only the vendors asked for
// are kept, so that one pass over the file serves a whole topology build.
class PciIds final
{
public:
    PciIds() = default;
    // A missing or unreadable file gives no names.
    PciIds(const QString& path, const QSet<quint16>& vendors);

    // "Vendor Device", the vendor with the device number, or both numbers.
    QString describe(quint16 vendor, quint16 device) const;

private:
    void parseLine(const QString& line, int& vendor);

    QSet<quint16> m_wanted;
    QHash<quint16, QString> m_vendors;
    QHash<quint32, QString> m_devices; // vendor << 16 | device
};
