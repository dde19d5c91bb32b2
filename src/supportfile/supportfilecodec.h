#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <string>
#include <vector>

// The on-disk form of a support file: the INI text's UTF-16 code units, each
// scrambled with a 128-unit key and written in decimal on a line of its own,
// lines ending in CR LF. No header, count or checksum.
namespace SupportFileCodec {

using Key = std::array<quint16, 128>;

// Built from the seed table and the divisor each time it is needed; the key
// itself is stored nowhere.
Key key();
inline quint16 scramble(quint16 unit, quint16 keyUnit)
{
    return quint16((unit ^ keyUnit) + 32);
}
inline quint16 unscramble(quint16 stored, quint16 keyUnit)
{
    return quint16(quint16(stored - 32) ^ keyUnit);
}

QByteArray encode(const std::wstring& text);

struct Decoded
{
    std::u16string units; // the units of the lines before the first bad one
    int badLine = 0;      // 1-based; 0 when every line was a number from 0 to 65535
};
// Each line a decimal number from 0 to 65535; CR LF or LF ends a line, and
// the last line may lack its end.
Decoded decode(const QByteArray& file);

} // namespace SupportFileCodec
