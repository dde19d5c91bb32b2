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
    struct Names
    {
        QString vendor;
        QString device;
    };

    // Uses the first readable file of candidates; with none, every lookup
    // gives empty names.
    explicit HardwareIds(const QStringList& candidates);
    Q_DISABLE_COPY_MOVE(HardwareIds)

    bool isAvailable() const { return !m_text.isEmpty(); }
    // Unknown ids give empty names.
    Names lookup(quint16 vendor, quint16 device) const;

private:
    void indexVendors();

    QFile m_file;
    // Views the mapped file without copying it.
    QByteArray m_text;
    // Where each vendor's line starts; one pass on opening saves a search
    // through the whole list on every lookup.
    QHash<quint16, int> m_vendorLines;
};
