#include "common/servicesettingsfile.h"

#include "common/filepermissions.h"
#include "driversettings/driverservicesettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

// The directory that a new file or the temporary file of a replacement goes
// to, or its nearest existing parent when it is still to be created.
QString existingDirectoryOf(const QString& filePath)
{
    QDir dir = QFileInfo(filePath).absoluteDir();
    while (!dir.exists() && !dir.isRoot())
        dir.setPath(QFileInfo(dir.absolutePath()).absolutePath());
    return dir.absolutePath();
}

} // namespace

ServiceSettingsFile::ServiceSettingsFile(const QString& service)
    : m_path(DriverServiceSettings::filePath(service))
{
    load();
}

void ServiceSettingsFile::load()
{
    m_problem = {};
    m_document.reset();
    const QFileInfo info(m_path);
    if (!info.exists()) {
        m_document = IniDocument();
        return;
    }
    const auto refuse = [&](const QString& reason) {
        m_problem = {HostError::UnreadableFile, tr("The settings file %1 can't be used: %2").arg(m_path, reason)};
    };
    if (!info.isFile())
        return refuse(tr("it is not a regular file"));
    if (info.size() > maximumSize)
        return refuse(tr("it is larger than %1 KB").arg(maximumSize / 1024));
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return refuse(file.errorString());
    const QByteArray text = file.read(maximumSize + 1);
    if (text.size() > maximumSize)
        return refuse(tr("it is larger than %1 KB").arg(maximumSize / 1024));
    IniDocument::ParseError error;
    m_document = IniDocument::parse(text, &error);
    if (!m_document)
        refuse(tr("line %1: %2").arg(error.line).arg(error.reason));
}

bool ServiceSettingsFile::mayWrite() const
{
    // The replacement is renamed into the directory, so it must take new files
    // even where the file itself could be written in place.
    if (!FilePermissions::mayWrite(existingDirectoryOf(m_path)))
        return false;
    return !QFileInfo::exists(m_path) || FilePermissions::mayWrite(m_path);
}

bool ServiceSettingsFile::isWritable() const
{
    return m_problem.isSuccess() && mayWrite();
}

QString ServiceSettingsFile::notWritableReason() const
{
    if (!m_problem.isSuccess())
        return m_problem.text();
    if (!mayWrite())
        return tr("The settings file %1 is write-protected.").arg(m_path);
    return {};
}

std::optional<IniDocument::Entry> ServiceSettingsFile::entry(const QString& key) const
{
    return m_document ? m_document->entry(key) : std::nullopt;
}

Result ServiceSettingsFile::readNumber(const QString& key, quint64 fallback, quint64& value) const
{
    value = fallback;
    const auto found = entry(key);
    if (!found)
        return {};
    bool ok = false;
    const quint64 number = found->value.toULongLong(&ok, 0);
    if (!ok) {
        return {HostError::UnreadableFile, tr("The settings file %1 holds \"%2\" in line %3 where a number belongs.")
                                               .arg(m_path, found->value.left(40))
                                               .arg(found->line)};
    }
    value = number;
    return {};
}

Result ServiceSettingsFile::write(const QString& key, const QString& plainValue)
{
    load();
    if (!m_problem.isSuccess())
        return m_problem;
    if (!mayWrite())
        return {HostError::NotWritable, notWritableReason()};
    m_document->setValue(key, plainValue);
    const auto fail = [&](const QString& reason) {
        load(); // what the file holds now, not the change that failed
        return Result(HostError::NotWritable, tr("The settings file %1 could not be written: %2").arg(m_path, reason));
    };
    if (!QDir().mkpath(QFileInfo(m_path).absolutePath()))
        return fail(tr("its directory could not be created"));
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly))
        return fail(file.errorString());
    file.write(m_document->text());
    if (!file.commit())
        return fail(file.errorString());
    return {};
}
