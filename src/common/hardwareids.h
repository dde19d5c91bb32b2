#pragma once

#include <QByteArray>
#include <QFile>
#include <QHash>
#include <QStringList>

// Vendor and product names from a hardware id list in the pci.ids / usb.ids
// format: a vendor line "1af4  Red Hat, Inc." followed by its indented device
// lines "\t1041  Virtio 1.0 network device".
class HardwareIds final
{
public:
    // Uses the first readable file of candidates; with none, every device is
    // described by its numbers.
    explicit HardwareIds(const QStringList& candidates);
    Q_DISABLE_COPY_MOVE(HardwareIds)

    // "Intel Corporation Ethernet Connection (7) I219-LM"; hardware missing
    // from the list shows its numbers: "Intel Corporation Device 15f3" or
    // "8086:15f3".
    QString describe(quint16 vendor, quint16 device) const;
    // "8086:15f3"
    static QString numbers(quint16 vendor, quint16 device);

private:
    struct Names
    {
        QString vendor;
        QString device;
    };

    void indexVendors();
    // Unknown ids give empty names.
    Names lookup(quint16 vendor, quint16 device) const;

    QFile m_file;
    // Views the mapped file without copying it.
    QByteArray m_text;
    // Where each vendor's line starts; one pass on opening saves a search
    // through the whole list on every lookup.
    QHash<quint16, int> m_vendorLines;
};
