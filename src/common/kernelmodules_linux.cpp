#include "common/kernelmodules.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <sys/utsname.h>

namespace {

QString canonicalModuleName(QString name)
{
    return name.replace(QLatin1Char('-'), QLatin1Char('_'));
}

// "kernel/drivers/net/veth.ko.xz" -> "veth"
QString moduleNameOfFile(const QString& relativePath)
{
    const QString fileName = QFileInfo(relativePath).fileName();
    return canonicalModuleName(fileName.left(fileName.indexOf(QLatin1String(".ko"))));
}

} // namespace

KernelModules::KernelModules(const QString& modulesDirectory)
    : m_directory(modulesDirectory)
{
    QFile dependencies(QDir(modulesDirectory).filePath(QStringLiteral("modules.dep")));
    if (!dependencies.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    QTextStream stream(&dependencies);
    QString line;
    while (stream.readLineInto(&line)) {
        const QString file = line.left(line.indexOf(QLatin1Char(':')));
        if (file.contains(QLatin1String(".ko")))
            m_files.insert(moduleNameOfFile(file), file);
    }
}

const KernelModules& KernelModules::running()
{
    static const KernelModules modules([] {
        utsname system{};
        ::uname(&system);
        return QStringLiteral("/lib/modules/") + QString::fromUtf8(system.release);
    }());
    return modules;
}

QString KernelModules::filePath(const QString& moduleName) const
{
    const QString file = m_files.value(canonicalModuleName(moduleName));
    return file.isEmpty() ? QString() : QDir(m_directory).filePath(file);
}

QString KernelModules::buildDate(const QString& moduleName) const
{
    const QString file = filePath(moduleName);
    if (file.isEmpty())
        return {};
    const QDateTime modified = QFileInfo(file).lastModified();
    return modified.isValid() ? modified.date().toString(QStringLiteral("M-d-yyyy")) : QString();
}
