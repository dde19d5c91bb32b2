#include "network/macaddress.h"

#include "camera/camera.h"

#include <QRegularExpression>

std::optional<MacAddress> MacAddress::fromText(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral(
        "^([A-Fa-f0-9]{2})(?:[\\-\\:\\s])?([A-Fa-f0-9]{2})(?:[\\-\\:\\s])?([A-Fa-f0-9]{2})(?:[\\-\\:\\s])?"
        "([A-Fa-f0-9]{2})(?:[\\-\\:\\s])?([A-Fa-f0-9]{2})(?:[\\-\\:\\s])?([A-Fa-f0-9]{2})$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    MacAddress mac;
    for (int i = 0; i < 6; ++i)
        mac.bytes[std::size_t(i)] = quint8(match.capturedRef(i + 1).toUInt(nullptr, 16));
    return mac;
}

MacAddress MacAddress::parse(const QString& text)
{
    return fromText(text).value_or(MacAddress());
}

bool MacAddress::isZero() const
{
    return bytes == std::array<quint8, 6>{};
}

QString MacAddress::text() const
{
    return Camera::macText(bytes.data(), QLatin1Char(':'));
}
