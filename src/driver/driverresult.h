#pragma once

#include "common/result.h"

#include <cirro_api.h>

#include <QCoreApplication>

// A driver call's return code as the driver settings dialog reports it:
// success, or the code in the dialog's text (a QT_TRANSLATE_NOOP in the
// "AdditionalFunctions" context with the code as %1).
inline Result driverResult(std::int32_t code, const char *text) {
  return code == PV_OK
             ? Result()
             : Result(code,
                      QCoreApplication::translate("AdditionalFunctions", text)
                          .arg(code));
}
