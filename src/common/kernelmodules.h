#pragma once

#include <QHash>
#include <QString>

// The kernel's loadable modules as modules.dep lists them. A module's date is
// the date of its file, which is when its driver was built.
class KernelModules final
{
public:
    explicit KernelModules(const QString& modulesDirectory);

    // The modules of the running kernel, read once.
    static const KernelModules& running();

    // "M-D-YYYY" like the driver dates of other systems; empty for an unknown
    // or built-in module.
    QString buildDate(const QString& moduleName) const;
    // The module's file, absolute; empty for an unknown or built-in module.
    QString filePath(const QString& moduleName) const;

private:
    QString m_directory;
    // Module name, with '-' written '_' as the kernel does, to its file.
    QHash<QString, QString> m_files;
};
