#include "sysinfo/systeminformation.h"

#include <QHash>
#include <QList>
#include <QRegularExpression>

int SystemInformation::architectureCode(const QString& machine)
{
    static const QHash<QString, int> codes{{QStringLiteral("x86_64"), 9},  {QStringLiteral("amd64"), 9},
                                           {QStringLiteral("i386"), 0},    {QStringLiteral("i686"), 0},
                                           {QStringLiteral("aarch64"), 12}, {QStringLiteral("arm64"), 12},
                                           {QStringLiteral("armv7l"), 5},  {QStringLiteral("arm"), 5}};
    return codes.value(machine, unknownArchitecture);
}

QString SystemInformation::architectureName(int code)
{
    switch (code) {
    case 0:
        return QStringLiteral("x86");
    case 5:
        return QStringLiteral("ARM");
    case 9:
        return QStringLiteral("x64");
    case 12:
        return QStringLiteral("ARM64");
    default:
        return QString::number(code);
    }
}

QString SystemInformation::processorListText(const std::vector<int>& processors)
{
    QStringList ranges;
    for (std::size_t i = 0; i < processors.size();) {
        std::size_t last = i;
        while (last + 1 < processors.size() && processors[last + 1] == processors[last] + 1)
            ++last;
        ranges << (last == i ? QString::number(processors[i])
                             : QStringLiteral("%1-%2").arg(processors[i]).arg(processors[last]));
        i = last + 1;
    }
    return ranges.join(QLatin1Char(','));
}

QString SystemInformation::prettyName(const QByteArray& osRelease)
{
    QHash<QString, QString> values;
    static const QRegularExpression assignment(QStringLiteral("^([A-Z_]+)=\"?(.*?)\"?$"));
    for (const QByteArray& line : osRelease.split('\n')) {
        const QRegularExpressionMatch match = assignment.match(QString::fromUtf8(line.trimmed()));
        if (match.hasMatch())
            values.insert(match.captured(1), match.captured(2));
    }
    if (!values.value(QStringLiteral("PRETTY_NAME")).isEmpty())
        return values.value(QStringLiteral("PRETTY_NAME"));
    return (values.value(QStringLiteral("NAME")) + QLatin1Char(' ') + values.value(QStringLiteral("VERSION")))
        .trimmed();
}

std::pair<int, int> SystemInformation::kernelVersion(const QString& release)
{
    static const QRegularExpression numbers(QStringLiteral("^(\\d+)\\.(\\d+)"));
    const QRegularExpressionMatch match = numbers.match(release);
    if (!match.hasMatch())
        return {0, 0};
    return {match.captured(1).toInt(), match.captured(2).toInt()};
}
