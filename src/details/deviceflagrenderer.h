#pragma once

#include "details/flagtables.h"

#include <QString>
#include <QVariant>

class Camera;

// One bit of a camera's status word as the details tree shows it.
class DeviceFlagRenderer final
{
public:
    // "true" when every bit of mask is set in the word, read from the camera now.
    static QVariant render(quint32 mask, FlagWord word, const Camera& camera);
    static quint32 wordOf(FlagWord word, const Camera& camera);
    // "true" or "false", translated.
    static QString boolText(bool value);
};
