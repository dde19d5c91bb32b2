#pragma once

#include <QString>

#include <array>
#include <optional>

// Six bytes of a MAC address, in the order in which they are written.
struct MacAddress
{
    std::array<quint8, 6> bytes{};

    // Six pairs of hexadecimal digits, each optionally followed by one
    // hyphen, colon or white-space character (not after the last pair).
    static std::optional<MacAddress> fromText(const QString& text);
    // As fromText, six zero bytes when the text does not match.
    static MacAddress parse(const QString& text);

    bool isZero() const;
    // "00:1c:c1:00:00:10"
    QString text() const;
    bool operator==(const MacAddress& other) const { return bytes == other.bytes; }
};
