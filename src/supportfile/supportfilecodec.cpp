#include "supportfile/supportfilecodec.h"

#include <QString>

#include <cmath>

namespace SupportFileCodec {

namespace {

// Key material: files written with other values can't be read.
constexpr quint16 seeds[128] = {
    0xB693, 0x3CFF, 0x5F74, 0x47CA, 0xF0AF, 0x30FF, 0x82F4, 0x702B,
    0x8E99, 0x21DE, 0x2D0C, 0x3645, 0x3659, 0x1A4F, 0xED94, 0x6662,
    0x2899, 0x2ABD, 0x97B7, 0x432B, 0xF9BA, 0x53E9, 0x47BD, 0xF2EE,
    0xDE1D, 0x42E4, 0x5388, 0x9269, 0x9554, 0x7834, 0x2BBF, 0x6EF8,
    0x8768, 0xF855, 0xA076, 0xB961, 0x045C, 0xF05F, 0x81A0, 0x4E74,
    0xDC1F, 0x0647, 0x8F71, 0x224D, 0x4753, 0x7FF2, 0x9610, 0x30A3,
    0xE9D8, 0x6616, 0x3651, 0xFDFC, 0xC8A6, 0xBB71, 0xA277, 0xDD66,
    0x9E44, 0x6F51, 0x6592, 0x35C2, 0xB51C, 0x1A21, 0xB47D, 0xAEA8,
    0xF504, 0xCDA4, 0x084F, 0x0701, 0x1751, 0xFEA2, 0xF72F, 0x044D,
    0xC3F3, 0xB61D, 0x3294, 0xC0D1, 0xFEB9, 0xD124, 0x5F76, 0xD6F5,
    0x3463, 0x4F06, 0x7A38, 0x0D8C, 0x8E96, 0x088C, 0x4CFB, 0xA762,
    0xDC21, 0x20EB, 0x5B94, 0x34EB, 0xC1A8, 0x57FC, 0xD9EA, 0x579A,
    0x9B64, 0xAEBA, 0x9188, 0xF5CA, 0x7A7B, 0x5A68, 0xB71F, 0xC6E5,
    0x4DDD, 0xC775, 0x176B, 0x14FF, 0x2884, 0x64C7, 0x67DC, 0xFA01,
    0x2AF7, 0xF236, 0x3AE6, 0x1563, 0x5C76, 0x4070, 0x98D8, 0x973F,
    0x863E, 0x9E9A, 0xF5B2, 0x7CC1, 0x849C, 0xD26D, 0xE44E, 0x98F0,
};
constexpr double divisor = 9.25;

constexpr quint32 largestUnit = 65535;

} // namespace

Key key()
{
    Key units{};
    for (std::size_t i = 0; i < units.size(); ++i) {
        const int shift = int(std::floor(double(i) / divisor)) % 32;
        units[i] = quint16(quint32(seeds[i]) << shift);
    }
    return units;
}

QByteArray encode(const std::wstring& text)
{
    const QString utf16 = QString::fromStdWString(text);
    const Key k = key();
    QByteArray file;
    file.reserve(utf16.size() * 7);
    char digits[8];
    for (int p = 0; p < utf16.size(); ++p) {
        quint32 value = scramble(utf16.at(p).unicode(), k[std::size_t(p) % k.size()]);
        char* end = digits + sizeof digits;
        char* begin = end;
        do {
            *--begin = char('0' + value % 10);
            value /= 10;
        } while (value != 0);
        file.append(begin, int(end - begin));
        file.append("\r\n", 2);
    }
    return file;
}

Decoded decode(const QByteArray& file)
{
    Decoded result;
    const Key k = key();
    result.units.reserve(std::size_t(file.size() / 4));
    const char* p = file.constData();
    const char* const end = p + file.size();
    int line = 1;
    while (p != end) {
        quint32 value = 0;
        const char* const start = p;
        // Six digits already exceed the largest unit; stop counting there.
        while (p != end && *p >= '0' && *p <= '9' && p - start < 6) {
            value = value * 10 + quint32(*p - '0');
            ++p;
        }
        const char* const digitsEnd = p;
        if (p != end && *p == '\r')
            ++p;
        const bool lineEnds = p == end || *p == '\n';
        if (digitsEnd == start || !lineEnds || value > largestUnit) {
            result.badLine = line;
            return result;
        }
        const std::size_t position = result.units.size();
        result.units.push_back(char16_t(unscramble(quint16(value), k[position % k.size()])));
        if (p != end)
            ++p;
        ++line;
    }
    return result;
}

} // namespace SupportFileCodec
