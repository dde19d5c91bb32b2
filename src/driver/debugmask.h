#pragma once

#include "common/result.h"

#include <QString>

// The 64-bit debug output mask of a camera driver, in its service's settings
// file: bit k switches trace category k on.
namespace DebugMask {

enum class Driver { Usb, Eth };

QString service(Driver driver);
// "0x" and sixteen hexadecimal digits.
QString text(quint64 mask);
// A mask text as typed: "0x" and up to sixteen hexadecimal digits.
bool parse(const QString& text, quint64& mask);

// A missing value reads as 0; so does one that can't be read, with the reason.
Result read(Driver driver, quint64& mask);
Result write(Driver driver, quint64 mask);

} // namespace DebugMask
