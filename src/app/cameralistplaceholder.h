#pragma once

#include "services/corestates.h"

#include <QCoreApplication>
#include <QString>

// What the empty camera table says: that no camera was found and, for each
// driver service that does not run, which one it is and how to start it.
class CameraListPlaceholder final
{
    Q_DECLARE_TR_FUNCTIONS(CameraListPlaceholder)

public:
    static QString text(const CoreStates& services);
};
