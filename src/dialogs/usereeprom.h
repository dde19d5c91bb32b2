#pragma once

#include "common/result.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

// The camera's user EEPROM area and the two ways the dialog shows it: as
// hexadecimal bytes and as text. The area is read and written whole; a
// shorter content is padded with zero bytes.
class UserEeprom final
{
    Q_DECLARE_TR_FUNCTIONS(UserEeprom)

public:
    // "4C 69 6E 65"; empty for no bytes.
    static QString toHex(const QByteArray& bytes);
    // Pairs of hexadecimal digits, blanks between them optional.
    static Result fromHex(const QString& text, QByteArray* bytes);
    // The bytes up to the first zero byte; other bytes that are no printable
    // ASCII show as '.'.
    static QString toText(const QByteArray& bytes);
    // Printable ASCII only.
    static Result fromText(const QString& text, QByteArray* bytes);
    // Refuses content longer than the area.
    static Result checkSize(const QByteArray& bytes, int areaSize);

    static Result read(quint32 handle, QByteArray* bytes);
    // Confirms by reading back.
    static Result write(quint32 handle, const QByteArray& bytes, int areaSize);
};
