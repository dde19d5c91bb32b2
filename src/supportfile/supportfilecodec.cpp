#include "supportfile/supportfilecodec.h"

#include <QString>

#include <cmath>

namespace SupportFileCodec {

namespace {

// Key material: files written with other values can't be read. Odd seeds
// keep a bit in every key unit whatever the shift.
constexpr quint16 seeds[128] = {
    0xB693, 0x3CFF, 0x5F75, 0x47CB, 0xF0AF, 0x30FF, 0x82F5, 0x702B,
    0x8E99, 0x21DF, 0x2D0D, 0x3645, 0x3659, 0x1A4F, 0xED95, 0x6663,
    0x2899, 0x2ABD, 0x97B7, 0x432B, 0xF9BB, 0x53E9, 0x47BD, 0xF2EF,
    0xDE1D, 0x42E5, 0x5389, 0x9269, 0x9555, 0x7835, 0x2BBF, 0x6EF9,
    0x8769, 0xF855, 0xA077, 0xB961, 0x045D, 0xF05F, 0x81A1, 0x4E75,
    0xDC1F, 0x0647, 0x8F71, 0x224D, 0x4753, 0x7FF3, 0x9611, 0x30A3,
    0xE9D9, 0x6617, 0x3651, 0xFDFD, 0xC8A7, 0xBB71, 0xA277, 0xDD67,
    0x9E45, 0x6F51, 0x6593, 0x35C3, 0xB51D, 0x1A21, 0xB47D, 0xAEA9,
    0xF505, 0xCDA5, 0x084F, 0x0701, 0x1751, 0xFEA3, 0xF72F, 0x044D,
    0xC3F3, 0xB61D, 0x3295, 0xC0D1, 0xFEB9, 0xD125, 0x5F77, 0xD6F5,
    0x3463, 0x4F07, 0x7A39, 0x0D8D, 0x8E97, 0x088D, 0x4CFB, 0xA763,
    0xDC21, 0x20EB, 0x5B95, 0x34EB, 0xC1A9, 0x57FD, 0xD9EB, 0x579B,
    0x9B65, 0xAEBB, 0x9189, 0xF5CB, 0x7A7B, 0x5A69, 0xB71F, 0xC6E5,
    0x4DDD, 0xC775, 0x176B, 0x14FF, 0x2885, 0x64C7, 0x67DD, 0xFA01,
    0x2AF7, 0xF237, 0x3AE7, 0x1563, 0x5C77, 0x4071, 0x98D9, 0x973F,
    0x863F, 0x9E9B, 0xF5B3, 0x7CC1, 0x849D, 0xD26D, 0xE44F, 0x98F1,
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
