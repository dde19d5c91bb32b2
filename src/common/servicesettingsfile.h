#pragma once

#include "common/inidocument.h"
#include "common/result.h"

#include <QCoreApplication>
#include <QString>

#include <optional>

// One driver service's configuration file, read and changed with care: only a
// regular file of sensible size is read, a line that does not parse is
// reported with the file and line and blocks every change, and a change
// replaces the file atomically (a temporary file in the same directory,
// renamed over it), so a crash never leaves half a file behind.
class ServiceSettingsFile final
{
    Q_DECLARE_TR_FUNCTIONS(ServiceSettingsFile)

public:
    static constexpr qint64 maximumSize = 1024 * 1024;

    // Reads the file of the service ("cirro_usb", "cirro_eth") below the
    // configuration root; a missing file reads as empty.
    explicit ServiceSettingsFile(const QString& service);

    QString path() const { return m_path; }
    // Why the file can't be used, with its path (and line); success when it can.
    Result problem() const { return m_problem; }
    // This process may replace the file (or create it): permissions, a
    // read-only file system and a file that does not parse all say no.
    bool isWritable() const;
    // The text that says why isWritable() is false; empty when it is true.
    QString notWritableReason() const;

    // The value of "Group/Name"; nothing when absent or the file can't be read.
    std::optional<IniDocument::Entry> entry(const QString& key) const;
    // An unsigned number (decimal or 0x-hexadecimal); missing reads as
    // fallback; a value that is not a number gives an error naming the line.
    Result readNumber(const QString& key, quint64 fallback, quint64& value) const;

    // Rereads the file, sets the value and replaces the file atomically.
    Result write(const QString& key, const QString& plainValue);
    Result writeNumber(const QString& key, quint64 value) { return write(key, QString::number(value)); }

private:
    void load();
    bool mayWrite() const;

    QString m_path;
    Result m_problem;
    std::optional<IniDocument> m_document;
};
