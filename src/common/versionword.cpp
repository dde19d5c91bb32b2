#include "common/versionword.h"

#include <cirro_api.h>

#include <QStringList>

VersionWord::VersionWord(quint32 word)
    : m_major(int(PV_VERSION_MAJOR(word)))
    , m_minor(int(PV_VERSION_MINOR(word)))
    , m_build(int(PV_VERSION_BUILD(word)))
{
}

std::optional<VersionWord> VersionWord::fromText(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char('.'));
    if (parts.size() != 3)
        return std::nullopt;
    bool ok[3] = {};
    const uint major = parts[0].toUInt(&ok[0]);
    const uint minor = parts[1].toUInt(&ok[1]);
    const uint build = parts[2].toUInt(&ok[2]);
    if (!ok[0] || !ok[1] || !ok[2] || major > 0xFF || minor > 0xFF || build > 0xFFFF)
        return std::nullopt;
    return VersionWord(PV_VERSION(major, minor, build));
}

quint32 VersionWord::word() const
{
    return PV_VERSION(m_major, m_minor, m_build);
}

bool VersionWord::isAtLeast(int major, int minor) const
{
    return m_major > major || (m_major == major && m_minor >= minor);
}

QString VersionWord::text() const
{
    return QStringLiteral("%1.%2.%3").arg(m_major).arg(m_minor).arg(m_build);
}

QString VersionWord::paddedText() const
{
    return paddedParts().join(QLatin1Char('.'));
}

QStringList VersionWord::paddedParts() const
{
    return {QString::number(m_major), QStringLiteral("%1").arg(m_minor, 2, 10, QLatin1Char('0')),
            QStringLiteral("%1").arg(m_build, 4, 10, QLatin1Char('0'))};
}
