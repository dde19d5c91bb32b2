#include "common/versionword.h"

#include <cirro_api.h>

VersionWord::VersionWord(quint32 word)
    : m_major(int(PV_VERSION_MAJOR(word)))
    , m_minor(int(PV_VERSION_MINOR(word)))
    , m_build(int(PV_VERSION_BUILD(word)))
{
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
    return QStringLiteral("%1.%2.%3")
        .arg(m_major)
        .arg(m_minor, 2, 10, QLatin1Char('0'))
        .arg(m_build, 4, 10, QLatin1Char('0'));
}
