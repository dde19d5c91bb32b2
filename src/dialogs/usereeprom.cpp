#include "dialogs/usereeprom.h"

#include "dialogs/cameracall.h"

#include <array>
#include <cstring>

namespace {

using Area = std::array<std::uint8_t, PV_USER_EEPROM_SIZE>;

bool isPrintable(char c)
{
    return c >= 0x20 && c < 0x7F;
}

} // namespace

QString UserEeprom::toHex(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes.toHex(' ')).toUpper();
}

Result UserEeprom::fromHex(const QString& text, QByteArray* bytes)
{
    QString digits = text.simplified();
    digits.remove(QLatin1Char(' '));
    static const QString hexDigits = QStringLiteral("0123456789abcdefABCDEF");
    for (int i = 0; i < digits.size(); ++i) {
        if (!hexDigits.contains(digits.at(i)))
            return {PV_ERR_INVALID_PARAMETER, tr("\"%1\" at position %2 is no hexadecimal digit.").arg(digits.at(i)).arg(i + 1)};
    }
    if (digits.size() % 2 != 0)
        return {PV_ERR_INVALID_PARAMETER, tr("Each byte needs two hexadecimal digits; the last one has only one.")};
    *bytes = QByteArray::fromHex(digits.toLatin1());
    return {};
}

QString UserEeprom::toText(const QByteArray& bytes)
{
    QString text;
    for (const char c : bytes) {
        if (c == '\0')
            break;
        text += isPrintable(c) ? QLatin1Char(c) : QLatin1Char('.');
    }
    return text;
}

Result UserEeprom::fromText(const QString& text, QByteArray* bytes)
{
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.unicode() >= 0x7F || !isPrintable(char(c.unicode())))
            return {PV_ERR_INVALID_PARAMETER,
                    tr("The text may hold printable ASCII characters only; \"%1\" at position %2 is none.").arg(c).arg(i + 1)};
    }
    *bytes = text.toLatin1();
    return {};
}

Result UserEeprom::checkSize(const QByteArray& bytes, int areaSize)
{
    if (bytes.size() <= areaSize)
        return {};
    return {PV_ERR_INVALID_PARAMETER, tr("The user EEPROM holds %1 bytes; %2 bytes don't fit. Nothing was written.")
                                          .arg(areaSize)
                                          .arg(bytes.size())};
}

Result UserEeprom::read(quint32 handle, QByteArray* bytes)
{
    Area area{};
    const int code = CameraCall::readFeature(handle, PV_FEATURE_USER_EEPROM, 0, area);
    if (code != PV_OK)
        return CameraCall::failed(code, tr("The user EEPROM could not be read."));
    *bytes = QByteArray(reinterpret_cast<const char*>(area.data()), int(area.size()));
    return {};
}

Result UserEeprom::write(quint32 handle, const QByteArray& bytes, int areaSize)
{
    if (Result size = checkSize(bytes, qMin(areaSize, int(PV_USER_EEPROM_SIZE))); !size.isSuccess())
        return size;
    Area area{};
    std::memcpy(area.data(), bytes.constData(), std::size_t(bytes.size()));
    return CameraCall::writeConfirmed(handle, PV_FEATURE_USER_EEPROM, 0, area,
                                      tr("The user EEPROM could not be written."),
                                      [](const Area& written, const Area& back) { return written == back; });
}
