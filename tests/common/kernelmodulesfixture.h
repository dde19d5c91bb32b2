#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

// Writes a kernel modules directory: modules.dep and the module files it
// lists, each with the modification time it was built at.
class KernelModulesFixture final
{
public:
    explicit KernelModulesFixture(QString directory);

    // False once any file could not be written or dated.
    bool ok() const { return m_ok; }
    const QString& directory() const { return m_directory; }

    // relativePath as modules.dep names it: "kernel/drivers/net/veth.ko.xz".
    void addModule(const QString& relativePath, const QDateTime& built,
                   const QByteArray& dependencies = {});
    // A line of modules.dep as it stands, for malformed ones.
    void addLine(const QByteArray& line);

private:
    QString m_directory;
    bool m_ok = true;
};
