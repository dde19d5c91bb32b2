#include "kernelmodulesfixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

KernelModulesFixture::KernelModulesFixture(QString directory)
    : m_directory(std::move(directory))
{
    m_ok = QDir().mkpath(m_directory);
}

void KernelModulesFixture::addModule(const QString& relativePath, const QDateTime& built,
                                     const QByteArray& dependencies)
{
    addLine(relativePath.toUtf8() + ':' + (dependencies.isEmpty() ? QByteArray() : ' ' + dependencies));
    const QString path = QDir(m_directory).filePath(relativePath);
    QFile file(path);
    m_ok = m_ok && QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
        && file.write("module") == 6 && file.flush()
        && file.setFileTime(built, QFileDevice::FileModificationTime);
}

void KernelModulesFixture::addLine(const QByteArray& line)
{
    QFile dependencies(QDir(m_directory).filePath(QStringLiteral("modules.dep")));
    m_ok = m_ok && dependencies.open(QIODevice::Append) && dependencies.write(line + '\n') == line.size() + 1;
}
